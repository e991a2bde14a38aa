#include "magnifier/lensTexts.h"

#include "language/MlStringModule.h"
#include "modAPI/textForms.h"

namespace ormala {

namespace {

std::string colorText(Color color) {
    const auto part = [color](int shift) { return std::to_string(color >> shift & 0xFF); };
    return hexadecimal(color) + "  R " + part(0) + "  G " + part(8) + "  B " + part(16);
}

std::string placeText(PixelPoint place) {
    return "X = " + std::to_string(place.x) + "  Y = " + std::to_string(place.y);
}

}  // namespace

std::string lensTitle(int factor) {
    return MlString(243, "Magnifier ") + std::to_string(factor) + " X";
}

std::string lensCaption(int factor, bool sticked) {
    return sticked ? std::string{} : lensTitle(factor);
}

std::string hexadecimal(Color color) {
    std::string text = "#";
    // The red one is the lowest.
    for (const int shift : {0, 8, 16}) {
        const auto part = static_cast<std::size_t>(color >> shift & 0xFF);
        text += {hexDigits[part / hexDigits.size()], hexDigits[part % hexDigits.size()]};
    }
    return text;
}

std::string lensPixelText(const LensPixel& pixel) {
    return colorText(pixel.color) + lineBreak + placeText(pixel.place);
}

std::string lensName(int factor, const std::optional<LensPixel>& pixel) {
    return pixel
               ? lensTitle(factor) + ", " + colorText(pixel->color) + ", " + placeText(pixel->place)
               : lensTitle(factor);
}

}  // namespace ormala
