#pragma once

#include <array>
#include <span>

namespace ormala {

// What the options of each group of the options dialog stand for, by their index in the group.

inline constexpr std::array languageChoices{9, 1031};
/// Dots and lines.
inline constexpr std::array gridStyleChoices{1, 2};
inline constexpr std::array hotSpotStyleChoices{0, 1, 2, 3, 4, 5, 6, 7};
/// Inverted, restrained, colour.
inline constexpr std::array drawModeChoices{6, 9, 13};
/// Worksheet, magnifier, primary screen, all screens.
inline constexpr std::array originChoices{0, 1, 2, 3};

/// No option of a group.
constexpr int noOption = -1;

/// The option that stands for a value, or `noOption` if none does.
int optionFor(int value, std::span<const int> choices);

/// The ends of a slider.
struct SliderRange {
    int first;
    int last;
};

/// In pixels. An offset from the size on would repeat what a smaller one does.
inline constexpr SliderRange gridSizeRange{1, 300};
inline constexpr SliderRange gridOffsetRange{0, 300};
inline constexpr SliderRange magnificationRange{1, 10};

/// What a slider between two whole numbers stands for.
int wholeValue(float sliderValue);

constexpr int optionPageCount = 3;
/// The page to open; one that there is not, such as -1, leaves the last one.
int pageToOpen(int wanted, int last);

/// Two lengths that the user may set together. They belong to another object, which must live
/// longer.
class CoupledValues {
  public:
    CoupledValues(int& x, int& y) : x_(x), y_(y) {}

    [[nodiscard]] int x() const { return x_; }
    [[nodiscard]] int y() const { return y_; }
    [[nodiscard]] bool coupled() const { return coupled_; }
    /// At first those are coupled that are equal.
    void begin() { coupled_ = x_ == y_; }
    /// From then on both are what x is; without coupling both stay.
    void couple(bool coupled);
    void setX(int value);
    void setY(int value);

  private:
    int& x_;
    int& y_;
    bool coupled_ = false;
};

}  // namespace ormala
