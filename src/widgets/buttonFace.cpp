#include "widgets/buttonFace.h"

#include <algorithm>
#include <cmath>
#include <cstdint>
#include <optional>

#include "scene/dpi.h"
#include "scene/pixelImages.h"
#include "widgets/buttonShape.h"

namespace ormala {

namespace {

constexpr int flatStyle = 1;
constexpr int shadedStyle = 2;

/// What is added to the back colour at the two ends of the face.
constexpr int raisedTop = 48;
constexpr int raisedBottom = -24;
constexpr int pressedTop = -22;
constexpr int pressedBottom = 48;
constexpr int disabledOffset = 58;

constexpr int markLines = 2;
constexpr int disabledOpacity = 96;

/// The share of white in the flat style's selection colour, from 0 to 255.
constexpr int hoverWhite = 176;
constexpr int pressedWhite = 128;

/// The colours of a face from its top to its bottom.
struct FaceColors {
    Color top = 0;
    Color bottom = 0;
};

void fillShape(PixelImage& image, const RoundedBox& shape, const FaceColors& colors,
               SystemColorLookup systemColor) {
    const PixelRect& box = shape.box;
    for (int y = box.top; y < box.bottom; ++y) {
        const Color color = GradientColor(y - box.top, box.height(), colors.top, colors.bottom,
                                          plainMix, systemColor);
        fillBox(image, shape.row(y), opaquePixel(color));
    }
}

/// Takes each row's colour from the middle of `source`.
void copyShape(PixelImage& image, const RoundedBox& shape, const PixelImage& source) {
    for (int y = shape.box.top; y < shape.box.bottom; ++y) {
        fillBox(image, shape.row(y), pixelAt(source, {source.size.width / 2, y}));
    }
}

FaceColors shadedColors(const ButtonDesign& design, const ButtonState& state,
                        SystemColorLookup systemColor) {
    const auto offset = [&](int delta) {
        return OffsetColor(design.BackColor, delta, systemColor);
    };
    if (!state.enabled) {
        const Color flat = offset(design.PlaneFace ? 0 : disabledOffset);
        return {flat, flat};
    }
    if (design.PlaneFace) {
        // A press would else be seen by nothing.
        const Color plane = offset(state.pressed && !state.checked ? pressedTop : 0);
        return {plane, plane};
    }
    return state.pressed ? FaceColors{offset(pressedTop), offset(pressedBottom)}
                         : FaceColors{offset(raisedTop), offset(raisedBottom)};
}

std::optional<Color> markColor(const ButtonDesign& design, const ButtonState& state,
                               SystemColorLookup systemColor) {
    if (systemColor.highContrast()) {
        const bool marked = state.enabled && (state.hover || state.focused);
        return marked ? std::optional(inkOf(design, state, systemColor)) : std::nullopt;
    }
    if (state.enabled && state.hover) {
        return design.XPDefaultColors ? dark::hoverMark : design.XPColor_Hover;
    }
    if (state.enabled && state.focused) {
        return design.XPDefaultColors ? dark::focusMark : design.XPColor_Pressed;
    }
    return std::nullopt;
}

Color edgeColor(const ButtonState& state, SystemColorLookup systemColor) {
    if (!state.enabled && systemColor.highContrast()) {
        return plainColor(dark::dimOutline, systemColor);
    }
    return OffsetColor(dark::outline, state.enabled ? 0 : disabledOffset, systemColor);
}

void paintShaded(PixelImage& image, const ButtonDesign& design, const ButtonState& state, int dpi,
                 SystemColorLookup systemColor) {
    const int line = lineWidthAt(dpi);
    const RoundedBox outer = buttonShape(design, image.size, dpi);
    const Color edge = edgeColor(state, systemColor);
    const FaceColors face = shadedColors(design, state, systemColor);
    fillShape(image, outer, {edge, edge}, systemColor);
    const RoundedBox inner = outer.shrunk(line);
    fillShape(image, inner, face, systemColor);
    if (const auto mark = markColor(design, state, systemColor)) {
        const PixelImage unmarked = image;
        fillShape(image, inner, {*mark, *mark}, systemColor);
        copyShape(image, inner.shrunk(markLines * line), unmarked);
    }
}

Color flatBack(const ButtonDesign& design, const ButtonState& state,
               SystemColorLookup systemColor) {
    if (systemColor.highContrast() || !state.enabled || !(state.hover || state.pressed)) {
        return OffsetColor(design.BackColor, 0, systemColor);
    }
    if (!design.XPDefaultColors) {
        return state.pressed ? design.XPColor_Pressed : design.XPColor_Hover;
    }
    const int white = state.pressed ? pressedWhite : hoverWhite;
    const ColorParts parts = ColorComponents(systemSelection, systemColor);
    const auto mixed = [white](int part) { return (255 - white) * part / 255 + white; };
    return rgb(mixed(parts.red), mixed(parts.green), mixed(parts.blue));
}

void paintFlat(PixelImage& image, const ButtonDesign& design, const ButtonState& state, int dpi,
               SystemColorLookup systemColor) {
    const Color back = flatBack(design, state, systemColor);
    PixelRect box{0, 0, image.size.width, image.size.height};
    if (state.enabled && (state.hover || state.pressed)) {
        fillBox(image, box, opaquePixel(inkOf(design, state, systemColor)));
        box = box.grown(-lineWidthAt(dpi));
    }
    fillBox(image, box, opaquePixel(back));
}

}  // namespace

PixelImage buttonFace(const ButtonDesign& design, const ButtonState& state, PixelSize size, int dpi,
                      SystemColorLookup systemColor) {
    if (design.ButtonStyle == shadedStyle) {
        PixelImage image = filledImage(size, 0);
        paintShaded(image, design, state, dpi, systemColor);
        return image;
    }
    PixelImage image =
        filledImage(size, opaquePixel(OffsetColor(design.BackColor, 0, systemColor)));
    if (design.ButtonStyle == flatStyle) {
        paintFlat(image, design, state, dpi, systemColor);
    }
    return image;
}

Color inkOf(const ButtonDesign& design, const ButtonState& state, SystemColorLookup systemColor) {
    return !state.enabled && systemColor.highContrast()
               ? plainColor(dark::dimText, systemColor)
               : plainTextColor(design.ForeColor, design.BackColor, systemColor);
}

PixelImage pictureInState(const PixelImage& picture, const ButtonDesign& design,
                          const ButtonState& state, SystemColorLookup systemColor) {
    if (systemColor.highContrast() && design.Kind != PictureKind::preview) {
        const Color ink = inkOf(design, state, systemColor);
        const bool lines = design.Kind == PictureKind::lines;
        return inTwoColors(picture, lines ? ink : plainColor(design.BackColor, systemColor), ink);
    }
    if (!state.enabled) {
        return faded(greyed(picture), disabledOpacity);
    }
    return design.GreyPicture && !state.hover ? greyed(picture) : picture;
}

namespace {

/// From the middle of a sign, which reaches from -1 to 1.
struct SignPoint {
    double x;
    double y;
};

double distanceFromLine(SignPoint p, SignPoint a, SignPoint b) {
    const double dx = b.x - a.x;
    const double dy = b.y - a.y;
    const double part =
        std::clamp(((p.x - a.x) * dx + (p.y - a.y) * dy) / (dx * dx + dy * dy), 0.0, 1.0);
    return std::hypot(p.x - a.x - part * dx, p.y - a.y - part * dy);
}

/// Whether the ink of a sign covers a point; `line` is the width of its outline.
bool isInk(ButtonSign sign, SignPoint p, double line, bool on) {
    if (sign == ButtonSign::lamp) {
        const double radius = std::hypot(p.x, p.y);
        constexpr double lit = 0.5;
        return (radius <= 1 && radius > 1 - line) || (on && radius <= lit);
    }
    const bool edge = std::max(std::abs(p.x), std::abs(p.y)) > 1 - line;
    const double tick = std::min(distanceFromLine(p, {-0.5, 0}, {-0.1, 0.45}),
                                 distanceFromLine(p, {-0.1, 0.45}, {0.55, -0.5}));
    return edge || (on && tick <= line / 2 + 0.05);
}

}  // namespace

void paintSign(PixelImage& face, const PixelRect& place, const ButtonDesign& design,
               const ButtonState& state, int dpi, SystemColorLookup systemColor) {
    constexpr int fine = 4;
    const double side = place.width();
    const double line = 2 * lineWidthAt(dpi) / side;
    const Color ink = state.enabled || systemColor.highContrast()
                          ? inkOf(design, state, systemColor)
                          : plainColor(dark::outline, systemColor);
    PixelImage drawn = filledImage({place.width(), place.height()}, 0);
    for (int y = 0; y < place.height(); ++y) {
        for (int x = 0; x < place.width(); ++x) {
            int covered = 0;
            for (int part = 0; part < fine * fine; ++part) {
                const double px = x + (part % fine + 0.5) / fine;
                const int row = part / fine;
                const double py = y + (row + 0.5) / fine;
                const SignPoint point{2 * px / side - 1, 2 * py / side - 1};
                covered += isInk(design.Sign, point, line, state.checked) ? 1 : 0;
            }
            const auto alpha = static_cast<std::uint32_t>(255 * covered / (fine * fine));
            const std::uint32_t pixel = (opaquePixel(ink) & 0xFFFFFFU) | alpha << 24;
            fillBox(drawn, {x, y, x + 1, y + 1}, covered == 0 ? 0 : pixel);
        }
    }
    blendOnto(face, drawn, {place.left, place.top});
}

int pictureShift(const ButtonDesign& design, const ButtonState& state, int dpi) {
    if (!state.pressed) {
        return 0;
    }
    // In the flat style the picture rises towards the user.
    return design.ButtonStyle == flatStyle ? -scaledLength(2, dpi) : lineWidthAt(dpi);
}

int captionShift(const ButtonDesign& design, const ButtonState& state, int dpi) {
    const bool sinks = design.ButtonStyle != flatStyle && design.ButtonStyle != 3;
    return state.pressed && sinks ? lineWidthAt(dpi) : 0;
}

}  // namespace ormala
