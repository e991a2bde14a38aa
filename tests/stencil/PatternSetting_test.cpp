#include "stencil/PatternSetting.h"

#include <gtest/gtest.h>

namespace ormala {
namespace {

TEST(PatternSetting, StartsWithoutPattern) {
    const PatternSetting setting;
    EXPECT_EQ(setting.Pattern, -1);
    EXPECT_EQ(setting.PreRotation, 0);
}

TEST(PatternSetting, CopiesBothMembers) {
    PatternSetting setting;
    setting.CopyFrom({7, 1.5});
    EXPECT_EQ(setting.Pattern, 7);
    EXPECT_EQ(setting.PreRotation, 1.5);
}

TEST(PatternSetting, EqualsOnlyWithBothMembersExactlyEqual) {
    const PatternSetting setting = {7, 1.5};
    EXPECT_TRUE(setting.Equals({7, 1.5}));
    EXPECT_FALSE(setting.Equals({8, 1.5}));
    EXPECT_FALSE(setting.Equals({7, 1.5000000000000002}));
}

}  // namespace
}  // namespace ormala
