#include "dialogs/optionsLayout.h"

#include <gtest/gtest.h>

#include <set>
#include <string>

#include "dialogs/optionChoices.h"

namespace ormala {
namespace {

bool isFrame(const ControlPlace& place) {
    return place.name.starts_with("fra");
}

bool isInside(const PixelRect& box, const PixelRect& outer) {
    return outer.left <= box.left && outer.top <= box.top && box.right <= outer.right &&
           box.bottom <= outer.bottom;
}

class OptionsLayoutTest : public testing::TestWithParam<int> {
  protected:
    std::span<const ControlPlace> places_ = optionPagePlaces(GetParam());
};

TEST_P(OptionsLayoutTest, KeepsEveryControlOnThePage) {
    const PixelRect page{0, 0, optionPageSize.width, optionPageSize.height};
    for (const ControlPlace& place : places_) {
        EXPECT_TRUE(isInside(place.box, page.grown(-8))) << place.name;
        EXPECT_FALSE(place.box.empty()) << place.name;
    }
}

TEST_P(OptionsLayoutTest, LaysNoControlOverAnother) {
    for (const ControlPlace& one : places_) {
        for (const ControlPlace& other : places_) {
            const bool framed = isFrame(one) != isFrame(other);
            if (one.name != other.name && !framed) {
                EXPECT_FALSE(one.box.grown(1).meets(other.box)) << one.name << ", " << other.name;
            }
        }
    }
}

TEST_P(OptionsLayoutTest, CutsNoControlByAFrame) {
    for (const ControlPlace& frame : places_) {
        for (const ControlPlace& place : places_) {
            if (isFrame(frame) && !isFrame(place) && frame.box.meets(place.box)) {
                EXPECT_TRUE(isInside(place.box, frame.box.grown(-8))) << place.name;
            }
        }
    }
}

TEST_P(OptionsLayoutTest, NamesEveryControlOnce) {
    std::set<std::string_view> names;
    for (const ControlPlace& place : places_) {
        EXPECT_TRUE(names.insert(place.name).second) << place.name;
    }
}

INSTANTIATE_TEST_SUITE_P(Pages, OptionsLayoutTest, testing::Range(0, optionPageCount));

}  // namespace
}  // namespace ormala
