#include <gtest/gtest.h>

#include <string>
#include <vector>

#include "e2e/LensScales.h"
#include "e2e/LensScene.h"

// What the magnifier shows of the screen, pixel by pixel.

namespace ormala::test {
namespace {

constexpr Color markColor = 0xFF00FF;
constexpr Color gridColor = 0xFFFF00;

std::string number(int value) {
    return (value < 0 ? "" : " ") + std::to_string(value);
}

SettingsFile with(SettingsFile options,
                  std::initializer_list<std::pair<const char*, int>> numbers) {
    for (const auto& [key, value] : numbers) {
        options.set("Options", key, number(value));
    }
    return options;
}

SettingsFile pausedBareLens() {
    return with(bareLens(), {{"Mode", 2}});
}

/// In the middle of the screen, where it hides none of its edges.
void putInTheMiddle(const LensScene& scene) {
    const ScreenRect place = scene.lens.window().rect();
    scene.lens.moveTo(
        around(screen::primaryMonitor().center(), place.width(), place.height()).origin());
}

TEST(Magnifier, ShowsEachPixelOfTheScreenInItsOwnColourAtEachFactor) {
    LensScene scene(pausedBareLens());
    for (int factor = 1; factor <= 10; ++factor) {
        scene.chooseFactor(factor);
        scene.scene.mouse.moveTo(LensScene::spot);
        EXPECT_TRUE(scene.lens.showsScreen(LensScene::spot, factor));
        const LensView view = scene.lens.view(LensScene::spot, factor);
        EXPECT_TRUE(difference(screen::capture(view.image),
                               enlarged(scene.scene.backdrop().picture(view.source), factor,
                                        view.image.origin()))
                        .empty())
            << factor;
    }
}

TEST(Magnifier, FollowsTheMouseOverTheScreen) {
    LensScene scene(pausedBareLens());
    putInTheMiddle(scene);
    const ScreenRect all = screen::primaryMonitor();
    for (const ScreenPoint cursor :
         {ScreenPoint{321, 200}, ScreenPoint{322, 201}, ScreenPoint{all.right - 60, 600}}) {
        scene.scene.mouse.moveTo(cursor);
        EXPECT_TRUE(scene.lens.showsScreen(cursor, 4));
    }
}

TEST(Magnifier, StopsAtTheEdgesOfTheScreenWhileTheMarkWalksOn) {
    LensScene scene(with(pausedBareLens(), {{"LensHotSpotOn", -1},
                                            {"LensHotSpotStyle", 4},
                                            {"LensHotSpotDrawMode", 13},
                                            {"LensHotSpotColor", markColor}}));
    putInTheMiddle(scene);
    const ScreenRect all = screen::primaryMonitor();
    const ScreenPoint last{all.right - 1, all.bottom - 1};
    const int half = 500;
    const ScreenPoint places[] = {{0, 0},         {half, 0},   {last.x, 0},    {0, half},
                                  {last.x, half}, {0, last.y}, {half, last.y}, last};
    for (const ScreenPoint cursor : places) {
        scene.scene.mouse.moveTo(cursor);
        const LensView view = scene.lens.view(cursor, 4);
        // The middle of the enlarged pixel.
        const ScreenPoint dot{view.image.left + (cursor.x - view.source.left) * 4 + 1,
                              view.image.top + (cursor.y - view.source.top) * 4 + 1};
        EXPECT_TRUE(waitUntil([&] {
            const Picture expected = enlarged(screen::capture(view.source), 4, view.image.origin());
            const Difference off = difference(expected, screen::capture(view.image));
            return off.places == std::vector<ScreenPoint>{dot};
        })) << cursor;
        EXPECT_EQ(screen::pixel(dot), markColor) << cursor;
    }
}

TEST(Magnifier, ShowsTheTranslucentWorksheetAndItsTools) {
    LensScene scene(bareLens());
    scene.lens.moveTo({20, 600});
    // A corner of the stencil.
    const ScreenPoint cursor = scene.scene.onScreen({105, 105});
    scene.scene.mouse.moveTo(cursor);
    EXPECT_TRUE(scene.lens.showsScreen(cursor, 4));
    const LensView view = scene.lens.view(cursor, 4);
    const Picture seen = screen::capture(view.source);
    EXPECT_FALSE(difference(seen, scene.scene.backdrop().picture(view.source)).empty());
    const ScreenPoint beside = scene.scene.onScreen({80, 90});
    EXPECT_LE(channelDifference(seen.at(beside),
                                blended(0x4F4F4F, scene.scene.backdrop().colorAt(beside), 191)),
              1);
    // What happens to the tool is seen at once.
    const Picture before = screen::capture(view.image);
    scene.scene.mouse.drag(scene.scene.onScreen({200, 200}), scene.scene.onScreen({230, 220}));
    scene.scene.mouse.moveTo(cursor);
    EXPECT_TRUE(scene.lens.showsScreen(cursor, 4));
    EXPECT_FALSE(difference(before, screen::capture(view.image)).empty());
}

/// An enlarged picture that is drawn over as the magnifier does.
class Overlays {
  public:
    struct Pen {
        int mode;
        Color color;
    };

