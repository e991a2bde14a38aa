#include "widgets/buttonShape.h"

#include <gtest/gtest.h>

#include <algorithm>

namespace ormala {
namespace {

ButtonDesign withCorners(int style, bool used = true) {
    ButtonDesign design;
    design.CornerStyle = style;
    design.UseCornerStyle = used;
    return design;
}

bool covers(const ButtonDesign& design, PixelSize size, PixelPoint point, int dpi = 96) {
    return std::ranges::any_of(regionOfShape(buttonShape(design, size, dpi)),
                               [&](const PixelRect& rect) { return rect.contains(point); });
}

int area(const ButtonDesign& design, PixelSize size, int dpi = 96) {
    int sum = 0;
    for (const PixelRect& rect : regionOfShape(buttonShape(design, size, dpi))) {
        sum += rect.width() * rect.height();
    }
    return sum;
}

/// Which of the corner pixels belong to the button: upper left, upper right, lower left, lower
/// right.
std::string corners(const ButtonDesign& design) {
    std::string found;
    for (const PixelPoint corner :
         {PixelPoint{0, 0}, PixelPoint{39, 0}, PixelPoint{0, 21}, PixelPoint{39, 21}}) {
        found += covers(design, {40, 22}, corner) ? 'X' : '.';
    }
    return found;
}

TEST(buttonShape, RoundCornersLeaveOutOnePixelEach) {
    EXPECT_EQ(corners(withCorners(0)), "....");
    EXPECT_EQ(area(withCorners(0), {40, 22}), 40 * 22 - 4);
}

TEST(buttonShape, CornerStylesSquareTheirSides) {
    EXPECT_EQ(corners(withCorners(1)), ".X.X");
    EXPECT_EQ(corners(withCorners(2)), "X.X.");
    EXPECT_EQ(corners(withCorners(3)), "XXXX");
}

TEST(buttonShape, CornerStyleCountsOnlyWhenItIsUsed) {
    EXPECT_EQ(corners(withCorners(3, false)), "....");
}

TEST(buttonShape, FlatStyleIsAPlainRectangle) {
    ButtonDesign design;
    design.ButtonStyle = 1;
    EXPECT_EQ(corners(design), "XXXX");
}

TEST(buttonShape, CornersGrowWithTheResolution) {
    // Rows of 3, 1 and 1 pixels at each corner.
    EXPECT_EQ(area(withCorners(0), {80, 44}, 192), 80 * 44 - 4 * 5);
    EXPECT_FALSE(covers(withCorners(0), {80, 44}, {2, 0}, 192));
    EXPECT_TRUE(covers(withCorners(0), {80, 44}, {3, 0}, 192));
}

TEST(buttonShape, NoSizeHasNoRegion) {
    EXPECT_EQ(area(withCorners(0), {0, 0}), 0);
}

TEST(buttonShape, ButtonBelow10PixelsBecomes10Pixels) {
    EXPECT_EQ(leastButtonSize({3, 40}, 96), (PixelSize{10, 40}));
    EXPECT_EQ(leastButtonSize({40, 9}, 96), (PixelSize{40, 10}));
    EXPECT_EQ(leastButtonSize({10, 10}, 96), (PixelSize{10, 10}));
    EXPECT_EQ(leastButtonSize({3, 3}, 192), (PixelSize{20, 20}));
}

/// A meter for a caption of one line, 30 by 13 pixels.
PixelSize oneLine(int) {
    return {30, 13};
}

ButtonContent laidOut(int position, const char* caption, PixelSize picture) {
    ButtonDesign design;
    design.Caption = caption;
    design.PicturePosition = position;
    return LayoutContent(design, {101, 61}, picture, 96, &oneLine);
}

TEST(LayoutContent, PictureAloneIsCentredInTheInnerRectangle) {
    // The inner rectangle is 4, 4, 98, 58.
    const ButtonContent content = laidOut(1, "", {16, 16});
    EXPECT_EQ(content.picture, (PixelRect{43, 23, 59, 39}));
    EXPECT_TRUE(content.text.empty());
}

TEST(LayoutContent, CaptionAloneIsCentred) {
    const ButtonContent content = laidOut(1, "Text", {});
    EXPECT_EQ(content.text, (PixelRect{36, 24, 66, 37}));
    EXPECT_TRUE(content.picture.empty());
}

TEST(LayoutContent, PictureAndTextFormOneCentredBlockWithAGapOf4) {
    // A block of 50 pixels in 94, of 33 in 54.
    EXPECT_EQ(laidOut(1, "Text", {16, 16}).picture, (PixelRect{26, 23, 42, 39}));
    EXPECT_EQ(laidOut(1, "Text", {16, 16}).text, (PixelRect{46, 24, 76, 37}));
    EXPECT_EQ(laidOut(2, "Text", {16, 16}).text, (PixelRect{26, 24, 56, 37}));
    EXPECT_EQ(laidOut(2, "Text", {16, 16}).picture, (PixelRect{60, 23, 76, 39}));
    EXPECT_EQ(laidOut(0, "Text", {16, 16}).picture, (PixelRect{43, 14, 59, 30}));
    EXPECT_EQ(laidOut(0, "Text", {16, 16}).text, (PixelRect{36, 34, 66, 47}));
    EXPECT_EQ(laidOut(3, "Text", {16, 16}).text, (PixelRect{36, 14, 66, 27}));
    EXPECT_EQ(laidOut(3, "Text", {16, 16}).picture, (PixelRect{43, 31, 59, 47}));
}

TEST(LayoutContent, TextBesideAPictureHasTheRestOfTheWidth) {
    ButtonDesign design;
    design.Caption = "Text";
    std::vector<int> widths;
    const CaptionMeter meter = [&](int width) {
        widths.push_back(width);
        return PixelSize{width, 13};
    };
    for (const int position : {0, 1, 2, 3}) {
        design.PicturePosition = position;
        LayoutContent(design, {101, 61}, {16, 16}, 96, meter);
    }
    EXPECT_EQ(widths, (std::vector{94, 74, 74, 94}));
}

TEST(LayoutContent, MarginsGrowWithTheResolution) {
    ButtonDesign design;
    design.Caption = "Text";
    LayoutContent(design, {202, 122}, {}, 192, [](int width) {
        EXPECT_EQ(width, 188);
        return PixelSize{60, 26};
    });
}

TEST(LayoutContent, ASignStandsAtTheLeftAndTheContentKeepsClearOfIt) {
    ButtonDesign design;
    design.Caption = "Visible";
    design.Sign = ButtonSign::tick;
    int width = 0;
    const auto meter = [&](int room) {
        width = room;
        return PixelSize{40, 13};
    };
    const ButtonContent content = LayoutContent(design, {100, 24}, {}, 96, meter);
    EXPECT_EQ(content.sign, (PixelRect{7, 7, 16, 16}));
    EXPECT_EQ(width, 100 - 3 - 20);
    EXPECT_GE(content.text.left, 20);
    EXPECT_EQ(LayoutContent(design, {200, 48}, {}, 192, meter).sign, (PixelRect{14, 15, 32, 33}));
    design.Sign = ButtonSign::none;
    EXPECT_TRUE(LayoutContent(design, {100, 24}, {}, 96, meter).sign.empty());
}

TEST(LayoutContent, ANarrowButtonHasRoomForSignPictureAndDigit) {
    ButtonDesign design;
    design.Caption = "8";
    design.Sign = ButtonSign::lamp;
    const ButtonContent content = LayoutContent(design, {41, 24}, {15, 15}, 96, [](int) {
        return PixelSize{6, 13};
    });
    EXPECT_EQ(content.sign, (PixelRect{4, 8, 11, 15}));
    EXPECT_GE(content.picture.left, content.sign.right + 2);
    EXPECT_LE(content.text.right, 38);
}

TEST(buttonShape, AnOpenBottomHasNoCorners) {
    ButtonDesign design;
    design.OpenBelow = true;
    EXPECT_EQ(corners(design), "..XX");
}

TEST(accessKeyOf, IsTheLetterAfterTheLastSingleAmpersand) {
    EXPECT_EQ(accessKeyOf("&Save"), u'S');
    EXPECT_EQ(accessKeyOf("Save &as"), u'a');
    EXPECT_EQ(accessKeyOf("&\xC3\x84ndern"), u'\u00C4');
    EXPECT_EQ(accessKeyOf("Save"), u'\0');
    EXPECT_EQ(accessKeyOf("Black && white"), u'\0');
    EXPECT_EQ(accessKeyOf("End &"), u'\0');
}

TEST(spokenCaption, LeavesTheMarksOut) {
    EXPECT_EQ(spokenCaption("Save &as"), "Save as");
    EXPECT_EQ(spokenCaption("Black && white"), "Black & white");
    EXPECT_EQ(spokenCaption("End &"), "End &");
}

}  // namespace
}  // namespace ormala
