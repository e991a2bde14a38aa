#pragma once

#include <algorithm>
#include <optional>
#include <span>
#include <string_view>

#include "modAPI/PixelRect.h"
#include "modAPI/colors.h"
#include "scene/SheetScale.h"

namespace ormala {

/// Line code: 0 one pixel dotted, 1 one pixel dashed, n >= 2 solid and n - 1 pixels wide.
struct Pen {
    Color color = 0;
    int lineCode = 2;

    bool operator==(const Pen&) const = default;
    /// Bounded, since a damaged file may hold any code.
    [[nodiscard]] int width() const { return std::clamp(lineCode, 2, widest + 1) - 1; }

    /// Covers any worksheet.
    static constexpr int widest = 4096;
};

enum class ShapeKind { rectangle, roundedRectangle, oval };

/// A bordered shape that covers exactly the pixels of `box`, its border inside; the box is no
/// narrower than its border.
struct ShapeFace {
    ShapeKind kind = ShapeKind::rectangle;
    PixelRect box;
    Color borderColor = 0;
    int borderWidth = 1;
    std::optional<Color> fill;
};

enum class Alignment { left, right, center };

/// Lines are parted by "\r\n". `size` is in points.
struct TextFace {
    std::string_view text;
    Color color = 0;
    int size = 8;
    Alignment alignment = Alignment::left;
};

/// Where a tool draws itself; coordinates are worksheet pixels. Nothing is smoothed.
class Canvas {
  public:
    virtual ~Canvas() = default;

    /// The pixels that drawing can change; all else may be left out.
    [[nodiscard]] virtual PixelRect visible() const = 0;

    /// Without the last pixel, as a pen that is lifted where it arrives.
    virtual void line(const Pen& pen, PixelPoint from, PixelPoint to) = 0;
    virtual void polyline(const Pen& pen, std::span<const PixelPoint> points) = 0;
    /// 3n + 1 control points.
    virtual void bezier(const Pen& pen, std::span<const PixelPoint> points) = 0;
    virtual void shape(const ShapeFace& face) = 0;
    virtual void text(const PixelRect& box, const TextFace& face) = 0;
};

/// Tells the size of a text before it is drawn, and of what stands beside it.
class TextMeter {
  public:
    virtual ~TextMeter() = default;

    /// Of the resolution that the texts are measured for.
    [[nodiscard]] virtual SheetScale scale() const = 0;

    /// In pixels, over all lines of the text; `size` in points.
    [[nodiscard]] virtual PixelSize measure(std::string_view text, int size) const = 0;
};

}  // namespace ormala
