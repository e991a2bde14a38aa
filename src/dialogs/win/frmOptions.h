#pragma once

#include <array>

#include "dialogs/OptionsPort.h"
#include "dialogs/ProgramFacts.h"
#include "dialogs/win/OptionsPage.h"
#include "dialogs/win/openLink.h"
#include "widgets/win/ModalDialog.h"

namespace ormala {

class frmAbout;
class frmColor;

/// The dialog in which the user sets everything that is not a tool. It works on a copy of the
/// settings, which OK hands back.
class frmOptions : public ModalDialog {
  public:
    /// The port must outlive the dialog.
    frmOptions(OptionsPort& port, ProgramFacts facts, LinkOpener openLink = &ormala::openLink);
    ~frmOptions() override;

    /// Shows the settings on the page of that index, from 0, or on the last one if it is -1. By OK
    /// all of them are applied. Nothing happens while it is shown already.
    void ShowForm(HWND owner, int TabIndex);
    /// Composes the window's caption of the program's title and the text of the language.
    void SetRuntimeTexts(const std::string& title);

  private:
    void makeControls() override;
    void layOut() override;
    void ApplyLanguage() override;
    [[nodiscard]] HWND firstFocus() const override;
    void command(int id, int notification) override;
    void paint(HDC context) override;

    void openPage(int index);
    Color chooseColor(HWND owner, Color present);
    void showAbout();

    OptionsPort& port_;
    ProgramFacts facts_;
    LinkOpener openLink_;
    OptionValues values_;
    int page_ = 0;
    OptionGroup btnTab_;
    std::array<std::unique_ptr<OptionsPage>, optionPageCount> picTab_;
    std::unique_ptr<ZelvikButtonXP> cmdAbout_;
    std::unique_ptr<ZelvikButtonXP> cmdOK_;
    std::unique_ptr<ZelvikButtonXP> cmdCancel_;
    std::unique_ptr<frmColor> frmColor_;
    std::unique_ptr<frmAbout> frmAbout_;
    std::vector<Subscription> handlers_;
};

}  // namespace ormala
