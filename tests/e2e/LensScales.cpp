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

testing::AssertionResult LensScales::columnsAre(std::string_view scale, int first) const {
    return ticksAre(first, [&] {
        const ScreenRect image = lens_.part("picLens").rect();
        const ScreenRect strip = lens_.part(scale).rect();
        const bool above = strip.bottom <= image.top;
        const Picture seen = screen::capture(strip);
        std::vector<int> lengths;
        if (hasMoved(image, scale, strip)) {
            return lengths;
        }
        for (int i = 0; i < compared(image.width()); ++i) {
            const ScreenPoint start{image.left + i * factor_ + middle(),
                                    above ? strip.bottom - 1 : strip.top};
            lengths.push_back(run(seen, start, {0, above ? -1 : 1}));
        }
        return lengths;
    });
}

testing::AssertionResult LensScales::rowsAre(std::string_view scale, int first) const {
    return ticksAre(first, [&] {
        const ScreenRect image = lens_.part("picLens").rect();
        const ScreenRect strip = lens_.part(scale).rect();
        const bool before = strip.right <= image.left;
        const Picture seen = screen::capture(strip);
        std::vector<int> lengths;
        if (hasMoved(image, scale, strip)) {
            return lengths;
        }
        for (int i = 0; i < compared(image.height()); ++i) {
            const ScreenPoint start{before ? strip.right - 1 : strip.left,
                                    image.top + i * factor_ + middle()};
            lengths.push_back(run(seen, start, {before ? -1 : 1, 0}));
        }
        return lengths;
    });
}

testing::AssertionResult LensScales::ticksAre(int first,
                                              const std::function<std::vector<int>()>& seen) const {
    std::vector<int> lengths;
    std::size_t wrong = 0;
    const bool equal = waitUntil([&] {
        lengths = seen();
        wrong = 0;
        while (wrong < lengths.size() &&
               lengths[wrong] == length(first + static_cast<int>(wrong))) {
            ++wrong;
        }
        return !lengths.empty() && wrong == lengths.size();
    });
    if (equal) {
        return testing::AssertionSuccess();
    }
    if (lengths.empty()) {
        return testing::AssertionFailure() << "there are no ticks";
    }
    const int value = first + static_cast<int>(wrong);
    return testing::AssertionFailure()
           << "the tick of " << value << " is " << lengths[wrong] << " long, not " << length(value);
}

bool LensScales::hasMoved(const ScreenRect& image, std::string_view scale,
                          const ScreenRect& strip) const {
    return lens_.part("picLens").rect() != image || lens_.part(scale).rect() != strip;
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
