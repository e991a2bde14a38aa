#include "app/WindowPart.h"

#include <gtest/gtest.h>

#include <array>
#include <string>
#include <vector>

namespace ormala {
namespace {

/// Four parts, by their numbers from 0; the keyboard is nowhere at first.
class PassKeyboardOn : public testing::Test {
  protected:
    PassKeyboardOn() {
        for (int i = 0; i < 4; ++i) {
            parts_.push_back({[this, i] { return there_.at(static_cast<std::size_t>(i)); },
                              [this, i] { return keyboard_ == i; }, [this, i] { keyboard_ = i; }});
        }
    }
    /// Where it goes in so many steps.
    std::string walk(int steps, bool back) {
        std::string way;
        for (int i = 0; i < steps; ++i) {
            passKeyboardOn(parts_, back);
            way += std::to_string(keyboard_);
        }
        return way;
    }

    std::vector<WindowPart> parts_;
    std::array<bool, 4> there_{true, true, true, true};
    int keyboard_ = -1;
};

TEST_F(PassKeyboardOn, GoesRoundAndBack) {
    keyboard_ = 0;
    EXPECT_EQ(walk(5, false), "12301");
    EXPECT_EQ(walk(5, true), "03210");
}

TEST_F(PassKeyboardOn, LeavesOutWhatIsNotThere) {
    keyboard_ = 0;
    there_ = {true, false, true, false};
    EXPECT_EQ(walk(3, false), "202");
    EXPECT_EQ(walk(3, true), "020");
}

TEST_F(PassKeyboardOn, FromNowhereGoesToTheFirstOrTheLast) {
    EXPECT_EQ(walk(1, false), "0");
    keyboard_ = -1;
    EXPECT_EQ(walk(1, true), "3");
}

TEST_F(PassKeyboardOn, StaysWhereNoOtherPartIsThere) {
    keyboard_ = 2;
    there_ = {false, false, true, false};
    EXPECT_EQ(walk(2, false), "22");
    there_ = {false, false, false, false};
    keyboard_ = -1;
    passKeyboardOn(parts_, false);
    EXPECT_EQ(keyboard_, -1);
}

}  // namespace
}  // namespace ormala
