#include "support/win/Screen.h"

#include <windows.h>

#include <algorithm>
#include <chrono>
#include <cstddef>
#include <cstdint>
#include <cstring>
#include <memory>
#include <span>
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

/// A part of the screen as it was when it was last taken, in the bitmap's own pixels: a screenful
/// is compared much faster than it is made a picture.
class ScreenCopy {
  public:
    explicit ScreenCopy(const ScreenRect& rect)
        : rect_(rect), from_(GetDC(nullptr)), memory_(CreateCompatibleDC(from_.get())) {
        const BITMAPINFO info = topDown32Bit(rect);
        void* bits = nullptr;
        bitmap_.reset(CreateDIBSection(from_.get(), &info, DIB_RGB_COLORS, &bits, nullptr, 0));
        if (!from_ || !memory_ || !bitmap_) {
            throw std::runtime_error("no bitmap for a capture of the screen");
        }
        const auto size =
            static_cast<std::size_t>(rect.width()) * static_cast<std::size_t>(rect.height());
        pixels_ = {static_cast<const std::uint32_t*>(bits), size};
    }

    void take() {
        const HGDIOBJ previous = SelectObject(memory_.get(), bitmap_.get());
        const BOOL copied = BitBlt(memory_.get(), 0, 0, rect_.width(), rect_.height(), from_.get(),
                                   rect_.left, rect_.top, SRCCOPY | CAPTUREBLT);
        GdiFlush();
        SelectObject(memory_.get(), previous);
        if (copied == 0) {
            throw std::runtime_error("the screen cannot be captured");
        }
    }

    [[nodiscard]] bool equals(const ScreenCopy& other) const {
        return std::memcmp(pixels_.data(), other.pixels_.data(), pixels_.size_bytes()) == 0;
    }

    [[nodiscard]] Picture picture() const {
        std::vector<Color> colors(pixels_.size());
        std::ranges::transform(pixels_, colors.begin(), colorFromBitmap);
        return {rect_, std::move(colors)};
    }

  private:
    ScreenRect rect_;
    ScreenContext from_;
    MemoryContext memory_;
    Bitmap bitmap_;
    std::span<const std::uint32_t> pixels_;
};

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
    ScreenCopy copy(rect);
    copy.take();
    return copy.picture();
}

Color pixel(ScreenPoint point) {
    const ScreenContext from(GetDC(nullptr));
    const COLORREF color = GetPixel(from.get(), point.x, point.y);
    if (color == CLR_INVALID) {
        throw std::runtime_error("a pixel of the screen cannot be read");
    }
    return color;
}

Picture waitUntilStill(const ScreenRect& rect, milliseconds quiet, milliseconds deadline) {
    using Clock = std::chrono::steady_clock;
    // Often enough to see a movement; each look at the screen is work for the display.
    const milliseconds interval = std::clamp(quiet / 2, milliseconds{25}, milliseconds{50});
    ScreenCopy last(rect);
    ScreenCopy now(rect);
    last.take();
    auto changed = Clock::now();
    const auto end = changed + deadline;
    while (Clock::now() - changed < quiet) {
        if (Clock::now() >= end) {
            throw std::runtime_error("the screen does not come to rest");
        }
        pause(interval);
        now.take();
        if (!now.equals(last)) {
            std::swap(now, last);
            changed = Clock::now();
        }
    }
    return last.picture();
}

}  // namespace ormala::test::screen
