#include "support/RepaintWatch.h"

#include <utility>

namespace ormala {

RepaintWatch::RepaintWatch(const OverlayItem& tool, FakeToolHost& host, PixelSize sheet)
    : tool_(tool), host_(host), sheet_(sheet), before_(picture()) {
    host_.forget();
}

int RepaintWatch::missed() {
    RasterCanvas now = picture();
    int count = 0;
    for (int y = 0; y < sheet_.height; ++y) {
        for (int x = 0; x < sheet_.width; ++x) {
            const bool differs = now.at(x, y) != before_.at(x, y);
            count += differs && !host_.repainted.meets({x, y, x + 1, y + 1}) ? 1 : 0;
        }
    }
    before_ = std::move(now);
    host_.forget();
    return count;
}

int RepaintWatch::beyondFootprint() const {
    return picture().paintedOutside(tool_.footprint());
}

RasterCanvas RepaintWatch::picture() const {
    RasterCanvas canvas(sheet_);
    tool_.draw(canvas);
    return canvas;
}

}  // namespace ormala
