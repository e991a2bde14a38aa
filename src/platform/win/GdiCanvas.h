#pragma once

#include <optional>

#include "platform/win/handles.h"
#include "scene/Canvas.h"

namespace ormala {

/// The fonts of the worksheet's texts, not smoothed, at the resolution of its monitor.
class GdiFonts : public TextMeter {
  public:
    explicit GdiFonts(int dpi);
    void setDpi(int dpi);

    [[nodiscard]] SheetScale scale() const override { return SheetScale(dpi_); }
    [[nodiscard]] HFONT font(int size) const;
    [[nodiscard]] PixelSize measure(std::string_view text, int size) const override;

  private:
    int dpi_;
    ContextHandle context_;
    mutable int size_ = 0;
    mutable FontHandle font_;
};

/// Draws on a device context for the time of one painting. Pens are kept from call to call.
class GdiCanvas : public Canvas {
  public:
    GdiCanvas(HDC context, const PixelRect& visible, const GdiFonts& fonts);
    GdiCanvas(const GdiCanvas&) = delete;
    GdiCanvas& operator=(const GdiCanvas&) = delete;
    ~GdiCanvas() override;

    [[nodiscard]] PixelRect visible() const override { return visible_; }
    void line(const Pen& pen, PixelPoint from, PixelPoint to) override;
    void polyline(const Pen& pen, std::span<const PixelPoint> points) override;
    void bezier(const Pen& pen, std::span<const PixelPoint> points) override;
    void shape(const ShapeFace& face) override;
    void text(const PixelRect& box, const TextFace& face) override;

  private:
    void take(const Pen& pen);

    HDC context_;
    int saved_;
    PixelRect visible_;
    const GdiFonts& fonts_;
    std::optional<Pen> pen_;
    PenHandle penHandle_;
};

/// A colour as it is to be seen now; see `plainColor`.
COLORREF colorRef(Color color);
/// The same of a text on a ground; see `plainTextColor`.
COLORREF textColorRef(Color text, Color ground);

/// The DT_ flag of an alignment.
UINT alignmentFormat(Alignment alignment);

/// The colours of the system as they are now.
SystemColorLookup systemColors();

}  // namespace ormala
