#pragma once

#include <array>

#include "dialogs/OptionValues.h"
#include "dialogs/win/OptionsPage.h"

namespace ormala {

/// Lets the user pick a colour, in a dialog of its own over that window.
using ColorChooser = std::function<Color(HWND owner, Color present)>;

/// The magnifier.
class LensPage : public OptionsPage {
  public:
    /// The lens must outlive the page.
    LensPage(HWND parent, int id, LensOptions& lens, ColorChooser chooseColor);

    void ApplyLanguage() override;

  private:
    /// A visible thing with the colour it is drawn in.
    struct Mark {
        std::unique_ptr<CheckButton> visible;
        StandardControl lblDrawMode;
        OptionGroup optDrawMode;
        std::unique_ptr<ZelvikButtonXP> cmdColor;
    };
    /// The scales at two sides.
    struct Scales {
        std::unique_ptr<CheckButton> visible;
        StandardControl lblRef;
        OptionGroup optRef;
    };

    void makeView(LensOptions& lens);
    void makeHotSpot(LensOptions& lens);
    void makeLensGrid(LensOptions& lens);
    void makeTopLeft(LensOptions& lens);
    void makeBottomRight(LensOptions& lens);
    std::unique_ptr<ZelvikButtonXP> makeColorButton(int id, std::string_view name, Color& color);
    void makeStylePictures();
    static void labelOrigins(OptionGroup& group);
    static void labelDrawModes(OptionGroup& group);

    ColorChooser chooseColor_;
    std::unique_ptr<CheckButton> chkCursorVisible_;
    std::unique_ptr<CheckButton> chkStick_;
    std::unique_ptr<ctlSlider> sldMagnification_;
    Mark hotSpot_;
    StandardControl lblHotSpotStyle_;
    OptionGroup optHotSpotStyle_;
    GroupBox fraHotSpot_;
    Mark lensGrid_;
    GroupBox fraLensGrid_;
    Scales topLeft_;
    GroupBox fraScaleTopLeft_;
    Scales bottomRight_;
    GroupBox fraScaleBottomRight_;
};

}  // namespace ormala
