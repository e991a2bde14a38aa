#pragma once

#include <functional>

#include "support/FakeToolHost.h"
#include "support/RasterCanvas.h"

namespace ormala {

/// Compares what a tool reports to its sheet as changed with what has changed.
class RepaintWatch {
  public:
    /// The tool lies on a sheet of that size.
    RepaintWatch(const OverlayItem& tool, FakeToolHost& host, PixelSize sheet)
        : tool_(tool), host_(host), sheet_(sheet), before_(picture()) {
        host_.forget();
    }

    /// Pixels that differ since the last call and were not reported.
    int missed() {
        const RasterCanvas now = picture();
        const int count = pixelsWhere([&](int x, int y, const PixelRect& pixel) {
            return now.at(x, y) != before_.at(x, y) && !host_.repainted.meets(pixel);
        });
        before_ = now;
        host_.forget();
        return count;
    }

    /// Painted pixels beyond the footprint.
    int beyondFootprint() {
        const RasterCanvas now = picture();
        return pixelsWhere([&](int x, int y, const PixelRect& pixel) {
            return now.at(x, y) != RasterCanvas::empty && !tool_.footprint().meets(pixel);
        });
    }

  private:
    int pixelsWhere(const std::function<bool(int, int, const PixelRect&)>& wanted) const {
        int count = 0;
        for (int y = 0; y < sheet_.height; ++y) {
            for (int x = 0; x < sheet_.width; ++x) {
                count += wanted(x, y, {x, y, x + 1, y + 1}) ? 1 : 0;
            }
        }
        return count;
    }

    [[nodiscard]] RasterCanvas picture() const {
        RasterCanvas canvas(sheet_);
        tool_.draw(canvas);
        return canvas;
    }

    const OverlayItem& tool_;
    FakeToolHost& host_;
    PixelSize sheet_;
    RasterCanvas before_;
};

}  // namespace ormala
