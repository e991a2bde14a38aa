#include "toolkit/DragReadOut.h"

#include <gtest/gtest.h>

#include "support/FakeTextMeter.h"
#include "support/RecordingCanvas.h"

namespace ormala {
namespace {

TEST(MoveText, ShowsWholePixelsRoundedDown) {
    EXPECT_EQ(moveText({123, 45}, {}), "X = 123  Y = 45");
    EXPECT_EQ(moveText({123.9, -0.5}, {}), "X = 123  Y = -1");
    EXPECT_EQ(moveText({-7, 0}, {}), "X = -7  Y = 0");
}

TEST(DragReadOut, APlaceCanBeToldInLogicalPixels) {
    const TextForm fine{.decimalSeparator = ",", .logicalDpi = 144};
    EXPECT_EQ(moveText({123.9, -0.5}, fine), "X = 82,0  Y = -0,7");
}

TEST(DragReadOut, IsEmptyWhenItComesUp) {
    DragReadOut info;
    EXPECT_FALSE(info.label().visible());
    info.setText("abc", FakeTextMeter());
    info.show();
    EXPECT_TRUE(info.label().visible());
    EXPECT_EQ(info.label().Caption(), "");
}

TEST(DragReadOut, StandsBesideTheGripAndFitsItsText) {
    DragReadOut info;
    info.show();
    info.setText("abc", FakeTextMeter());
    info.place({600, 400}, {1000, 800}, FakeTextMeter());
    EXPECT_EQ(info.label().box(), (PixelRect{566, 391, 588, 408}));
    EXPECT_EQ(info.label().FontSize(), readableFontSize);
}

TEST(DragReadOut, RepaintsBeyondItsBoxAsItsLettersMay) {
    DragReadOut info;
    info.show();
    info.setText("abc", FakeTextMeter());
    DirtyRegion region;
    info.addTo(region);
    constexpr int overhang = 4;
    EXPECT_EQ(region.bounds(), info.label().box().grown(overhang));
}

TEST(DragReadOut, HiddenCoversAndDrawsNothing) {
    DragReadOut info;
    info.show();
    info.setText("abc", FakeTextMeter());
    info.hide();
    RecordingCanvas canvas;
    info.draw(canvas);
    EXPECT_TRUE(canvas.calls.empty());
    DirtyRegion region;
    info.addTo(region);
    EXPECT_TRUE(region.empty());
}

}  // namespace
}  // namespace ormala
