#include "measure/MeasureAids.h"

#include <gtest/gtest.h>

#include "support/FakeTextMeter.h"
#include "support/RecordingCanvas.h"

namespace ormala {
namespace {

using Kind = RecordingCanvas::Kind;

constexpr PixelSize sheet{1000, 800};
constexpr MeasureState atPress{false, {100, 100, 300, 100}, {100, 300, 300, 500}};
constexpr MeasureState later{false, {150, 110, 350, 110}, {120, 300, 320, 500}};

MeasureAids aidsOf(MeasureGrip grip, bool line = true) {
    MeasureAids aids;
    aids.begin(grip, rgb(1, 2, 3), atPress, line);
    aids.update(later, {600, 400}, sheet, FakeTextMeter());
    return aids;
}

TEST(MeasureAids, ReferenceLineRunsFromTheGripToItsPlaceAtThePress) {
    EXPECT_EQ(aidsOf(MeasureGrip::centerA).lineHelper(), (Line{250, 110, 200, 100}));
    EXPECT_EQ(aidsOf(MeasureGrip::centerB).lineHelper(), (Line{220, 400, 200, 400}));
    EXPECT_EQ(aidsOf(MeasureGrip::intersect).lineHelper(), (Line{350, 110, 300, 100}));
}

TEST(MeasureAids, EndGripHasNoReferenceLine) {
    for (const MeasureGrip end :
         {MeasureGrip::endA1, MeasureGrip::endA2, MeasureGrip::endB1, MeasureGrip::endB2}) {
        EXPECT_FALSE(aidsOf(end).lineHelper());
    }
}

TEST(MeasureAids, ReferenceLineOnlyWhereItIsWanted) {
    const MeasureAids aids = aidsOf(MeasureGrip::centerA, false);
    EXPECT_FALSE(aids.lineHelper());
    EXPECT_TRUE(aids.lblInfo().visible());
}

TEST(MeasureAids, ReferenceLineTakesTheColorOfTheGrip) {
    RecordingCanvas canvas;
    aidsOf(MeasureGrip::centerA).drawBelowGrips(canvas);
    ASSERT_EQ(canvas.count(Kind::line), 1);
    EXPECT_EQ(canvas.calls[0].pen, (Pen{rgb(1, 2, 3), 2}));
}

TEST(MeasureAids, ReadOutIsEmptyAtFirstAndStandsBesideTheGrip) {
    MeasureAids aids = aidsOf(MeasureGrip::endA1);
    EXPECT_EQ(aids.lblInfo().Caption(), "");
    aids.setText("abc", FakeTextMeter());
    aids.update(later, {600, 400}, sheet, FakeTextMeter());
    EXPECT_EQ(aids.lblInfo().box(), (PixelRect{566, 391, 588, 408}));
    RecordingCanvas canvas;
    aids.drawAboveGrips(canvas);
    EXPECT_EQ(canvas.count(Kind::text), 9);
}

TEST(MeasureAids, NothingIsShownBetweenDrags) {
    MeasureAids aids = aidsOf(MeasureGrip::centerA);
    aids.hide();
    RecordingCanvas canvas;
    aids.drawBelowGrips(canvas);
    aids.drawAboveGrips(canvas);
    EXPECT_TRUE(canvas.calls.empty());
    DirtyRegion region;
    aids.addTo(region, {0, 0, 1000, 800});
    EXPECT_TRUE(region.empty());
}

}  // namespace
}  // namespace ormala
