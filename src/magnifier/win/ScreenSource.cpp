#include "magnifier/win/ScreenSource.h"

#include "platform/win/fills.h"

namespace ormala {

void ScreenSource::reopen() {
    gaps_ = GetSystemMetrics(SM_CMONITORS) > 1;
    // Under Wine it counts from the corner of all monitors, which another one may move.
    screen_.reset(gaps_ ? nullptr : CreateDCW(L"DISPLAY", nullptr, nullptr, nullptr));
}

void ScreenSource::copyTo(const BackBuffer& buffer, PixelPoint source, const PixelRect& bounds,
                          Color ground) const {
    if (screen_) {
        copy(screen_.get(), buffer, source, bounds, ground);
    } else {
        const WindowContext screen(nullptr);
        copy(screen.get(), buffer, source, bounds, ground);
    }
}

void ScreenSource::copy(HDC screen, const BackBuffer& buffer, PixelPoint source,
                        const PixelRect& bounds, Color ground) const {
    const PixelSize size = buffer.size();
    const PixelRect area{source.x, source.y, source.x + size.width, source.y + size.height};
    const RECT whole{0, 0, size.width, size.height};
    if (area.intersected(bounds) != area || gaps_) {
        fillRect(buffer.context(), whole, ground);
    }
    // Without CAPTUREBLT, at which the system hides the pointer: that would flicker. A desktop that
    // is composed holds layered windows anyway.
    if (BitBlt(buffer.context(), 0, 0, size.width, size.height, screen, source.x, source.y,
               SRCCOPY) == FALSE) {
        // The screen is locked, and what it showed before is no news.
        fillRect(buffer.context(), whole, ground);
    }
}

}  // namespace ormala
