#include "worksheet/win/SheetPainter.h"

#include "platform/win/regions.h"

namespace ormala {

void SheetPainter::resize(PixelSize size) {
    if (buffered_ && size == rest_.size()) {
        return;
    }
    buffered_ = rest_.resize(size) && shown_.resize(size);
    allChanged();
}

void SheetPainter::setBackground(COLORREF color) {
    background_ = color;
    allChanged();
}

void SheetPainter::allChanged() {
    const PixelSize size = rest_.size();
    restDirty_.reset(CreateRectRgn(0, 0, size.width, size.height));
}

void SheetPainter::restChanged(HRGN region) {
    if (!restDirty_) {
        restDirty_.reset(CreateRectRgn(0, 0, 0, 0));
    }
    CombineRgn(restDirty_.get(), restDirty_.get(), region, RGN_OR);
}

void SheetPainter::fill(HDC context, const PixelRect& area) const {
    const RECT rect = toRect(area);
    SetDCBrushColor(context, background_);
    FillRect(context, &rect, static_cast<HBRUSH>(GetStockObject(DC_BRUSH)));
}

void SheetPainter::drawAtRest(HDC context, const PixelRect& area) const {
    fill(context, area);
    const OverlayItem* front = sheet_.front();
    GdiCanvas canvas(context, area, fonts_);
    for (const OverlayItem* item : sheet_.zOrder()) {
        if (item != front && sheet_.isVisible(*item) && item->footprint().meets(area)) {
            item->draw(canvas);
        }
    }
}

void SheetPainter::drawFront(HDC context, const PixelRect& area) const {
    const OverlayItem* front = sheet_.front();
    if (front != nullptr && front->footprint().meets(area)) {
        GdiCanvas canvas(context, area, fonts_);
        front->draw(canvas);
    }
}

void SheetPainter::refreshRest() {
    if (restDirty_) {
        const RegionHandle dirty = std::move(restDirty_);
        const ClipScope clip(rest_.context(), dirty.get());
        drawAtRest(rest_.context(), boundsOf(dirty.get()));
    }
}

void SheetPainter::paintThroughBuffer(HDC context, HRGN region, const PixelRect& area) {
    refreshRest();
    {
        const ClipScope clip(shown_.context(), region);
        BitBlt(shown_.context(), area.left, area.top, area.width(), area.height(), rest_.context(),
               area.left, area.top, SRCCOPY);
    }
    // Unclipped: outside the region the tool's pixels are there already, and clipping each stroke
    // costs more than drawing it.
    drawFront(shown_.context(), area);
    BitBlt(context, area.left, area.top, area.width(), area.height(), shown_.context(), area.left,
           area.top, SRCCOPY);
}

void SheetPainter::paint(HWND window) {
    const RegionHandle region = updateRegionOf(window);
    const PaintScope scope(window);
    const PixelRect area = boundsOf(region.get());
    if (area.empty()) {
        return;
    }
    if (buffered_) {
        paintThroughBuffer(scope.context(), region.get(), area);
    } else {
        drawAtRest(scope.context(), area);
        drawFront(scope.context(), area);
    }
}

}  // namespace ormala
