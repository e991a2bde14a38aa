#include <algorithm>
#include <array>
#include <cstdlib>
#include <cstring>

#include "fuzz/Require.h"
#include "fuzz/Targets.h"
#include "storage/WindowPlacement.h"
#include "support/MemoryINIFile.h"

namespace ormala {

namespace {

using Numbers = std::array<std::int32_t, 12>;

Numbers numbersOf(const std::uint8_t* data, std::size_t size) {
    Numbers numbers{};
    if (size > 0) {
        std::memcpy(numbers.data(), data, std::min(size, sizeof numbers));
    }
    return numbers;
}

/// A screen that there may be, whatever the numbers.
PixelRect screenOf(std::int32_t left, std::int32_t top, std::int32_t width, std::int32_t height) {
    constexpr int farthest = 10000;
    constexpr int smallest = 320;
    constexpr int largest = 8000;
    const int x = left % farthest;
    const int y = top % farthest;
    return {x, y, x + smallest + std::abs(width % largest),
            y + smallest + std::abs(height % largest)};
}

bool isInside(const PixelRect& rect, const PixelRect& bounds) {
    return rect.left >= bounds.left && rect.top >= bounds.top && rect.right <= bounds.right &&
           rect.bottom <= bounds.bottom;
}

}  // namespace

void fuzzWindowPlacement(const std::uint8_t* data, std::size_t size) {
    const Numbers n = numbersOf(data, size);
    const PixelRect rect{n[0], n[1], n[2], n[3]};
    ScreenAreas screens;
    screens.workArea = screenOf(n[4], n[5], n[6], n[7]);
    screens.virtualScreen = screens.workArea.united(screenOf(n[8], n[9], n[10], n[11]));

    const PixelRect kept = keptOnScreens(rect, screens);
    if (rect.left <= rect.right && rect.top <= rect.bottom) {
        require(isInside(kept, screens.virtualScreen), "a window comes back onto the screens");
        require(kept.right - kept.left <= std::int64_t{rect.right} - rect.left,
                "no window comes back wider");
        require(kept.bottom - kept.top <= std::int64_t{rect.bottom} - rect.top,
                "no window comes back higher");
        const PixelRect again = keptOnScreens(kept, screens);
        require(keptOnScreens(again, screens) == again, "a window comes to rest");
    }

    MemoryINIFile ini;
    storePlacement(ini.file, "frmLens", {n[0] % 4, rect});
    const RestoredPlacement restored =
        restoredPlacement(ini.file, "frmLens", false, {1, {0, 0, 10, 10}}, Sizable::both, screens);
    require(restored.rect == kept, "a stored place comes back onto the same screens");
    require(restored.maximise == (n[0] % 4 == 3), "a stored state comes back");
}

}  // namespace ormala
