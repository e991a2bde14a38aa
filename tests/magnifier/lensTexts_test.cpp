#include "magnifier/lensTexts.h"

#include <gtest/gtest.h>

#include "language/MlStringModule.h"

namespace ormala {
namespace {

TEST(LensTexts, CaptionNamesTheFactorInBothLanguages) {
    MlSetLanguage(languageEnglish, {});
    EXPECT_EQ(lensCaption(4, false), "Magnifier 4 X");
    EXPECT_EQ(lensCaption(10, false), "Magnifier 10 X");
    MlSetLanguage(languageGerman, {});
    EXPECT_EQ(lensCaption(4, false), "Lupe 4 X");
    MlSetLanguage(languageEnglish, {});
}

TEST(LensTexts, CaptionIsEmptyWhileTheWindowFollowsTheMouse) {
    MlSetLanguage(languageEnglish, {});
    EXPECT_EQ(lensCaption(4, true), "");
    EXPECT_EQ(lensTitle(4), "Magnifier 4 X");
}

}  // namespace
}  // namespace ormala
