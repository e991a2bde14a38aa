#include "widgets/lookColors.h"

#include <gtest/gtest.h>

#include <vector>

namespace ormala {
namespace {

/// A text or a mark on what lies behind it.
struct Pair {
    const char* what;
    Color text;
    Color ground;
};

/// As the system names its pairs: no other two need to stand out from each other.
bool belongTogether(ColorRole text, ColorRole ground) {
    switch (ground) {
        case ColorRole::window:
            return text == ColorRole::windowText || text == ColorRole::grayText ||
                   text == ColorRole::hotlight || text == ColorRole::highlight;
        case ColorRole::buttonFace:
            return text == ColorRole::buttonText || text == ColorRole::grayText;
        case ColorRole::highlight:
            return text == ColorRole::highlightText;
        default:
            return false;
    }
}

TEST(LookColors, GiveEachTextTheRoleThatBelongsToItsGround) {
    const std::vector<Pair> pairs{
        {"text", dark::text, dark::ground},
        {"heading", dark::quietText, dark::ground},
        {"value of the selected panel", dark::text, dark::selectedGround},
        {"disabled text", dark::dimText, dark::ground},
        {"field", dark::text, dark::fieldGround},
        {"disabled field", dark::dimText, dark::dimField},
        {"about box", dark::quietText, dark::liftedGround},
        {"link", dark::link, dark::liftedGround},
        {"chosen row", dark::onText, dark::on},
        {"chosen turn", dark::chosenRowText, dark::on},
        {"disabled list", dark::dimMark, dark::fieldGround},
        {"arrow of a scroll bar", dark::offMark, dark::off},
        {"ribs of a thumb", dark::offRibs, dark::pressed},
        {"disabled arrow", dark::dimGlyph, dark::ground},
        {"outline", dark::outline, dark::ground},
        {"disabled outline", dark::dimOutline, dark::ground},
        {"focus", dark::focusMark, dark::ground},
        {"path line", dark::quietText, dark::litPathLine},
    };
    for (const Pair& pair : pairs) {
        ASSERT_TRUE(roleOf(pair.text) && roleOf(pair.ground)) << pair.what;
        EXPECT_TRUE(belongTogether(*roleOf(pair.text), *roleOf(pair.ground))) << pair.what;
    }
}

TEST(LookColors, GiveEachGroundATextOfItsOwn) {
    for (const ColorRole ground :
         {ColorRole::window, ColorRole::buttonFace, ColorRole::highlight}) {
        EXPECT_TRUE(belongTogether(textRoleOn(ground), ground));
    }
}

TEST(LookColors, TellOnFromOffAndTheSelectedPanelFromTheOthersByTheirRoles) {
    EXPECT_NE(roleOf(dark::on), roleOf(dark::off));
    EXPECT_NE(roleOf(dialogCaption.face), roleOf(dialogCaptionOn.face));
    EXPECT_NE(roleOf(dark::selectedTitle), roleOf(dark::titleEnd));
    EXPECT_NE(roleOf(dark::text), roleOf(dark::dimText));
    // No shadow behind a title.
    EXPECT_EQ(roleOf(dark::textShadow), roleOf(dark::liftedGround));
}

}  // namespace
}  // namespace ormala