    Overlays(const Picture& picture, int factor) : factor_(factor) {
        const Picture large = enlarged(picture, factor, {0, 0});
        width_ = large.rect().width();
        height_ = large.rect().height();
        for (int y = 0; y < height_; ++y) {
            for (int x = 0; x < width_; ++x) {
                pixels_.push_back(large.at({x, y}));
            }
        }
    }
    void grid(const Pen& pen) {
        for (int x = factor_ - 1; x < width_; x += factor_) {
            lineDown(pen, x, 0, height_);
        }
        for (int y = factor_ - 1; y < height_; y += factor_) {
            lineAlong(pen, y, 0, width_);
        }
    }
    /// A square on the grid lines about an enlarged pixel, with a cross that reaches it.
    void mark(const Pen& pen, ScreenPoint pixel) {
        const int x = pixel.x * factor_ - 1;
        const int y = pixel.y * factor_ - 1;
        const int middle = factor_ / 2;
        lineAlong(pen, y + middle, 0, x);
        lineAlong(pen, y + middle, x + factor_ + 1, width_);
        lineDown(pen, x + middle, 0, y);
        lineDown(pen, x + middle, y + factor_ + 1, height_);
        lineAlong(pen, y, x, x + factor_);
        lineDown(pen, x + factor_, y, y + factor_);
        lineAlong(pen, y + factor_, x + 1, x + factor_ + 1);
        lineDown(pen, x, y + 1, y + factor_ + 1);
    }
    /// Without the last row and column, which the grid's last lines take.
    [[nodiscard]] Picture shownAt(ScreenPoint origin) const {
        const ScreenRect all{origin.x, origin.y, origin.x + width_, origin.y + height_};
        return Picture(all, pixels_).part({all.left, all.top, all.right - 1, all.bottom - 1});
    }

  private:
    static Color drawn(const Pen& pen, Color picture) {
        switch (pen.mode) {
            case 6:
                return ~picture & 0xFFFFFF;
            case 7:
                return picture ^ pen.color;
            case 9:
                return picture & pen.color;
            case 15:
                return picture | pen.color;
            default:
                return pen.color;
        }
    }
    void draw(const Pen& pen, int x, int y) {
        Color& pixel = pixels_.at(static_cast<std::size_t>(y * width_ + x));
        pixel = drawn(pen, pixel);
    }
    void lineAlong(const Pen& pen, int y, int first, int end) {
        for (int x = first; x < end; ++x) {
            draw(pen, x, y);
        }
    }
    void lineDown(const Pen& pen, int x, int first, int end) {
        for (int y = first; y < end; ++y) {
            draw(pen, x, y);
        }
    }

