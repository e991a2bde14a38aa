#pragma once

#include "modAPI/PixelRect.h"

namespace ormala {

/// The offsets from the worksheet's centre at which new tools come up.
class ToolSizes {
  public:
    /// 24 pixels more than the last one, but no more than the smaller side of the worksheet by 2.3,
    /// where the series then stays.
    double NextToolSize(PixelSize worksheet);

  private:
    double last_ = 0;
};

}  // namespace ormala
