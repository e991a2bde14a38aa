#include "support/win/Screen.h"

#include <windows.h>

#include <algorithm>
#include <chrono>
#include <cstddef>
#include <cstdint>
#include <memory>
#include <stdexcept>
#include <type_traits>
#include <utility>
#include <vector>

namespace ormala::test::screen {

namespace {

struct ReleaseScreen {
    void operator()(HDC context) const { ReleaseDC(nullptr, context); }
};
struct DeleteContext {
    void operator()(HDC context) const { DeleteDC(context); }
};
struct DeleteBitmap {
    void operator()(HBITMAP bitmap) const { DeleteObject(bitmap); }
};
using ScreenContext = std::unique_ptr<std::remove_pointer_t<HDC>, ReleaseScreen>;
using MemoryContext = std::unique_ptr<std::remove_pointer_t<HDC>, DeleteContext>;
using Bitmap = std::unique_ptr<std::remove_pointer_t<HBITMAP>, DeleteBitmap>;

BITMAPINFO topDown32Bit(const ScreenRect& rect) {
    BITMAPINFO info{};
    info.bmiHeader.biSize = sizeof(BITMAPINFOHEADER);
    info.bmiHeader.biWidth = rect.width();
    info.bmiHeader.biHeight = -rect.height();
    info.bmiHeader.biPlanes = 1;
    info.bmiHeader.biBitCount = 32;
    info.bmiHeader.biCompression = BI_RGB;
    return info;
}

/// A bitmap's 0x??RRGGBB as a colour.
constexpr Color colorFromBitmap(std::uint32_t value) {
    return ((value & 0xFFU) << 16U) | (value & 0xFF00U) | ((value >> 16U) & 0xFFU);
}

}  // namespace

void usePhysicalPixels() {
    if (SetProcessDpiAwarenessContext(DPI_AWARENESS_CONTEXT_PER_MONITOR_AWARE_V2) == 0) {
        SetProcessDPIAware();
    }
}

ScreenRect virtualScreen() {
    const int left = GetSystemMetrics(SM_XVIRTUALSCREEN);
    const int top = GetSystemMetrics(SM_YVIRTUALSCREEN);
    return {left, top, left + GetSystemMetrics(SM_CXVIRTUALSCREEN),
            top + GetSystemMetrics(SM_CYVIRTUALSCREEN)};
}

ScreenRect primaryMonitor() {
    return {0, 0, GetSystemMetrics(SM_CXSCREEN), GetSystemMetrics(SM_CYSCREEN)};
}

Picture capture(const ScreenRect& rect) {
    const ScreenContext from(GetDC(nullptr));
    const MemoryContext memory(CreateCompatibleDC(from.get()));
    const BITMAPINFO info = topDown32Bit(rect);
    void* bits = nullptr;
    const Bitmap bitmap(CreateDIBSection(from.get(), &info, DIB_RGB_COLORS, &bits, nullptr, 0));
    if (!from || !memory || !bitmap) {
        throw std::runtime_error("no bitmap for a capture of the screen");
    }
    const HGDIOBJ previous = SelectObject(memory.get(), bitmap.get());
    const BOOL copied = BitBlt(memory.get(), 0, 0, rect.width(), rect.height(), from.get(),
                               rect.left, rect.top, SRCCOPY | CAPTUREBLT);
    GdiFlush();
    SelectObject(memory.get(), previous);
    if (copied == 0) {
        throw std::runtime_error("the screen cannot be captured");
    }
    const auto* values = static_cast<const std::uint32_t*>(bits);
    const auto size =
        static_cast<std::size_t>(rect.width()) * static_cast<std::size_t>(rect.height());
    std::vector<Color> pixels(size);
    std::transform(values, values + size, pixels.begin(), colorFromBitmap);
    return {rect, std::move(pixels)};
}

Color pixel(ScreenPoint point) {
    return capture({point.x, point.y, point.x + 1, point.y + 1}).at(point);
}

Picture waitUntilStill(const ScreenRect& rect, milliseconds quiet, milliseconds deadline) {
    using Clock = std::chrono::steady_clock;
    // Often enough to see a movement; each look at the screen is work for the display.
    constexpr milliseconds interval{25};
    Picture last = capture(rect);
    auto changed = Clock::now();
    const auto end = changed + deadline;
    while (Clock::now() - changed < quiet) {
        if (Clock::now() >= end) {
            throw std::runtime_error("the screen does not come to rest");
        }
        pause(interval);
        Picture now = capture(rect);
        if (now != last) {
            last = std::move(now);
            changed = Clock::now();
        }
    }
    return last;
}

}  // namespace ormala::test::screen
