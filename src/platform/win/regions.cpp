#include "platform/win/regions.h"

#include <algorithm>
#include <cstring>
#include <vector>

namespace ormala {

RegionHandle regionOf(std::span<const PixelRect> rects) {
    if (rects.empty()) {
        return RegionHandle(CreateRectRgn(0, 0, 0, 0));
    }
    PixelRect bounds;
    std::vector<RECT> list(rects.size());
    for (std::size_t i = 0; i < rects.size(); ++i) {
        bounds = bounds.united(rects[i]);
        list[i] = toRect(rects[i]);
    }
    RGNDATAHEADER header{};
    header.dwSize = sizeof header;
    header.iType = RDH_RECTANGLES;
    header.nCount = static_cast<DWORD>(list.size());
    header.nRgnSize = static_cast<DWORD>(list.size() * sizeof(RECT));
    header.rcBound = toRect(bounds);
    const std::size_t size = sizeof header + header.nRgnSize;
    std::vector<RGNDATA> data(size / sizeof(RGNDATA) + 1);
    std::memcpy(data.data(), &header, sizeof header);
    std::memcpy(data.front().Buffer, list.data(), header.nRgnSize);
    return RegionHandle(ExtCreateRegion(nullptr, static_cast<DWORD>(size), data.data()));
}

RegionHandle regionOf(const DirtyRegion& region) {
    if (region.dense()) {
        const PixelRect bounds = region.bounds();
        return regionOf({&bounds, 1});
    }
    return regionOf(region.rects());
}

std::vector<PixelRect> rectsOf(HRGN region) {
    const DWORD size = GetRegionData(region, 0, nullptr);
    std::vector<RGNDATA> data(size / sizeof(RGNDATA) + 1);
    std::vector<PixelRect> rects;
    if (size == 0 || GetRegionData(region, size, data.data()) == 0) {
        return rects;
    }
    rects.resize(data.front().rdh.nCount);
    // A rectangle is laid out as the system's.
    static_assert(sizeof(PixelRect) == sizeof(RECT));
    std::memcpy(rects.data(), data.front().Buffer, rects.size() * sizeof(RECT));
    return rects;
}

RegionHandle updateRegionOf(HWND window) {
    RegionHandle region(CreateRectRgn(0, 0, 0, 0));
    GetUpdateRgn(window, region.get(), FALSE);
    return region;
}

PixelRect boundsOf(HRGN region) {
    RECT box{};
    return GetRgnBox(region, &box) > NULLREGION ? fromRect(box) : PixelRect{};
}

PixelRect placeIn(HWND around, HWND window) {
    RECT place{};
    GetWindowRect(window, &place);
    MapWindowPoints(HWND_DESKTOP, around, reinterpret_cast<POINT*>(&place), 2);
    return fromRect(place);
}

RECT toRect(const PixelRect& rect) {
    return {rect.left, rect.top, rect.right, rect.bottom};
}

PixelRect fromRect(const RECT& rect) {
    return {static_cast<int>(rect.left), static_cast<int>(rect.top), static_cast<int>(rect.right),
            static_cast<int>(rect.bottom)};
}

PixelSize sizeOf(const RECT& rect) {
    return {static_cast<int>(rect.right - rect.left), static_cast<int>(rect.bottom - rect.top)};
}

}  // namespace ormala
