#include "worksheet/CompassReadOut.h"

#include <gtest/gtest.h>

#include "support/FakeTextMeter.h"
#include "support/RasterCanvas.h"
#include "worksheet/SheetFixture.h"

namespace ormala {
namespace {

constexpr PixelSize compassSheet{400, 300};

TEST(CompassText, HasTheRadiusAndItsGoldenSectionInTheUsersForm) {
    EXPECT_EQ(compassText(100, {}), "r = 100.0\r\nG * r = 61.8");
    TextForm comma;
    comma.decimalSeparator = ",";
    EXPECT_EQ(compassText(50.04, comma), "r = 50,0\r\nG * r = 30,9");
    TextForm logical;
    logical.logicalDpi = 192;
    EXPECT_EQ(compassText(100, logical), "r = 50.0\r\nG * r = 30.9");
}

class CompassReadOutTest : public testing::Test {
  protected:
    /// Around the middle of the sheet.
    void show(const std::optional<double>& radius, const Point& mouse) {
        std::optional<CircleCompass::Opening> opening;
        if (radius) {
            opening = CircleCompass::Opening{{200, 150}, *radius};
        }
        readOut_.show(opening, mouse, compassSheet);
    }
    [[nodiscard]] RasterCanvas drawn() const {
        RasterCanvas canvas(compassSheet);
        readOut_.draw(canvas);
        return canvas;
    }

    FakeTextMeter meter_;
    TextForm form_;
    CompassReadOut readOut_{{meter_, form_}};
};

TEST_F(CompassReadOutTest, IsThereOnlyWithARadius) {
    EXPECT_EQ(drawn().painted(), 0);
    show(20, {200, 150});
    EXPECT_NE(drawn().painted(), 0);
    show(std::nullopt, {200, 150});
    EXPECT_EQ(drawn().painted(), 0);
}

TEST_F(CompassReadOutTest, KeepsInsideTheWorksheetWhereverTheMouseIs) {
    for (const int dpi : {96, 192}) {
        meter_.present = SheetScale(dpi);
        for (const Point mouse : {Point{0, 0}, Point{399, 0}, Point{0, 299}, Point{399, 299},
                                  Point{-500, 150}, Point{900, 900}, Point{30, -70}}) {
            show(123.4, mouse);
            const PixelRect box = readOut_.label().box();
            EXPECT_EQ(box.intersected({0, 0, 400, 300}), box) << mouse.x << " " << mouse.y;
        }
    }
}

TEST_F(CompassReadOutTest, StandsOutsideOfTheCirclesWhereThereIsRoom) {
    const auto box = [&](double x) {
        show(50, {x, 150});
        return readOut_.label().box();
    };
    EXPECT_GT(box(250).left, 250);
    EXPECT_LT(box(150).right, 150);
    EXPECT_LT(box(390).right, 390) << "no room at the right";
    EXPECT_GT(box(10).left, 10) << "no room at the left";
    show(50, {250, 150});
    EXPECT_EQ(readOut_.label().box().top + readOut_.label().box().bottom, 300);
}

TEST_F(CompassReadOutTest, ReportsEveryPixelThatChangesAndNothingAtRest) {
    show(std::nullopt, {10, 10});
    EXPECT_TRUE(readOut_.takeChanges().empty());
    RasterCanvas before = drawn();
    for (const Point mouse : {Point{200, 150}, Point{201, 150}, Point{10, 290}}) {
        show(mouse.x, mouse);
        const DirtyRegion changed = readOut_.takeChanges();
        const RasterCanvas after = drawn();
        for (int y = 0; y < compassSheet.height; ++y) {
            for (int x = 0; x < compassSheet.width; ++x) {
                const bool differs = after.at(x, y) != before.at(x, y);
                ASSERT_FALSE(differs && !changed.meets({x, y, x + 1, y + 1})) << x << " " << y;
            }
        }
        before = after;
    }
    show(std::nullopt, {10, 10});
    EXPECT_EQ(before.paintedOutside(readOut_.takeChanges()), 0);
}

class CompassOnSheet : public SheetMouseFixture {
  protected:
    CompassOnSheet() {
        sheet_.setEditMode(true);
        sheet_.resize({800, 600});
    }
    [[nodiscard]] int painted() const {
        RasterCanvas canvas({800, 600});
        aids_.draw(canvas);
        return canvas.painted();
    }
};

TEST_F(CompassOnSheet, ComesWithTheCirclesAndGoesWithThem) {
    aids_.press({mouseButton::left, 0, 300, 300});
    aids_.move({mouseButton::left, 0, 310, 300});
    EXPECT_EQ(painted(), 0) << "a hand trembles";
    aids_.move({mouseButton::left, 0, 360, 300});
    // The text beside the mouse, which no circle comes to.
    RasterCanvas canvas({800, 600});
    aids_.draw(canvas);
    EXPECT_NE(canvas.at(390, 300), RasterCanvas::empty);
    window_.repainted.clear();
    aids_.release({mouseButton::left, 0, 360, 300});
    EXPECT_EQ(painted(), 0);
    EXPECT_EQ(canvas.paintedOutside(window_.repainted), 0);
}

}  // namespace
}  // namespace ormala
