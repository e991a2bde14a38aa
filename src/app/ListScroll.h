#pragma once

#include <vector>

namespace ormala {

/// The scroll position of the list of panels. Its value is the top of the list's content, 0 or
/// negative, in pixels.
class ListScroll {
  public:
    /// Of the content and of the part of it that shows.
    void setHeights(int content, int inside);
    void setSmallChange(int pixels) { smallChange_ = pixels; }

    [[nodiscard]] bool enabled() const { return enabled_; }
    [[nodiscard]] int Value() const { return value_; }
    [[nodiscard]] int Max() const { return max_; }
    [[nodiscard]] double LargeChange() const { return largeChange_; }

    /// The user has moved the scroll bar.
    void setValue(int value);

    /// Brings a panel of the content into view, its head if not all of it.
    void EnsurePanelVisible(int panelTop, int panelHeight);

    /// The positions that one notch of the wheel glides through, in eight steps at most.
    std::vector<int> Scroll(bool Down);

  private:
    bool enabled_ = false;
    int value_ = 0;
    int max_ = 0;
    int inside_ = 0;
    int smallChange_ = 1;
    double largeChange_ = 0;
};

}  // namespace ormala
