#include "worksheet/win/SheetPainter.h"

#include <algorithm>
#include <cstdint>
#include <utility>

#include "platform/win/pixels.h"
#include "platform/win/regions.h"

namespace ormala {

namespace {

/// In the order of a bitmap's bytes.
std::uint32_t bitmapPixel(COLORREF color) {
    return RGB(GetBValue(color), GetGValue(color), GetRValue(color));
}

void add(RegionHandle& all, HRGN region) {
    if (!all) {
        all.reset(CreateRectRgn(0, 0, 0, 0));
    }
    CombineRgn(all.get(), all.get(), region, RGN_OR);
}

}  // namespace

void SheetPainter::resize(PixelSize size) {
    if (buffered_ && size == size_) {
        return;
    }
    size_ = size;
    buffered_ = rest_.resize(size) && shown_.resize(size);
    makeGridRows();
    allChanged();
}

void SheetPainter::backgroundChanged() {
    makeGridRows();
    allChanged();
}

bool SheetPainter::RefreshGrid() {
    std::optional<BackgroundGrid> grid;
    if (GridRows::shows(aids_.grid())) {
        grid = aids_.grid();
    }
    if (grid == grid_) {
        return false;
    }
    grid_ = grid;
    makeGridRows();
    allChanged();
    return true;
}

void SheetPainter::makeGridRows() {
    gridRows_.reset();
    if (grid_) {
        gridRows_.emplace(*grid_, size_,
                          GridRows::Pixels{bitmapPixel(colorRef(aids_.background())),
                                           bitmapPixel(colorRef(grid_->color))});
    }
}

void SheetPainter::allChanged() {
    restDirty_.reset(CreateRectRgn(0, 0, size_.width, size_.height));
}

void SheetPainter::changed(HWND window, HRGN region, bool atRest) {
    if (atRest) {
        add(restDirty_, region);
    }
    if (step_) {
        add(*step_, region);
    } else {
        InvalidateRgn(window, region, FALSE);
    }
}

void SheetPainter::handStepOver(HWND window) {
    if (step_ && *step_) {
        const RegionHandle region = std::exchange(*step_, {});
        InvalidateRgn(window, region.get(), FALSE);
    }
}

void SheetPainter::showStep(HWND window, SheetLayers& layers) {
    if (!step_ || !*step_) {
        return;
    }
    if (!buffered_) {
        handStepOver(window);
        UpdateWindow(window);
        return;
    }
    const RegionHandle region = std::exchange(*step_, {});
    const PixelRect area = boundsOf(region.get());
    drawInBuffer(region.get(), area);
    if (layers.prepare(shown_)) {
        UpdateWindow(window);
        return;
    }
    const WindowContext context(window);
    const ClipScope clip(context.get(), region.get());
    layers.show(context.get(), shown_, area);
}

void SheetPainter::fill(HDC context, const PixelRect& area) const {
    const RECT rect = toRect(area);
    SetDCBrushColor(context, colorRef(aids_.background()));
    FillRect(context, &rect, static_cast<HBRUSH>(GetStockObject(DC_BRUSH)));
}

void SheetPainter::layGridInBuffer(HRGN region) const {
    const PixelView rest = rest_.view();
    const PixelRect all{0, 0, size_.width, size_.height};
    for (const PixelRect& rect : rectsOf(region)) {
        const PixelRect part = rect.intersected(all);
        for (int y = part.top; y < part.bottom; ++y) {
            const auto from = gridRows_->row(y).begin();
            std::copy(from + part.left, from + part.right, rest.row(y) + part.left);
        }
    }
}

void SheetPainter::layGrid(HDC context, const PixelRect& area) const {
    const PixelRect part = area.intersected({0, 0, size_.width, size_.height});
    for (int y = part.top; y < part.bottom; ++y) {
        copyRow(context, {part.left, y},
                gridRows_->row(y).subspan(static_cast<std::size_t>(part.left),
                                          static_cast<std::size_t>(part.width())));
    }
}

void SheetPainter::drawToolsAtRest(HDC context, const PixelRect& area) const {
    const OverlayItem* front = sheet_.front();
    GdiCanvas canvas(context, area, fonts_);
    for (const OverlayItem* item : sheet_.zOrder()) {
        if (item != front && sheet_.isVisible(*item) && item->footprint().meets(area)) {
            item->draw(canvas);
        }
    }
}

void SheetPainter::drawFront(HDC context, const PixelRect& area) const {
    GdiCanvas canvas(context, area, fonts_);
    const OverlayItem* front = sheet_.front();
    if (front != nullptr && front->footprint().meets(area)) {
        front->draw(canvas);
    }
    aids_.draw(canvas);
}

void SheetPainter::refreshRest() {
    if (!restDirty_) {
        return;
    }
    const RegionHandle dirty = std::move(restDirty_);
    const PixelRect area = boundsOf(dirty.get());
    if (gridRows_) {
        layGridInBuffer(dirty.get());
    }
    const ClipScope clip(rest_.context(), dirty.get());
    if (!gridRows_) {
        fill(rest_.context(), area);
    }
    drawToolsAtRest(rest_.context(), area);
}

void SheetPainter::drawInBuffer(HRGN region, const PixelRect& area) {
    refreshRest();
    {
        const ClipScope clip(shown_.context(), region);
        BitBlt(shown_.context(), area.left, area.top, area.width(), area.height(), rest_.context(),
               area.left, area.top, SRCCOPY);
    }
    // Unclipped: outside the region the tool's pixels are there already, and clipping each stroke
    // costs more than drawing it.
    drawFront(shown_.context(), area);
}

void SheetPainter::paintDirectly(HDC context, const PixelRect& area) const {
    if (gridRows_) {
        layGrid(context, area);
    } else {
        fill(context, area);
    }
    drawToolsAtRest(context, area);
    drawFront(context, area);
}

void SheetPainter::paint(HWND window, SheetLayers& layers) {
    handStepOver(window);
    const RegionHandle region = updateRegionOf(window);
    PixelRect area = boundsOf(region.get());
    if (buffered_ && !area.empty()) {
        drawInBuffer(region.get(), area);
    }
    if (layers.prepare(shown_)) {
        area = {0, 0, size_.width, size_.height};
    }
    const PaintScope scope(window);
    if (area.empty()) {
        return;
    }
    if (buffered_) {
        layers.show(scope.context(), shown_, area);
    } else {
        paintDirectly(scope.context(), area);
    }
}

}  // namespace ormala
