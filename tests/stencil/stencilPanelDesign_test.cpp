#include "stencil/stencilPanelDesign.h"

#include <algorithm>

#include "support/ManualLanguage.h"
#include "support/PanelDesignCheck.h"

namespace ormala {
namespace {

bool has(const std::string& name) {
    return std::ranges::any_of(stencilPanelDesign().controls, [&](const PanelControl& control) {
        return control.fullName() == name;
    });
}

TEST(StencilPanelDesign, ControlsHavePlacesOfTheirOwn) {
    const ManualLanguage language(languageEnglish);
    test::expectSoundDesign(stencilPanelDesign());
    test::expectNoOverlap(stencilPanelDesign());
    test::expectButtonsExplainThemselves(stencilPanelDesign());
}

TEST(StencilPanelDesign, EveryControlThatIsSpokenToIsThereOnce) {
    test::expectIdsOfTheirOwn(stencilPanelDesign(), StencilControl::cmdColor);
}

TEST(StencilPanelDesign, NoneOfTheStepsIsMissing) {
    for (int i = 0; i < 18; ++i) {
        EXPECT_TRUE(has("cmdMove(" + std::to_string(i) + ")")) << i;
    }
    EXPECT_TRUE(has("cmdAngle(0)"));
    EXPECT_TRUE(has("cmdAngle(1)"));
}

TEST(StencilPanelDesign, IsNotHigherThanThePanelsMayBe) {
    EXPECT_LE(stencilPanelDesign().size.height, 190);
    EXPECT_EQ(stencilPanelDesign().size.width, panelWidth);
}

}  // namespace
}  // namespace ormala
