#pragma once

#include "dialogs/ProgramFacts.h"
#include "dialogs/win/DialogFrame.h"
#include "dialogs/win/LinkLabel.h"
#include "dialogs/win/TitleLabel.h"
#include "widgets/win/Label.h"
#include "widgets/win/ModalDialog.h"

namespace ormala {

/// The box that tells the program's title and version, with links to its web page and to a mail
/// to its author where there are addresses.
class frmAbout : public ModalDialog {
  public:
    frmAbout(ProgramFacts facts, LinkOpener openLink);
    ~frmAbout() override { destroy(); }

    /// Shows the box until it is closed.
    void ShowAbout(HWND owner) { showModal(owner); }

  private:
    /// A heading with a link beneath it.
    struct LinkBlock {
        std::unique_ptr<Label> heading;
        std::unique_ptr<LinkLabel> link;
        Subscription clicking;
    };

    void makeControls() override;
    void layOut() override;
    void ApplyLanguage() override;
    [[nodiscard]] HWND firstFocus() const override { return cmdClose_->handle(); }
    void command(int id, int notification) override;
    void paint(HDC context) override;

    std::unique_ptr<Label> makeLabel(int id, std::string_view name, Color color) const;
    void makeBlock(LinkBlock& block, int id, std::string_view heading, std::string_view link,
                   const std::string& address, const std::string& target);
    int placeBlock(const LinkBlock& block, int top) const;
    void SetRuntimeTexts();
    void paintLogo(HDC context) const;

    ProgramFacts facts_;
    LinkOpener openLink_;
    DialogFrame ctlFrame1_;
    std::unique_ptr<TitleLabel> lblTitle_;
    std::unique_ptr<Label> lblVersion_;
    std::unique_ptr<Label> lblVersionInfo_;
    LinkBlock homepage_;
    LinkBlock mail_;
    std::unique_ptr<ZelvikButtonXP> cmdClose_;
};

}  // namespace ormala
