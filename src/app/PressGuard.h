#pragma once

#include <cstdint>
#include <cstdlib>

#include "modAPI/PixelRect.h"

namespace ormala {

/// Keeps a double click on what removes a panel from going on in the panel that moves under the
/// mouse: after the removal the panels take no press until the mouse has moved away or the time of
/// a double click is over.
class PressGuard {
  public:
    /// What the system takes for a double click.
    struct DoubleClick {
        /// Of the rectangle whose middle is the first click.
        PixelSize size;
        std::int32_t milliseconds = 0;
    };

    explicit PressGuard(const DoubleClick& limits) : limits_(limits) {}

    /// Times are those of the system's messages in milliseconds, which begin anew after 49 days.
    void removed(PixelPoint mouse, std::uint32_t time) {
        mouse_ = mouse;
        time_ = time;
        armed_ = true;
    }
    void mouseMoved(PixelPoint mouse) {
        armed_ = armed_ && 2 * std::abs(mouse.x - mouse_.x) <= limits_.size.width &&
                 2 * std::abs(mouse.y - mouse_.y) <= limits_.size.height;
    }
    /// A press may be older than the removal, if that has kept it waiting.
    [[nodiscard]] bool takesPress(PixelPoint mouse, std::uint32_t time) {
        mouseMoved(mouse);
        armed_ = armed_ && static_cast<std::int32_t>(time - time_) < limits_.milliseconds;
        return !armed_;
    }

  private:
    DoubleClick limits_;
    PixelPoint mouse_{};
    std::uint32_t time_ = 0;
    bool armed_ = false;
};

}  // namespace ormala
