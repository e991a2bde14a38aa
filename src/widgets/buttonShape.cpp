#include "widgets/buttonShape.h"

#include <algorithm>
#include <cmath>
#include <utility>

#include "base/Utf8.h"
#include "scene/dpi.h"

namespace ormala {

namespace {

constexpr int cornerDiameter = 5;
constexpr int leastSide = 10;
/// Between the edge and the content, on the left and above, on the right and below, and between
/// picture and text.
constexpr int marginBefore = 4;
constexpr int marginAfter = 3;
constexpr int contentGap = 4;

/// How many pixels a round corner cuts from a row: those whose centre lies outside the circle.
int cutOfRow(int row, int diameter) {
    const double radius = diameter / 2.0;
    const double height = radius - row - 0.5;
    if (height <= 0) {
        return 0;
    }
    const double reach = std::sqrt(std::max(0.0, radius * radius - height * height));
    return std::max(0, static_cast<int>(std::ceil(radius - reach - 0.5)));
}

PixelRect centred(PixelSize size, const PixelRect& area) {
    const int left = area.left + (area.width() - size.width) / 2;
    const int top = area.top + (area.height() - size.height) / 2;
    return {left, top, left + size.width, top + size.height};
}

/// Two sizes one after the other with a gap, the block of them centred.
std::pair<PixelRect, PixelRect> block(PixelSize first, PixelSize second, bool stacked, int gap,
                                      const PixelRect& area) {
    PixelRect a = centred(first, area);
    PixelRect b = centred(second, area);
    if (stacked) {
        const int length = first.height + gap + second.height;
        const int top = area.top + (area.height() - length) / 2;
        a = {a.left, top, a.right, top + first.height};
        b = {b.left, a.bottom + gap, b.right, a.bottom + gap + second.height};
    } else {
        const int length = first.width + gap + second.width;
        const int left = area.left + (area.width() - length) / 2;
        a = {left, a.top, left + first.width, a.bottom};
        b = {a.right + gap, b.top, a.right + gap + second.width, b.bottom};
    }
    return {a, b};
}

}  // namespace

PixelRect RoundedBox::row(int y) const {
    const int fromEdge = std::min(y - box.top, box.bottom - 1 - y);
    const int cut = cutOfRow(fromEdge, diameter);
    return {box.left + (roundLeft ? cut : 0), y, box.right - (roundRight ? cut : 0), y + 1};
}

RoundedBox RoundedBox::shrunk(int by) const {
    return {box.grown(-by), roundLeft, roundRight, diameter};
}

RoundedBox buttonShape(const ButtonDesign& design, PixelSize size, int dpi) {
    const bool round = design.ButtonStyle >= 2 && design.ButtonStyle <= 4;
    const int style = design.UseCornerStyle ? design.CornerStyle : 0;
    const int diameter = scaledLength(cornerDiameter, dpi);
    // The edge that isn't to be seen lies beyond the window.
    const int beyond = design.OpenBelow ? diameter : 0;
    return {{0, 0, size.width, size.height + beyond},
            round && (style == 0 || style == 1),
            round && (style == 0 || style == 2),
            diameter};
}

std::vector<PixelRect> regionOfShape(const RoundedBox& shape) {
    std::vector<PixelRect> rects;
    for (int y = shape.box.top; y < shape.box.bottom; ++y) {
        const PixelRect row = shape.row(y);
        if (!rects.empty() && rects.back().left == row.left && rects.back().right == row.right) {
            rects.back().bottom = row.bottom;
        } else {
            rects.push_back(row);
        }
    }
    return rects;
}

PixelSize leastButtonSize(PixelSize wanted, int dpi) {
    const int least = scaledLength(leastSide, dpi);
    return {std::max(wanted.width, least), std::max(wanted.height, least)};
}

namespace {

ButtonContent contentIn(const PixelRect& inner, const ButtonDesign& design, PixelSize picture,
                        int dpi, const CaptionMeter& meter) {
    if (design.Caption.empty()) {
        return {centred(picture, inner), {}};
    }
    if (picture == PixelSize{}) {
        return {{}, centred(meter(inner.width()), inner)};
    }
    const int gap = scaledLength(contentGap, dpi);
    const bool stacked = design.PicturePosition == 0 || design.PicturePosition == 3;
    const bool pictureFirst = design.PicturePosition == 0 || design.PicturePosition == 1;
    const PixelSize text = meter(inner.width() - (stacked ? 0 : picture.width + gap));
    const auto [first, second] =
        block(pictureFirst ? picture : text, pictureFirst ? text : picture, stacked, gap, inner);
    return pictureFirst ? ButtonContent{first, second} : ButtonContent{second, first};
}

/// A narrow button has a smaller sign, nearer to the edge.
struct SignMeasures {
    int side;
    int left;
    int gap;
};

SignMeasures signMeasures(PixelSize size, int dpi) {
    constexpr int wideFrom = 60;
    constexpr SignMeasures ofWide{9, 7, 4};
    constexpr SignMeasures ofNarrow{7, 4, 2};
    const SignMeasures& measures = size.width < scaledLength(wideFrom, dpi) ? ofNarrow : ofWide;
    return {scaledLength(measures.side, dpi), scaledLength(measures.left, dpi),
            scaledLength(measures.gap, dpi)};
}

}  // namespace

ButtonContent LayoutContent(const ButtonDesign& design, PixelSize size, PixelSize picture, int dpi,
                            const CaptionMeter& meter) {
    const int before = scaledLength(marginBefore, dpi);
    const int after = scaledLength(marginAfter, dpi);
    PixelRect inner{before, before, size.width - after, size.height - after};
    if (design.Sign == ButtonSign::none) {
        return contentIn(inner, design, picture, dpi, meter);
    }
    const SignMeasures sign = signMeasures(size, dpi);
    const int top = (size.height - sign.side) / 2;
    inner.left = sign.left + sign.side + sign.gap;
    ButtonContent content = contentIn(inner, design, picture, dpi, meter);
    content.sign = {sign.left, top, sign.left + sign.side, top + sign.side};
    return content;
}

char16_t accessKeyOf(std::string_view caption) {
    const std::u16string text = utf16FromUtf8(caption);
    char16_t key = 0;
    for (std::size_t i = 0; i + 1 < text.size(); ++i) {
        if (text[i] == u'&') {
            ++i;
            key = text[i] == u'&' ? key : text[i];
        }
    }
    return key;
}

std::string spokenCaption(std::string_view caption) {
    std::string spoken;
    for (std::size_t i = 0; i < caption.size(); ++i) {
        if (caption[i] == '&' && i + 1 < caption.size()) {
            ++i;
        }
        spoken += caption[i];
    }
    return spoken;
}

}  // namespace ormala
