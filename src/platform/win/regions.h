#pragma once

#include <span>
#include <vector>

#include "modAPI/PixelRect.h"
#include "platform/win/handles.h"
#include "scene/DirtyRegion.h"

namespace ormala {

/// The union of the rectangles.
RegionHandle regionOf(std::span<const PixelRect> rects);
/// Its bounds, if that costs no more than its pieces.
RegionHandle regionOf(const DirtyRegion& region);

/// Disjoint rectangles that make up the region.
std::vector<PixelRect> rectsOf(HRGN region);

/// What the system wants the window to repaint.
RegionHandle updateRegionOf(HWND window);

PixelRect boundsOf(HRGN region);

/// Where a window lies, in pixels of the client area of another one.
PixelRect placeIn(HWND around, HWND window);

RECT toRect(const PixelRect& rect);
PixelRect fromRect(const RECT& rect);
PixelSize sizeOf(const RECT& rect);

/// Restricts drawing to a region for its lifetime.
class ClipScope {
  public:
    ClipScope(HDC context, HRGN region) : context_(context) { SelectClipRgn(context, region); }
    ClipScope(const ClipScope&) = delete;
    ClipScope& operator=(const ClipScope&) = delete;
    ~ClipScope() { SelectClipRgn(context_, nullptr); }

  private:
    HDC context_;
};

}  // namespace ormala
