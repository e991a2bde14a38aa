#include "dialogs/win/frmColor.h"

#include <algorithm>
#include <array>

#include "language/MlStringModule.h"
#include "platform/win/fills.h"
#include "platform/win/regions.h"
#include "scene/Input.h"
#include "widgets/dpi.h"
#include "widgets/lookColors.h"

namespace ormala {

namespace {

enum ColorId { idPicker = 11, idPalette = 21 };

// In pixels at 96 DPI.
constexpr PixelSize colorClientSize{424, 252};
constexpr PixelRect pickerPlace{12, 12, 412, 204};
constexpr PixelRect presentPlace{12, 216, 60, 240};
constexpr PixelRect pickedPlace{60, 216, 108, 240};
constexpr PixelSize palettePictureSize{28, 14};

constexpr PixelRect palettePlaceOf(int index) {
    constexpr int left = 150;
    constexpr int width = 40;
    return {left + index * width, 216, left + (index + 1) * width, 240};
}

/// Of the tip of each palette.
constexpr std::array paletteTexts{543, 544, 545};

}  // namespace

frmColor::frmColor() {
    open({L"frmColor", colorClientSize, true});
}

void frmColor::makeControls() {
    setCaption("Select Color");
    ColorPicker_ = std::make_unique<ColorPic>(handle(), idPicker, "ColorPicker");
    ColorPicker_->setPictureIndex(palette::hues);
    btnPalette_.create(handle(), idPalette, "btnPalette", std::vector<std::string>(paletteCount));
    btnPalette_.setSign(ButtonSign::none);
    for (int index = 0; index < paletteCount; ++index) {
        ZelvikButtonXP& button = btnPalette_[index];
        button.setPictureSize(palettePictureSize.width, palettePictureSize.height);
        button.setPicture([index](PixelSize size) { return palettePicture(index, size); },
                          PictureKind::preview);
        button.setCornerStyle(index == 0 ? 1 : index == paletteCount - 1 ? 2 : 3);
        handlers_.push_back(
            button.KeyDown.subscribe([this](KeyArguments pressed) { onKey(pressed.keyCode); }));
    }
    cmdOK_ = makeButton(IDOK, "cmdOK", "OK");
    startGroup(cmdOK_->handle());
    handlers_.push_back(
        cmdOK_->KeyDown.subscribe([this](KeyArguments pressed) { onKey(pressed.keyCode); }));
    handlers_.push_back(ColorPicker_->KeyDown.subscribe([this](int key) { onKey(key); }));
    handlers_.push_back(
        btnPalette_.Change.subscribe([this] { showPalette(btnPalette_.selected()); }));
    handlers_.push_back(ColorPicker_->RGBChanged.subscribe([this] { showPicked(); }));
    handlers_.push_back(ColorPicker_->DoubleClick.subscribe([this] { accept(); }));
}

void frmColor::layOut() {
    ColorPicker_->place(scaledToDpi(pickerPlace, dpi()));
    for (int index = 0; index < paletteCount; ++index) {
        place(btnPalette_[index], palettePlaceOf(index));
    }
    place(*cmdOK_, {324, 216, 412, 240});
}

void frmColor::ApplyLanguage() {
    label(handle(), 42);
    label(*cmdOK_, 210);
    ColorPicker_->SetTooltip(MlString(6, "Select color"));
    for (int index = 0; index < paletteCount; ++index) {
        btnPalette_[index].SetTooltip(
            MlString(paletteTexts.at(static_cast<std::size_t>(index)), {}));
    }
}

void frmColor::showPicked() const {
    const RECT area = toRect(scaledToDpi(pickedPlace, dpi()));
    InvalidateRect(handle(), &area, FALSE);
}

void frmColor::showPalette(int index) {
    btnPalette_.select(index);
    ColorPicker_->setPictureIndex(index);
}

/// Page Up and Page Down, from the first palette on to the last and back.
void frmColor::onKey(int key) {
    const int step = key == key::pageDown ? 1 : key == key::pageUp ? -1 : 0;
    const int index = std::clamp(ColorPicker_->PictureIndex() + step, 0, paletteCount - 1);
    if (index != ColorPicker_->PictureIndex()) {
        showPalette(index);
    }
}

void frmColor::paint(HDC context) {
    FormFrame_.draw(context, clientRectangle());
    const int line = lineWidthAt(dpi());
    const PixelRect present = scaledToDpi(presentPlace, dpi());
    const PixelRect picked = scaledToDpi(pickedPlace, dpi());
    for (const PixelRect& shown : {scaledToDpi(pickerPlace, dpi()), present.united(picked)}) {
        frameRect(context, shown.grown(line), line, dark::outline);
    }
    fillRect(context, toRect(present), present_);
    fillRect(context, toRect(picked), ColorPicker_->RGBColor());
}

Color frmColor::GetColor(HWND owner, Color present) {
    present_ = present;
    ColorPicker_->setRGBColor(present);
    showPalette(paletteFor(present));
    InvalidateRect(handle(), nullptr, FALSE);
    return showModal(owner) ? ColorPicker_->RGBColor() : present;
}

}  // namespace ormala
