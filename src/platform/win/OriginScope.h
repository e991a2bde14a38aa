#pragma once

#include <windows.h>

namespace ormala {

/// Moves the origin of a device context for the time of one drawing.
class OriginScope {
  public:
    OriginScope(HDC context, int x, int y) : context_(context) {
        OffsetViewportOrgEx(context, x, y, &former_);
    }
    OriginScope(const OriginScope&) = delete;
    OriginScope& operator=(const OriginScope&) = delete;
    ~OriginScope() {
        SetViewportOrgEx(context_, static_cast<int>(former_.x), static_cast<int>(former_.y),
                         nullptr);
    }

  private:
    HDC context_;
    POINT former_{};
};

}  // namespace ormala
