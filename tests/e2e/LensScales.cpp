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
    return ticksAre(first, [&] { return lengthsOn(scale, true); });
}

testing::AssertionResult LensScales::rowsAre(std::string_view scale, int first) const {
    return ticksAre(first, [&] { return lengthsOn(scale, false); });
}

std::vector<int> LensScales::lengthsOn(std::string_view scale, bool across) const {
    const ScreenRect image = lens_.part("picLens").rect();
    const ScreenRect strip = lens_.part(scale).rect();
    const Picture seen = screen::capture(strip);
    std::vector<int> lengths;
    if (hasMoved(image, scale, strip)) {
        return lengths;
    }
    const bool before = across ? strip.bottom <= image.top : strip.right <= image.left;
    const int away = before ? -1 : 1;
    for (int i = 0; i < compared(across ? image.width() : image.height()); ++i) {
        const int along = i * factor_ + middle();
        const ScreenPoint start =
            across ? ScreenPoint{image.left + along, before ? strip.bottom - 1 : strip.top}
                   : ScreenPoint{before ? strip.right - 1 : strip.left, image.top + along};
        lengths.push_back(run(seen, start, across ? ScreenPoint{0, away} : ScreenPoint{away, 0}));
    }
    return lengths;
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
