#include "measure/measurePanelDesign.h"

#include "support/ManualLanguage.h"
#include "support/PanelDesignCheck.h"

namespace ormala {
namespace {

TEST(MeasurePanelDesign, ControlsHavePlacesOfTheirOwn) {
    const ManualLanguage language(languageEnglish);
    test::expectSoundDesign(measurePanelDesign());
    test::expectNoOverlap(measurePanelDesign());
    test::expectButtonsExplainThemselves(measurePanelDesign());
}

TEST(MeasurePanelDesign, EveryControlThatIsSpokenToIsThereOnce) {
    test::expectIdsOfTheirOwn(measurePanelDesign(), MeasureControl::chkShowAngle);
}

TEST(MeasurePanelDesign, IsNotHigherThanThePanelsMayBe) {
    EXPECT_LE(measurePanelDesign().size.height, 150);
    EXPECT_EQ(measurePanelDesign().size.width, panelWidth);
}

}  // namespace
}  // namespace ormala
