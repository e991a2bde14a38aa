#pragma once

#include "support/FakeToolHost.h"
#include "support/RasterCanvas.h"

namespace ormala {

/// Compares what a tool reports to its sheet as changed with what has changed.
class RepaintWatch {
  public:
    /// The tool lies on a sheet of that size.
    RepaintWatch(const OverlayItem& tool, FakeToolHost& host, PixelSize sheet);

    /// Pixels that differ since the last call and were not reported.
    int missed();
    /// Painted pixels beyond the footprint.
    [[nodiscard]] int beyondFootprint() const;

  private:
    [[nodiscard]] RasterCanvas picture() const;

    const OverlayItem& tool_;
    FakeToolHost& host_;
    PixelSize sheet_;
    RasterCanvas before_;
};

}  // namespace ormala
