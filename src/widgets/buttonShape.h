#pragma once

#include <functional>
#include <string>
#include <string_view>
#include <vector>

#include "modAPI/PixelRect.h"
#include "widgets/ButtonDesign.h"

namespace ormala {

/// A rectangle of which either side may have round corners.
struct RoundedBox {
    PixelRect box;
    bool roundLeft = false;
    bool roundRight = false;
    /// Of the corners, in pixels.
    int diameter = 0;

    /// The pixels of a row of `box`, without what the corners cut away.
    [[nodiscard]] PixelRect row(int y) const;
    /// The same shape, so many pixels smaller on each side.
    [[nodiscard]] RoundedBox shrunk(int by) const;

    bool operator==(const RoundedBox&) const = default;
};

/// The outer shape of a button of that size.
RoundedBox buttonShape(const ButtonDesign& design, PixelSize size, int dpi);

/// The shape as rectangles that do not overlap.
std::vector<PixelRect> regionOfShape(const RoundedBox& shape);

/// The size that a button takes when it is given one: it is never smaller than 10 pixels at 96 DPI.
PixelSize leastButtonSize(PixelSize wanted, int dpi);

struct ButtonContent {
    PixelRect picture;
    PixelRect text;
    /// Empty for a button without one.
    PixelRect sign = {};
};

/// Tells the size of the caption when its lines break at that width.
using CaptionMeter = std::function<PixelSize(int width)>;

/// Where picture, caption and sign stand. Without a picture its size is empty; `meter` is asked
/// only if there is a caption.
ButtonContent LayoutContent(const ButtonDesign& design, PixelSize size, PixelSize picture, int dpi,
                            const CaptionMeter& meter);

/// The letter after the last single "&" of a caption, 0 if there is none.
char16_t accessKeyOf(std::string_view caption);

/// The caption as it is read: without the marks of access keys.
std::string spokenCaption(std::string_view caption);

}  // namespace ormala
