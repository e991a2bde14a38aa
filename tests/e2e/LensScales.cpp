#include "e2e/LensScales.h"

namespace ormala::test {

namespace {

constexpr Color ink = 0x00E6FF;

int designedLength(int value, int factor) {
    if (value % 10 == 0) {
        return 6;
    }
    if (value % 5 == 0) {
        return 4;
    }
    return factor > 1 ? 3 : 0;
}

}  // namespace

void LensScales::expectColumns(std::string_view scale, int first) const {
    const ScreenRect image = lens_.part("picLens").rect();
    const ScreenRect strip = lens_.part(scale).rect();
    const bool above = strip.bottom <= image.top;
    const Picture seen = screen::capture(strip);
    for (int i = 0; i < compared(image.width()); ++i) {
        const ScreenPoint start{image.left + i * factor_ + middle(),
                                above ? strip.bottom - 1 : strip.top};
        EXPECT_EQ(run(seen, start, {0, above ? -1 : 1}), length(first + i))
            << scale << " at " << first + i;
    }
}

void LensScales::expectRows(std::string_view scale, int first) const {
    const ScreenRect image = lens_.part("picLens").rect();
    const ScreenRect strip = lens_.part(scale).rect();
    const bool before = strip.right <= image.left;
    const Picture seen = screen::capture(strip);
    for (int i = 0; i < compared(image.height()); ++i) {
        const ScreenPoint start{before ? strip.right - 1 : strip.left,
                                image.top + i * factor_ + middle()};
        EXPECT_EQ(run(seen, start, {before ? -1 : 1, 0}), length(first + i))
            << scale << " at " << first + i;
    }
}

int LensScales::middle() const {
    return (grid_ && factor_ > 1 ? factor_ / 2 : (factor_ + 1) / 2) - 1;
}

int LensScales::length(int value) const {
    const int designed = designedLength(value, factor_);
    const auto dpi = static_cast<int>(GetDpiForWindow(lens_.window().handle()));
    // One end of a tick's line is left out or lies outside.
    return designed == 0 ? 0 : MulDiv(designed, dpi, 96) - 1;
}

int LensScales::run(const Picture& picture, ScreenPoint from, ScreenPoint step) const {
    const int longest = length(0);
    int count = 0;
    while (count < longest && picture.at(from) == ink) {
        ++count;
        from = from + step;
    }
    return count;
}

}  // namespace ormala::test
