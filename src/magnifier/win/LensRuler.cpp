#include "magnifier/win/LensRuler.h"

#include <string_view>

namespace ormala {

namespace {

constexpr PerScale<std::string_view> names{"picRulTop", "picRulBottom", "picRulRight",
                                           "picRulLeft"};

/// Behind the ID of the image.
int idOf(LensScale scale) {
    return static_cast<int>(indexOf(scale)) + 2;
}

}  // namespace

LensRuler::LensRuler(HWND parent, LensScale scale)
    : scale_(scale), picture_(parent, idOf(scale), names[indexOf(scale)]) {}

void LensRuler::setOn(bool on) {
    on_ = on;
    picture_.setVisible(on);
    EnableWindow(picture_.handle(), on ? TRUE : FALSE);
}

void LensRuler::setPlace(const PixelRect& box) {
    if (!on_) {
        return;
    }
    picture_.setPlace(box);
    background_.resize({box.width(), box.height()});
    fillRuler(background_.view(), scale_);
    drawn_.reset();
}

void LensRuler::draw(const LensLayout& layout, const ScaleGlyphs& glyphs,
                     const ScaleOrigins& origins, int dpi) {
    if (!on_) {
        return;
    }
    const RulerLook look =
        rulerLook(scale_, layout, glyphs, scaleBase(scale_, origin_, origins), dpi);
    if (look != drawn_) {
        drawn_ = look;
        drawRuler(picture_.picture().view(), background_.view(), look, glyphs);
        picture_.setChanged();
    }
}

}  // namespace ormala