    int factor_;
    int width_ = 0;
    int height_ = 0;
    std::vector<Color> pixels_;
};

/// Draws grid and mark in these modes, with the pens that belong to them, and compares.
void expectOverlays(const Overlays::Pen& gridPen, const Overlays::Pen& markPen) {
    constexpr int squareAndOpenCross = 3;
    constexpr int factor = 6;
    LensScene scene(with(pausedBareLens(), {{"LensFactor", factor},
                                            {"LensGridOn", -1},
                                            {"LensGridColor", gridColor},
                                            {"LensGridDrawMode", gridPen.mode},
                                            {"LensHotSpotOn", -1},
                                            {"LensHotSpotColor", markColor},
                                            {"LensHotSpotStyle", squareAndOpenCross},
                                            {"LensHotSpotDrawMode", markPen.mode}}));
    const LensView view = scene.lens.view(LensScene::spot, factor, true);
    Overlays overlays(scene.scene.backdrop().picture(view.source), factor);
    overlays.grid(gridPen);
    overlays.mark(markPen, LensScene::spot - view.source.origin());
    const Picture expected = overlays.shownAt(view.image.origin());
    EXPECT_TRUE(waitUntil([&] {
        return difference(expected, screen::capture(view.image)).empty();
    })) << gridPen.mode
        << ": " << difference(expected, screen::capture(view.image));
}

TEST(Magnifier, InvertsUnderGridAndMarkAndTwiceWhereTheyCross) {
    expectOverlays({6, gridColor}, {6, markColor});
}

TEST(Magnifier, DarkensUnderGridAndMarkWhateverTheirColours) {
    expectOverlays({9, 0xEFEFEF}, {9, 0xC0C0C0});
}

TEST(Magnifier, PaintsGridAndMarkInTheirColours) {
    expectOverlays({13, gridColor}, {13, markColor});
}

TEST(Magnifier, KnowsTwoMoreDrawModesFromTheFile) {
    expectOverlays({7, 0x1F1F1F}, {15, 0x3F3F3F});
}

TEST(Magnifier, PaintsThePointerWhereItPoints) {
    LensScene scene(with(pausedBareLens(), {{"LensCursorOn", -1}}));
    const LensView view = scene.lens.view(LensScene::spot, 4);
    const Picture bare =
        enlarged(scene.scene.backdrop().picture(view.source), 4, view.image.origin());
    const ScreenPoint tip =
        view.image.origin() + ScreenPoint{(LensScene::spot.x - view.source.left) * 4,
                                          (LensScene::spot.y - view.source.top) * 4};
    // The arrow of the system points with its upper left corner.
    EXPECT_TRUE(waitUntil([&] {
        const Difference pointer = difference(bare, screen::capture(view.image));
        return !pointer.empty() && pointer.box.origin() == tip;
    })) << difference(bare, screen::capture(view.image))
        << ", not at " << tip;
    scene.choose(LensEntry::cursor);
    scene.scene.mouse.moveTo(LensScene::spot);
    EXPECT_TRUE(scene.lens.showsScreen(LensScene::spot, 4));
}

TEST(Magnifier, ScalesCountFromTheWorksheetAndFromTheImage) {
    LensScene scene(with(bareLens(), {{"LensRulTOrigin", 0}, {"LensRulBOrigin", 1}}));
    const ScreenPoint sheet = scene.scene.worksheet().rect().origin();
    const LensScales scales(scene.lens, 4, false);
    for (const ScreenPoint cursor : {LensScene::spot, LensScene::spot + ScreenPoint{13, 7}}) {
        ASSERT_TRUE(scene.showsScreenAround(cursor, 4));
        const LensView view = scene.lens.view(cursor, 4);
        EXPECT_TRUE(scales.columnsAre("picRulTop", view.source.left - sheet.x));
        EXPECT_TRUE(scales.rowsAre("picRulLeft", view.source.top - sheet.y));
        EXPECT_TRUE(scales.columnsAre("picRulBottom", 0));
        EXPECT_TRUE(scales.rowsAre("picRulRight", 0));
    }
}

TEST(Magnifier, ScalesCountFromTheScreens) {
    LensScene scene(with(pausedBareLens(), {{"LensRulTOrigin", 2}, {"LensRulBOrigin", 3}}));
    ASSERT_TRUE(scene.lens.showsScreen(LensScene::spot, 4));
    const LensView view = scene.lens.view(LensScene::spot, 4);
    const ScreenRect all = screen::virtualScreen();
    const LensScales scales(scene.lens, 4, false);
    EXPECT_TRUE(scales.columnsAre("picRulTop", view.source.left));
    EXPECT_TRUE(scales.rowsAre("picRulLeft", view.source.top));
    EXPECT_TRUE(scales.columnsAre("picRulBottom", view.source.left - all.left));
    EXPECT_TRUE(scales.rowsAre("picRulRight", view.source.top - all.top));
}

TEST(Magnifier, ScalesOfFactorOneHaveTicksAtTheFivesOnly) {
    LensScene scene(with(pausedBareLens(), {{"LensFactor", 1}, {"LensRulTOrigin", 2}}));
    ASSERT_TRUE(scene.lens.showsScreen(LensScene::spot, 1));
    const LensView view = scene.lens.view(LensScene::spot, 1);
    const LensScales scales(scene.lens, 1, false);
    EXPECT_TRUE(scales.columnsAre("picRulTop", view.source.left));
    EXPECT_TRUE(scales.rowsAre("picRulRight", 0));
}

TEST(Magnifier, ScalesWithAGridHaveTheirTicksBetweenItsLines) {
    LensScene scene(with(pausedBareLens(), {{"LensFactor", 10}, {"LensGridOn", -1}}));
    const LensScales scales(scene.lens, 10, true);
    EXPECT_TRUE(scales.columnsAre("picRulBottom", 0));
    EXPECT_TRUE(scales.rowsAre("picRulRight", 0));
}

}  // namespace
}  // namespace ormala::test
