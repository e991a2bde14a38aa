#include "magnifier/lensKeys.h"

#include <gtest/gtest.h>

#include "scene/Input.h"

namespace ormala {
namespace {

TEST(LensKeys, AskForMenuHelpOptionsAndModes) {
    EXPECT_EQ(lensKeyOf(93, 0), LensKey::menu);
    EXPECT_EQ(lensKeyOf(112, 0), LensKey::help);
    EXPECT_EQ(lensKeyOf(123, 0), LensKey::options);
    EXPECT_EQ(lensKeyOf(113, 0), LensKey::editMode);
    EXPECT_EQ(lensKeyOf(114, 0), LensKey::pauseMode);
    EXPECT_EQ(lensKeyOf(115, 0), LensKey::templateMode);
}

TEST(LensKeys, MinimiseOnlyWithShiftAlone) {
    constexpr int shiftAndCtrl = modifier::shift | modifier::ctrl;
    EXPECT_EQ(lensKeyOf(key::f3, modifier::shift), LensKey::pauseAndMinimise);
    EXPECT_EQ(lensKeyOf(key::f4, modifier::shift), LensKey::templateAndMinimise);
    EXPECT_EQ(lensKeyOf(key::f3, shiftAndCtrl), LensKey::pauseMode);
    EXPECT_EQ(lensKeyOf(key::f4, shiftAndCtrl), LensKey::templateMode);
    EXPECT_EQ(lensKeyOf(key::f2, modifier::shift), LensKey::editMode);
}

TEST(LensKeys, LeaveAllOthersToTheSystem) {
    EXPECT_EQ(lensKeyOf(key::f4, modifier::alt), LensKey::none);
    EXPECT_EQ(lensKeyOf(key::f4, modifier::alt | modifier::shift), LensKey::none);
    for (const int other : {key::tab, key::z, key::space, 116, 122, 0}) {
        EXPECT_EQ(lensKeyOf(other, 0), LensKey::none) << other;
    }
}

}  // namespace
}  // namespace ormala
