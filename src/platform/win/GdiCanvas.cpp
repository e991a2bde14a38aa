#include "platform/win/GdiCanvas.h"

#include <cmath>
#include <cstddef>
#include <vector>

#include "platform/win/fonts.h"
#include "platform/win/highContrast.h"
#include "platform/win/text.h"

namespace ormala {

namespace {

constexpr UINT textFormat = DT_NOPREFIX | DT_NOCLIP;

int penStyle(const Pen& pen) {
    if (pen.lineCode == 0) {
        return PS_DOT;
    }
    return pen.lineCode == 1 ? PS_DASH : PS_SOLID;
}

// A PixelPoint is laid out as the system's POINT, so that a list of them is drawn as it stands.
static_assert(sizeof(PixelPoint) == sizeof(POINT));
static_assert(offsetof(PixelPoint, y) == offsetof(POINT, y));

std::span<const POINT> systemPoints(std::span<const PixelPoint> points) {
    return {reinterpret_cast<const POINT*>(points.data()), points.size()};
}

}  // namespace

COLORREF colorRef(Color color) {
    return static_cast<COLORREF>(plainColor(color, systemColors()));
}

UINT alignmentFormat(Alignment alignment) {
    switch (alignment) {
        case Alignment::right:
            return DT_RIGHT;
        case Alignment::center:
            return DT_CENTER;
        case Alignment::left:
            break;
    }
    return DT_LEFT;
}

COLORREF textColorRef(Color text, Color ground) {
    return static_cast<COLORREF>(plainTextColor(text, ground, systemColors()));
}

SystemColorLookup systemColors() {
    return {[](int index) { return static_cast<Color>(GetSysColor(index)); }, isHighContrast()};
}

GdiFonts::GdiFonts(int dpi) : dpi_(dpi), context_(CreateCompatibleDC(nullptr)) {}

void GdiFonts::setDpi(int dpi) {
    dpi_ = dpi;
    font_.reset();
}

HFONT GdiFonts::font(int size) const {
    if (size_ != size || !font_) {
        font_ = worksheetFont(dpi_, size);
        size_ = size;
    }
    return font_.get();
}

PixelSize GdiFonts::measure(std::string_view text, int size) const {
    const Selected selected(context_.get(), font(size));
    const std::wstring shown = wide(text);
    RECT box{};
    const int height = DrawTextW(context_.get(), shown.empty() ? L" " : shown.c_str(), -1, &box,
                                 textFormat | DT_CALCRECT);
    return {shown.empty() ? 0 : static_cast<int>(box.right - box.left), height};
}

GdiCanvas::GdiCanvas(HDC context, const PixelRect& visible, const GdiFonts& fonts)
    : context_(context), saved_(SaveDC(context)), visible_(visible), fonts_(fonts) {
    SetBkMode(context_, TRANSPARENT);
}

GdiCanvas::~GdiCanvas() {
    // Lets go of pen and font before they are destroyed.
    RestoreDC(context_, saved_);
}

void GdiCanvas::take(const Pen& pen) {
    if (pen_ == pen) {
        return;
    }
    PenHandle made(CreatePen(penStyle(pen), pen.width(), colorRef(pen.color)));
    SelectObject(context_, made.get());
    penHandle_ = std::move(made);
    pen_ = pen;
}

void GdiCanvas::line(const Pen& pen, PixelPoint from, PixelPoint to) {
    take(pen);
    MoveToEx(context_, from.x, from.y, nullptr);
    LineTo(context_, to.x, to.y);
}

void GdiCanvas::polyline(const Pen& pen, std::span<const PixelPoint> points) {
    take(pen);
    const auto list = systemPoints(points);
    Polyline(context_, list.data(), static_cast<int>(list.size()));
}

void GdiCanvas::bezier(const Pen& pen, std::span<const PixelPoint> points) {
    take(pen);
    const auto list = systemPoints(points);
    PolyBezier(context_, list.data(), static_cast<DWORD>(list.size()));
}

void GdiCanvas::shape(const ShapeFace& face) {
    // A frame drawn inside the box, whatever its width.
    const PenHandle border(CreatePen(PS_INSIDEFRAME, face.borderWidth, colorRef(face.borderColor)));
    BrushHandle fill;
    if (face.fill) {
        fill.reset(CreateSolidBrush(colorRef(*face.fill)));
    }
    const Selected pen(context_, border.get());
    const Selected brush(context_, fill ? fill.get() : GetStockObject(NULL_BRUSH));
    const PixelRect& box = face.box;
    switch (face.kind) {
        case ShapeKind::rectangle:
            Rectangle(context_, box.left, box.top, box.right, box.bottom);
            break;
        case ShapeKind::roundedRectangle: {
            const int corner = std::min(box.width(), box.height()) / 2;
            RoundRect(context_, box.left, box.top, box.right, box.bottom, corner, corner);
            break;
        }
        case ShapeKind::oval:
            Ellipse(context_, box.left, box.top, box.right, box.bottom);
            break;
    }
}

void GdiCanvas::text(const PixelRect& box, const TextFace& face) {
    const Selected font(context_, fonts_.font(face.size));
    SetTextColor(context_, colorRef(face.color));
    RECT area{box.left, box.top, box.right, box.bottom};
    DrawTextW(context_, wide(face.text).c_str(), -1, &area,
              textFormat | alignmentFormat(face.alignment));
}

}  // namespace ormala
