#include "toolkit/ctlLabel.h"

#include <gtest/gtest.h>

#include <limits>
#include <set>
#include <utility>

#include "support/FakeTextMeter.h"
#include "support/RecordingCanvas.h"

namespace ormala {
namespace {

constexpr PixelSize sheet{1000, 800};

ctlLabel labelWith(const std::string& caption) {
    ctlLabel label;
    label.setCaption(caption);
    label.setVisible(true);
    label.fit(FakeTextMeter());
    return label;
}

/// The label beside a grip at that point.
ctlLabel beside(const Point& point, const std::string& caption) {
    ctlLabel label = labelWith(caption);
    PlaceInfoLabel(label, point, sheet, FakeTextMeter());
    return label;
}

TEST(ctlLabel, EmptyCaptionHasATextWidthOfFour) {
    EXPECT_EQ(ctlLabel().TextWidth(FakeTextMeter()), 4);
}

TEST(ctlLabel, TextSizeIsTheCaptionAndTheHalo) {
    const ctlLabel label = labelWith("abcde\r\nab");
    EXPECT_EQ(label.TextWidth(FakeTextMeter()), 5 * 6 + 4);
    EXPECT_EQ(label.TextHeight(FakeTextMeter()), 2 * 13 + 4);
    EXPECT_EQ(label.box().width(), 34);
    EXPECT_EQ(label.box().height(), 30);
}

TEST(ctlLabel, TextStandsOnARingOfEightHaloCopies) {
    ctlLabel label = labelWith("abc");
    label.setForeColor(rgb(1, 2, 3));
    label.setBackColor(rgb(4, 5, 6));
    label.moveTo(100, 50);
    RecordingCanvas canvas;
    label.draw(canvas);
    ASSERT_EQ(canvas.calls.size(), 9U);
    const std::set<std::pair<int, int>> ring = {{2, 0}, {3, 0}, {4, 1}, {3, 2},
                                                {2, 2}, {1, 2}, {0, 1}, {1, 0}};
    std::set<std::pair<int, int>> drawn;
    for (std::size_t i = 0; i < 8; ++i) {
        EXPECT_EQ(canvas.calls[i].textColor, rgb(4, 5, 6));
        drawn.emplace(canvas.calls[i].box.left - 100, canvas.calls[i].box.top - 50);
    }
    EXPECT_EQ(drawn, ring);
    EXPECT_EQ(canvas.calls[8].textColor, rgb(1, 2, 3));
    EXPECT_EQ(canvas.calls[8].box, (PixelRect{102, 51, 102 + 18, 51 + 13}));
}

TEST(ctlLabel, HaloIsWhiteByDefault) {
    EXPECT_EQ(ctlLabel().BackColor(), rgb(255, 255, 255));
    EXPECT_EQ(ctlLabel().ForeColor(), rgb(0, 0, 0));
}

TEST(ctlLabel, DrawsOnlyWithinItsBox) {
    ctlLabel label = labelWith("abc");
    label.moveTo(10, 10);
    RecordingCanvas canvas;
    label.draw(canvas);
    for (const auto& call : canvas.calls) {
        EXPECT_EQ(label.box().united(call.box), label.box());
    }
}

TEST(ctlLabel, HiddenEmptyOrElsewhereDrawsNothing) {
    RecordingCanvas canvas;
    ctlLabel hidden = labelWith("abc");
    hidden.setVisible(false);
    hidden.draw(canvas);
    labelWith("").draw(canvas);
    ctlLabel outside = labelWith("abc");
    outside.moveTo(2000, 10);
    outside.draw(canvas);
    EXPECT_TRUE(canvas.calls.empty());
}

TEST(PlaceInfoLabel, StandsTwelvePixelsToTheLeftAndCentredOnThePoint) {
    const ctlLabel label = beside({300, 200}, "abc");  // 22 by 17
    EXPECT_EQ(label.box(), (PixelRect{266, 191, 288, 208}));
    EXPECT_EQ(label.Alignment(), Alignment::right);
}

TEST(PlaceInfoLabel, StandsFurtherAwayAtAHigherResolution) {
    for (const auto& [dpi, gap] : {std::pair{96, 12}, {144, 18}, {192, 24}}) {
        FakeTextMeter meter;
        meter.present = SheetScale(dpi);
        ctlLabel label = labelWith("abc");
        PlaceInfoLabel(label, {300, 200}, sheet, meter);
        EXPECT_EQ(label.box().right, 300 - gap);
        PlaceInfoLabel(label, {30, 200}, sheet, meter);
        EXPECT_EQ(label.box().left, 30 + gap);
    }
}

TEST(PlaceLabelByAnchor, StandsFurtherAwayAtAHigherResolution) {
    for (const auto& [dpi, gap] : {std::pair{96, 6}, {144, 9}, {192, 12}}) {
        FakeTextMeter meter;
        meter.present = SheetScale(dpi);
        ctlLabel label = labelWith("abc");
        PlaceLabelByAnchor(label, {300, 200}, Anchor::leftCentre, true, meter);
        EXPECT_EQ(label.box().left, 300 + gap);
        PlaceLabelByAnchor(label, {300, 200}, Anchor::leftCentre, false, meter);
        EXPECT_EQ(label.box().left, 300);
    }
}

TEST(PlaceInfoLabel, GoesToTheRightWhereTheTextWouldRunOffTheLeft) {
    const ctlLabel label = beside({33, 200}, "abc");
    EXPECT_EQ(label.box().left, 45);
    EXPECT_EQ(label.Alignment(), Alignment::left);
    EXPECT_EQ(beside({34, 200}, "abc").box().left, 0);
    EXPECT_EQ(beside({-100, 200}, "abc").box().left, 0);
}

TEST(PlaceInfoLabel, ComesBackFromTheLeftWhenThereIsRoomAgain) {
    ctlLabel label = beside({10, 200}, "abc");
    PlaceInfoLabel(label, {300, 200}, sheet, FakeTextMeter());
    EXPECT_EQ(label.Alignment(), Alignment::right);
    EXPECT_EQ(label.box().left, 266);
}

TEST(PlaceInfoLabel, StaysWithinTheArea) {
    EXPECT_EQ(beside({300, 5}, "abc").box().top, 0);
    EXPECT_EQ(beside({300, -900}, "abc").box().top, 0);
    EXPECT_EQ(beside({300, 799}, "abc").box().bottom, 800);
    EXPECT_EQ(beside({2000, 300}, "abc").box().right, 1000);
}

TEST(PlaceInfoLabel, FractionsGoDown) {
    EXPECT_EQ(beside({300.9, 200.9}, "abc").box().left, 266);
    EXPECT_EQ(beside({300.9, 200.9}, "abc").box().top, 192);
}

/// A label of 22 by 17 pixels at that point.
ctlLabel anchored(const Point& point, Anchor anchor, bool withGap) {
    ctlLabel label = labelWith("abc");
    PlaceLabelByAnchor(label, point, anchor, withGap, FakeTextMeter());
    return label;
}

TEST(PlaceLabelByAnchor, PutsTheAnchorOnThePoint) {
    const auto corner = [](Anchor anchor) {
        const PixelRect box = anchored({300, 200}, anchor, false).box();
        return PixelPoint{box.left, box.top};
    };
    EXPECT_EQ(corner(Anchor::centre), (PixelPoint{289, 191}));
    EXPECT_EQ(corner(Anchor::topCentre), (PixelPoint{289, 200}));
    EXPECT_EQ(corner(Anchor::bottomCentre), (PixelPoint{289, 184}));
    EXPECT_EQ(corner(Anchor::rightCentre), (PixelPoint{279, 191}));
    EXPECT_EQ(corner(Anchor::leftCentre), (PixelPoint{300, 191}));
    EXPECT_EQ(corner(Anchor::topRight), (PixelPoint{279, 200}));
    EXPECT_EQ(corner(Anchor::bottomRight), (PixelPoint{279, 184}));
    EXPECT_EQ(corner(Anchor::bottomLeft), (PixelPoint{300, 184}));
    EXPECT_EQ(corner(Anchor::topLeft), (PixelPoint{300, 200}));
}

TEST(PlaceLabelByAnchor, GapIsSixPixelsInEveryDirection) {
    EXPECT_EQ(anchored({300, 200}, Anchor::leftCentre, true).box().left, 306);
    EXPECT_EQ(anchored({300, 200}, Anchor::topLeft, true).box().left, 304);
    EXPECT_EQ(anchored({300, 200}, Anchor::topLeft, true).box().top, 204);
    EXPECT_EQ(anchored({300, 200}, Anchor::bottomRight, true).box().left, 274);
    EXPECT_EQ(anchored({300, 200}, Anchor::centre, true).box(),
              anchored({300, 200}, Anchor::centre, false).box());
}

TEST(PlaceLabelByAnchor, TextIsAlignedToThePoint) {
    for (const Anchor centred : {Anchor::centre, Anchor::topCentre, Anchor::bottomCentre}) {
        EXPECT_EQ(anchored({}, centred, false).Alignment(), Alignment::center);
    }
    for (const Anchor right : {Anchor::rightCentre, Anchor::topRight, Anchor::bottomRight}) {
        EXPECT_EQ(anchored({}, right, false).Alignment(), Alignment::right);
    }
    for (const Anchor left : {Anchor::leftCentre, Anchor::bottomLeft, Anchor::topLeft}) {
        EXPECT_EQ(anchored({}, left, false).Alignment(), Alignment::left);
    }
}

TEST(PlaceLabelByAnchor, TextAndNotTheLabelEndsAtABottomAnchor) {
    ctlLabel label = labelWith("abc\r\ndef");
    label.setCaption("abc");  // one line now, in a label of two
    PlaceLabelByAnchor(label, {300, 200}, Anchor::bottomLeft, false, FakeTextMeter());
    EXPECT_EQ(label.box().top + label.TextHeight(FakeTextMeter()), 201);
    PlaceLabelByAnchor(label, {300, 200}, Anchor::topLeft, false, FakeTextMeter());
    EXPECT_EQ(label.box().top, 200);
}

TEST(PlaceLabelByAnchor, AnyPlaceFitsIntoPixels) {
    constexpr double infinity = std::numeric_limits<double>::infinity();
    for (const double far : {1e9, -1e300, infinity, infinity - infinity}) {
        const PixelRect box = anchored({far, far}, Anchor::topLeft, true).box();
        EXPECT_EQ(box.width(), 22) << far;
        EXPECT_GE(box.left, -2000000) << far;
        EXPECT_LE(box.right, 2000000) << far;
    }
}

TEST(PlaceInfoLabel, AnyPlaceFitsIntoPixels) {
    for (const double far : {1e9, 1e300, -1e9, -1e300, std::numeric_limits<double>::infinity()}) {
        const PixelRect box = beside({far, far}, "abc").box();
        EXPECT_EQ(box.width(), 22) << far;
        EXPECT_LE(box.bottom, 800) << far;
        EXPECT_GE(box.left, 0) << far;
    }
}

}  // namespace
}  // namespace ormala
