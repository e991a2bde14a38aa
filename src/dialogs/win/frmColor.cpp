#include "dialogs/win/frmColor.h"

#include "language/MlStringModule.h"
#include "platform/win/regions.h"
#include "widgets/dpi.h"
#include "widgets/win/darkColors.h"

namespace ormala {

namespace {

constexpr int idPicker = 11;

// In pixels at 96 DPI.
constexpr PixelSize clientSize{424, 252};
constexpr int fieldSide = 16;
constexpr PixelPoint pickerCorner{12, 12};
constexpr PixelRect presentPlace{12, 216, 60, 240};
constexpr PixelRect pickedPlace{60, 216, 108, 240};

}  // namespace

frmColor::frmColor() {
    open({L"frmColor", clientSize, true});
}

void frmColor::makeControls() {
    setCaption("Select Color");
    ColorPicker_ = std::make_unique<ColorPic>(handle(), idPicker, "ColorPicker");
    ColorPicker_->setPictureIndex(palette::hues);
    cmdOK_ = makeButton(IDOK, "cmdOK", "OK");
    changing_ = ColorPicker_->RGBChanged.subscribe([this] { showPicked(); });
    ending_ = ColorPicker_->DoubleClick.subscribe([this] { accept(); });
}

void frmColor::layOut() {
    ColorPicker_->setSizeFactorX(scaledLength(fieldSide, dpi()));
    ColorPicker_->setSizeFactorY(scaledLength(fieldSide, dpi()));
    ColorPicker_->place({scaledLength(pickerCorner.x, dpi()), scaledLength(pickerCorner.y, dpi())});
    place(*cmdOK_, {324, 216, 412, 240});
}

void frmColor::ApplyLanguage() {
    label(handle(), 42);
    label(*cmdOK_, 210);
    ColorPicker_->SetTooltip(MlString(6, "Select color"));
}

void frmColor::showPicked() const {
    const RECT area = toRect(scaledToDpi(pickedPlace, dpi()));
    InvalidateRect(handle(), &area, FALSE);
}

PixelRect frmColor::palettePlace() const {
    const PixelSize size = ColorPicker_->size();
    const int left = scaledLength(pickerCorner.x, dpi());
    const int top = scaledLength(pickerCorner.y, dpi());
    return {left, top, left + size.width, top + size.height};
}

void frmColor::paint(HDC context) {
    FormFrame_.draw(context, clientRectangle());
    const int line = lineWidthAt(dpi());
    const PixelRect present = scaledToDpi(presentPlace, dpi());
    const PixelRect picked = scaledToDpi(pickedPlace, dpi());
    for (const PixelRect& shown : {palettePlace(), present.united(picked)}) {
        frameRect(context, shown.grown(line), line, dark::outline);
    }
    fillRect(context, toRect(present), present_);
    fillRect(context, toRect(picked), ColorPicker_->RGBColor());
}

Color frmColor::GetColor(HWND owner, Color present) {
    present_ = present;
    ColorPicker_->setRGBColor(present);
    InvalidateRect(handle(), nullptr, FALSE);
    return showModal(owner) ? ColorPicker_->RGBColor() : present;
}

}  // namespace ormala
