#include "dialogs/win/LensPage.h"

#include <utility>

#include "dialogs/hotSpotPicture.h"
#include "language/MlStringModule.h"
#include "widgets/win/labeling.h"

namespace ormala {

namespace {

enum LensId {
    idCursorVisible = 11,
    idStick,
    idMagnification,
    idHotSpotVisible,
    idHotSpotStyleLabel,
    idHotSpotDrawModeLabel,
    idHotSpotColor,
    idHotSpotFrame,
    idGridVisible,
    idGridDrawModeLabel,
    idGridColor,
    idGridFrame,
    idTopLeftVisible,
    idTopLeftLabel,
    idTopLeftFrame,
    idBottomRightVisible,
    idBottomRightLabel,
    idBottomRightFrame,
    idHotSpotStyle = 31,
    idHotSpotDrawMode = 41,
    idGridDrawMode = 51,
    idTopLeftRef = 61,
    idBottomRightRef = 71
};

/// In pixels at 96 DPI.
constexpr int stylePicture = 15;

}  // namespace

LensPage::LensPage(HWND parent, int id, LensOptions& lens, ColorChooser chooseColor)
    : OptionsPage(parent, id, 2), chooseColor_(std::move(chooseColor)) {
    makeView(lens);
    makeHotSpot(lens);
    makeLensGrid(lens);
    makeTopLeft(lens);
    makeBottomRight(lens);
}

void LensPage::makeView(LensOptions& lens) {
    chkCursorVisible_ = makeCheck(idCursorVisible, "chkCursorVisible", lens.cursorOn);
    chkStick_ = makeCheck(idStick, "chkStick", lens.sticked);
    sldMagnification_ = makeSlider(idMagnification, "sldMagnification", magnificationRange);
    whenShown([this, &lens] { sldMagnification_->setValue(static_cast<float>(lens.factor)); });
    whenChanged(sldMagnification_->Change,
                [this, &lens] { lens.factor = wholeValue(sldMagnification_->Value()); });
}

void LensPage::makeHotSpot(LensOptions& lens) {
    hotSpot_.visible = makeCheck(idHotSpotVisible, "chkHotSpotVisible", lens.hotSpotOn);
    makeLabel(lblHotSpotStyle_, idHotSpotStyleLabel, "lblHotSpotStyle");
    make(optHotSpotStyle_, {idHotSpotStyle, "optHotSpotStyle", hotSpotStyleChoices},
         lens.hotSpotStyle);
    makeStylePictures();
    makeLabel(hotSpot_.lblDrawMode, idHotSpotDrawModeLabel, "lblHotSpotDrawMode");
    make(hotSpot_.optDrawMode, {idHotSpotDrawMode, "optHotSpotDrawMode", drawModeChoices},
         lens.hotSpotDrawMode);
    hotSpot_.cmdColor = makeColorButton(idHotSpotColor, "cmdHotSpotDrawColor", lens.hotSpotColor);
    makeFrame(fraHotSpot_, idHotSpotFrame, "fraHotSpot");
}

void LensPage::makeLensGrid(LensOptions& lens) {
    lensGrid_.visible = makeCheck(idGridVisible, "chkLensGridVisible", lens.gridOn);
    makeLabel(lensGrid_.lblDrawMode, idGridDrawModeLabel, "lblLensGridDrawMode");
    make(lensGrid_.optDrawMode, {idGridDrawMode, "optLensGridDrawMode", drawModeChoices},
         lens.gridDrawMode);
    lensGrid_.cmdColor = makeColorButton(idGridColor, "cmdLensGridColor", lens.gridColor);
    makeFrame(fraLensGrid_, idGridFrame, "fraLensGrid");
}

void LensPage::makeTopLeft(LensOptions& lens) {
    topLeft_.visible = makeCheck(idTopLeftVisible, "chkTopLeftVisible", lens.topScales);
    makeLabel(topLeft_.lblRef, idTopLeftLabel, "lblTopLeftRef");
    make(topLeft_.optRef, {idTopLeftRef, "optTopLeftRef", originChoices}, lens.topOrigin);
    makeFrame(fraScaleTopLeft_, idTopLeftFrame, "fraScaleTopLeft");
}

void LensPage::makeBottomRight(LensOptions& lens) {
    bottomRight_.visible =
        makeCheck(idBottomRightVisible, "chkBottomRightVisible", lens.bottomScales);
    makeLabel(bottomRight_.lblRef, idBottomRightLabel, "lblBottomRightRef");
    make(bottomRight_.optRef, {idBottomRightRef, "optBottomRightRef", originChoices},
         lens.bottomOrigin);
    makeFrame(fraScaleBottomRight_, idBottomRightFrame, "fraScaleBottomRight");
}

std::unique_ptr<ZelvikButtonXP> LensPage::makeColorButton(int id, std::string_view name,
                                                          Color& color) {
    auto made = std::make_unique<ZelvikButtonXP>(handle(), id, name);
    ZelvikButtonXP& button = *made;
    startGroup(button.handle());
    button.setPlaneFace(true);
    add(button, name);
    whenShown([&button, &color] { button.setBackColor(color); });
    whenChanged(button.Click, [this, &button, &color] {
        color = chooseColor_(GetAncestor(handle(), GA_ROOT), color);
        button.setBackColor(color);
    });
    return made;
}

void LensPage::makeStylePictures() {
    for (int style = 0; style < optHotSpotStyle_.size(); ++style) {
        ZelvikButtonXP& button = optHotSpotStyle_[style];
        button.setCaption(std::to_string(style + 1));
        button.setPictureSize(stylePicture, stylePicture);
        button.setPicture([style](PixelSize size) { return drawHotSpotPicture(style, size); },
                          PictureKind::preview);
    }
}

void LensPage::labelOrigins(OptionGroup& group) {
    label(group[0], 96);
    label(group[1], 64);
    label(group[2], 97);
    label(group[3], 95);
}

void LensPage::labelDrawModes(OptionGroup& group) {
    label(group[0], 109);
    label(group[1], 108);
    label(group[2], 91);
}

void LensPage::ApplyLanguage() {
    label(*bottomRight_.visible, 65);
    label(*chkCursorVisible_, 93);
    label(*hotSpot_.visible, 65);
    label(*lensGrid_.visible, 65);
    label(*chkStick_, 94);
    label(*topLeft_.visible, 65);
    for (ZelvikButtonXP* const button : {hotSpot_.cmdColor.get(), lensGrid_.cmdColor.get()}) {
        button->SetTooltip(MlString(6, "Select color"));
    }
    label(bottomRight_.lblRef.handle(), 98);
    label(fraHotSpot_.handle(), 114);
    label(hotSpot_.lblDrawMode.handle(), 110);
    label(lblHotSpotStyle_.handle(), 107);
    label(fraLensGrid_.handle(), 113);
    label(lensGrid_.lblDrawMode.handle(), 110);
    label(fraScaleBottomRight_.handle(), 111);
    label(fraScaleTopLeft_.handle(), 112);
    label(topLeft_.lblRef.handle(), 98);
    labelOrigins(topLeft_.optRef);
    labelDrawModes(hotSpot_.optDrawMode);
    labelDrawModes(lensGrid_.optDrawMode);
    labelOrigins(bottomRight_.optRef);
    label(*sldMagnification_, 66);
}

}  // namespace ormala
