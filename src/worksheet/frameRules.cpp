#include "worksheet/frameRules.h"

#include <utility>

#include "modAPI/constants.h"
#include "modAPI/rounding.h"

namespace ormala {

namespace {

constexpr int margin = 5;
/// At 96 DPI.
constexpr PixelSize leastSize{200, 124};

}  // namespace

PixelRect defaultFramePlace(PixelSize screen) {
    const int left = RoundToInt((1 - G) * screen.width / 2);
    const int top = RoundToInt((1 - G) * screen.height / 2);
    return {left, top, left + RoundToInt(G * screen.width), top + RoundToInt(G * screen.height)};
}

PixelRect worksheetInFrame(PixelSize client) {
    return {margin, margin, client.width - margin, client.height - margin};
}

PixelRect fullScreenPlace(const PixelRect& monitor, const PixelRect& free, const HiddenBars& bars) {
    const auto pixelAt = [](bool bar) { return bar ? 1 : 0; };
    const PixelRect open{monitor.left + pixelAt(bars.left), monitor.top + pixelAt(bars.top),
                         monitor.right - pixelAt(bars.right),
                         monitor.bottom - pixelAt(bars.bottom)};
    PixelRect place = free.intersected(open);
    if (place == monitor) {
        place.bottom -= 1;
    }
    return place;
}

PixelSize leastFrameSize(int dpi) {
    return {RoundToInt(leastSize.width * dpi / 96.0), RoundToInt(leastSize.height * dpi / 96.0)};
}

bool FrameSizeMemory::changedTo(PixelSize outer) {
    return std::exchange(last_, outer) != outer;
}

HoleKeeper::Step HoleKeeper::next(const PixelRect& actual, const PixelRect& hole) {
    constexpr int triesAtOnce = 8;
    constexpr int mostTries = 20;
    if (std::exchange(hole_, hole) != hole || actual == hole) {
        tries_ = 0;
    }
    if (actual == hole || tries_ >= mostTries) {
        return Step::rest;
    }
    return ++tries_ <= triesAtOnce ? Step::putNow : Step::putLater;
}

}  // namespace ormala
