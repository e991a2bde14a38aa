#pragma once

#include <cstdint>

#include "base/Event.h"
#include "widgets/HeldTicks.h"
#include "widgets/scrollLayout.h"

namespace ormala {

/// What a scroll bar does with mouse, keys and time. Its upper or left arrow raises the value, so
/// that with a negative `Max` at the lower end the value can be the top of what is scrolled.
class ScrollModel {
  public:
    [[nodiscard]] bool Enabled() const { return enabled_; }
    /// A disabled bar takes no step; one that is under way ends.
    void setEnabled(bool enabled);
    [[nodiscard]] int Value() const { return range_.Value; }
    /// A value beyond an end becomes that end.
    void setValue(int value);
    [[nodiscard]] int SmallChange() const { return smallChange_; }
    void setSmallChange(int change) { smallChange_ = change; }
    [[nodiscard]] int LargeChange() const { return range_.LargeChange; }
    void setLargeChange(int change);
    /// The two ends, in either order. The value follows an end that passes it.
    [[nodiscard]] int Max() const { return range_.Max; }
    void setMax(int max);
    [[nodiscard]] int Min() const { return range_.Min; }
    void setMin(int min);
    [[nodiscard]] const ScrollRange& range() const { return range_; }

    /// In pixels of a screen of that resolution.
    void resize(PixelSize size, int dpi);
    [[nodiscard]] const ScrollLayout& layout() const { return layout_; }

    /// The left button goes down on a part, moves and comes up again. A press too short for the
    /// first repeat takes its one step when it is let go over its part.
    void press(ScrollPart part, PixelPoint point);
    void move(PixelPoint point);
    void release(PixelPoint point);
    /// The button is lost without a release.
    void cancel();
    [[nodiscard]] ScrollPart pressed() const { return pressed_; }

    /// One step; false for a key that means nothing on that part.
    bool keyDown(ScrollPart part, int key);
    /// What a press of that arrow stands for.
    void stepOnce(ScrollPart arrow);

    /// Whether something is held that repeats: then `tick` wants to be called each 40 ms.
    [[nodiscard]] bool wantsTicks() const { return step_ != 0; }
    void tick();

    /// The layout is a new one. Raised before `Change`; a handler must not destroy the bar.
    Event<> LayoutChange;
    /// The value really changed. Raised last: a handler may destroy the bar.
    Event<> Change;

  private:
    void place();
    void store(std::int64_t value);
    void takeStep(std::int64_t step);
    void takeHeldStep();
    [[nodiscard]] bool thumbReachedPoint() const;

    ScrollRange range_;
    int smallChange_ = 1;
    bool enabled_ = true;
    PixelSize size_;
    int dpi_ = 96;
    ScrollLayout layout_ = layoutScroll({}, 96, {});

    ScrollPart pressed_ = ScrollPart::none;
    std::int64_t step_ = 0;
    bool pageMode_ = false;
    bool stepped_ = false;
    HeldTicks heldTicks_;
    int point_ = 0;
    int grip_ = 0;
};

}  // namespace ormala
