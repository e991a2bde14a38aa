#pragma once

#include <map>
#include <optional>
#include <string>
#include <vector>

#include "toolkit/PanelDesign.h"
#include "toolkit/PanelView.h"

namespace ormala {

/// All that a panel has told its window to show. So its controls may be made later, or go and come
/// again, or serve another panel meanwhile: they show what they would have shown if they had always
/// been there.
class PanelMemory : public PanelFace {
  public:
    void showTexts(const std::vector<ControlText>& texts) override;
    void showLook(const PanelLook& look) override { look_ = look; }
    void showButton(ControlId button, const ButtonLook& look) override;
    void showPicture(ControlId button, PictureMaker maker) override;
    void enable(const PanelEnabling& enabling) override { enabling_ = enabling; }

    [[nodiscard]] const PanelLook& look() const { return look_; }
    /// Tells controls of that design all of it, and where the panel has told nothing what the
    /// design says; a caption of the design is left as it is.
    void tell(const PanelDesign& design, PanelFace& face) const;

  private:
    struct Told {
        std::optional<std::string> text;
        std::optional<ButtonLook> look;
        /// Made since the picture of the look was told, which it covers.
        std::optional<PictureMaker> maker;
    };

    [[nodiscard]] Told toldOf(ControlId control) const;
    static void tellButton(const PanelControl& row, const Told& told, PanelFace& face);

    std::map<ControlId, Told> told_;
    PanelLook look_ = unselectedLook;
    PanelEnabling enabling_;
};

/// How a button looks before its panel has told anything.
ButtonLook firstLook(const PanelControl& row);

}  // namespace ormala
