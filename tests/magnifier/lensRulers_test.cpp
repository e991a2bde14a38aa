#include "magnifier/lensRulers.h"

#include <gtest/gtest.h>

#include <map>

#include "magnifier/PixelSheet.h"

namespace ormala {
namespace {

constexpr std::uint32_t ink = 0xFFFFE600U;
constexpr std::uint32_t quietInk = 0xFF807726U;
constexpr std::uint32_t shadow = 0xFF4A4A4AU;

/// Signs of six by thirteen pixels that cover nothing.
ScaleGlyphs glyphs() {
    ScaleGlyphs made;
    made.height = 13;
    made.sampleWidth = 36;
    for (auto& glyph : made.glyphs) {
        glyph = {6, std::vector<std::uint8_t>(std::size_t{6} * 13, 0)};
    }
    return made;
}

LensLayout layoutOf(int factor, bool gridOn = false, int dpi = 96) {
    return layOutLens({firstLensClient(dpi), factor, gridOn, {true, true, true, true}, dpi});
}

RulerLook lookOf(LensScale scale, int factor, int base = 0, bool gridOn = false) {
    return rulerLook(scale, layoutOf(factor, gridOn), glyphs(), base, 96);
}

/// The numbered marks of a scale by their values.
std::map<int, RulerMark> labelsOf(const RulerLook& look) {
    std::map<int, RulerMark> labels;
    for (int position = look.first; position <= look.last; position += look.factor) {
        const RulerMark mark = rulerMark(look, position);
        if (mark.isLabel) {
            labels[mark.Value] = mark;
        }
    }
    return labels;
}

PixelSheet drawn(const RulerLook& look, const ScaleGlyphs& signs = glyphs()) {
    PixelSheet background(look.canvas);
    fillRuler(background.view(), look.scale);
    PixelSheet canvas(look.canvas);
    drawRuler(canvas.view(), background.view(), look, signs);
    return canvas;
}

TEST(TickLength, IsLongerAtTensAndFives) {
    for (const int value : {0, 10, -10, 1230, -40}) {
        EXPECT_EQ(TickLength(value, 1), 6);
        EXPECT_EQ(TickLength(value, 8), 6);
    }
    for (const int value : {5, -5, 1235, -45}) {
        EXPECT_EQ(TickLength(value, 1), 4);
        EXPECT_EQ(TickLength(value, 8), 4);
    }
}

TEST(TickLength, SinglePixelsHaveATickOnlyIfTheyAreEnlarged) {
    for (const int value : {1, 2, 3, 4, 6, -1, -9, 1231}) {
        EXPECT_EQ(TickLength(value, 1), 0);
        EXPECT_EQ(TickLength(value, 2), 3);
        EXPECT_EQ(TickLength(value, 10), 3);
    }
}

TEST(LabelStep, LeavesRoomForTheSample) {
    EXPECT_EQ(labelStep(36, 10), 1);
    EXPECT_EQ(labelStep(36, 4), 1);
    EXPECT_EQ(labelStep(36, 3), 2);
    EXPECT_EQ(labelStep(36, 2), 2);
    EXPECT_EQ(labelStep(36, 1), 5);
    EXPECT_EQ(labelStep(49, 1), 5);
    EXPECT_EQ(labelStep(50, 1), 10) << "the digits of a very fine screen";
    EXPECT_EQ(labelStep(72, 2), 5);
    EXPECT_EQ(labelStep(20, 1), 5);
    EXPECT_EQ(labelStep(19, 1), 2);
    EXPECT_EQ(labelStep(9, 1), 1);
    EXPECT_EQ(labelStep(100, 10), 2);
    EXPECT_EQ(labelStep(99, 10), 1);
}

TEST(LabelStep, GivesANumberEachTenthPixelAtFactor10AndEachFiftiethAtFactor1) {
    const auto enlarged = labelsOf(lookOf(LensScale::right, 10));
    EXPECT_TRUE(enlarged.contains(0));
    EXPECT_TRUE(enlarged.contains(10));
    EXPECT_TRUE(enlarged.contains(20));
    const auto plain = labelsOf(lookOf(LensScale::right, 1));
    EXPECT_TRUE(plain.contains(0));
    EXPECT_FALSE(plain.contains(10));
    EXPECT_TRUE(plain.contains(50));
    EXPECT_TRUE(plain.contains(100));
}

TEST(ScaleBase, CountsFromEachOrigin) {
    const ScaleOrigins origins{{400, 300}, {150, 80}, {-1280, -24}};
    const auto across = [&](int origin) { return scaleBase(LensScale::top, origin, origins); };
    const auto down = [&](int origin) { return scaleBase(LensScale::left, origin, origins); };
    EXPECT_EQ(across(0), 250);
    EXPECT_EQ(across(1), 0);
    EXPECT_EQ(across(2), 400);
    EXPECT_EQ(across(3), 1680);
    EXPECT_EQ(down(0), 220);
    EXPECT_EQ(down(1), 0);
    EXPECT_EQ(down(2), 300);
    EXPECT_EQ(down(3), 324);
    EXPECT_EQ(scaleBase(LensScale::bottom, 0, origins), across(0));
    EXPECT_EQ(scaleBase(LensScale::right, 0, origins), down(0));
    EXPECT_EQ(across(-7), across(0)) << "a damaged file may hold any number";
}

TEST(ScaleBase, OfTheMagnifierDoesNotFollowTheMouse) {
    EXPECT_EQ(scaleBase(LensScale::top, scaleOrigin::magnifier, {{17, 4}, {}, {}}), 0);
    EXPECT_EQ(scaleBase(LensScale::top, scaleOrigin::magnifier, {{-900, 4}, {}, {}}), 0);
    const RulerMark first = rulerMark(lookOf(LensScale::top, 4), 0);
    EXPECT_EQ(first.Value, 0);
}

TEST(ScaleBase, OfThePrimaryScreenIsNegativeOnADisplayLeftOfIt) {
    const ScaleOrigins origins{{-700, 40}, {0, 0}, {-1280, 0}};
    const int base = scaleBase(LensScale::top, scaleOrigin::primaryScreen, origins);
    EXPECT_EQ(base, -700);
    const auto labels = labelsOf(lookOf(LensScale::top, 4, base));
    ASSERT_TRUE(labels.contains(-680));
    EXPECT_EQ(NumberText(labels.at(-680).Value).width(glyphs()), 4 * 6) << "the sign is written";
    EXPECT_EQ(rulerMark(lookOf(LensScale::top, 4, base), 4).Value, -699);
}

TEST(RulerMarks, StandAtTheMiddleOfTheirEnlargedPixels) {
    for (int factor = 1; factor <= 10; ++factor) {
        for (const bool grid : {false, true}) {
            const LensLayout layout = layoutOf(factor, grid);
            const int middle = grid && factor > 1 ? factor / 2 - 1 : (factor + 1) / 2 - 1;
            const RulerMark top =
                rulerMark(rulerLook(LensScale::top, layout, glyphs(), 0, 96), 7 * factor);
            EXPECT_EQ(top.Value, 7);
            EXPECT_EQ(top.tick.from.x, 7 * factor + 28 + middle);
            const RulerMark left =
                rulerMark(rulerLook(LensScale::left, layout, glyphs(), 0, 96), 7 * factor);
            EXPECT_EQ(left.tick.from.y, 7 * factor + middle);
        }
    }
}

TEST(RulerMarks, GrowFromTheImage) {
    const auto tick = [](LensScale scale) { return rulerMark(lookOf(scale, 4), 20).tick; };
    EXPECT_EQ(tick(LensScale::top), (Segment{{49, 16}, {49, 12}}));
    EXPECT_EQ(tick(LensScale::bottom), (Segment{{49, 0}, {49, 3}}));
    EXPECT_EQ(tick(LensScale::right), (Segment{{0, 21}, {3, 21}}));
    EXPECT_EQ(tick(LensScale::left), (Segment{{28, 21}, {24, 21}}));
}

TEST(RulerMarks, WithANumberReachTheFarEdgeBesideAShadow) {
    const auto label = [](LensScale scale) { return rulerMark(lookOf(scale, 4), 40); };
    const RulerMark top = label(LensScale::top);
    EXPECT_TRUE(top.isLabel);
    EXPECT_EQ(top.toEdge, (Segment{{69, 10}, {69, -1}}));
    EXPECT_EQ(top.shadow, (Segment{{68, 13}, {68, -1}}));
    EXPECT_EQ(top.text, (PixelPoint{71, 0}));
    const RulerMark bottom = label(LensScale::bottom);
    EXPECT_EQ(bottom.toEdge, (Segment{{69, 5}, {69, 16}}));
    EXPECT_EQ(bottom.shadow, (Segment{{68, 2}, {68, 16}}));
    EXPECT_EQ(bottom.text, (PixelPoint{71, 5}));
    const RulerMark right = label(LensScale::right);
    EXPECT_EQ(right.toEdge, (Segment{{5, 41}, {28, 41}}));
    EXPECT_EQ(right.shadow, (Segment{{2, 40}, {28, 40}}));
    EXPECT_EQ(right.text, (PixelPoint{27, 41}));
    const RulerMark left = label(LensScale::left);
    EXPECT_EQ(left.toEdge, (Segment{{22, 41}, {-1, 41}}));
    EXPECT_EQ(left.shadow, (Segment{{25, 40}, {-1, 40}}));
    EXPECT_EQ(left.text, (PixelPoint{22, 41}));
}

TEST(RulerMarks, GrowWithTheResolution) {
    const RulerLook look = rulerLook(LensScale::top, layoutOf(4, false, 192), glyphs(), 0, 192);
    const RulerMark label = rulerMark(look, 40);
    EXPECT_EQ(label.tick, (Segment{{97, 32}, {97, 20}}));
    EXPECT_EQ(label.text, (PixelPoint{101, 0}));
}

TEST(RulerWalk, StartsAndEndsOutsideTheImage) {
    const RulerLook top = lookOf(LensScale::top, 4);
    EXPECT_EQ(top.first, -80);
    EXPECT_EQ(top.last, 299);
    const RulerLook fine = lookOf(LensScale::bottom, 1);
    EXPECT_EQ(fine.first, -100);
    const RulerLook right = lookOf(LensScale::right, 4);
    EXPECT_EQ(right.first, -40);
    EXPECT_EQ(right.last, 300);
    const RulerLook left = lookOf(LensScale::left, 4);
    EXPECT_EQ(left.first, -40);
    EXPECT_EQ(left.last, 307);
}

TEST(RulerWalk, EndsWhereTheStripDoesIfThatIsLater) {
    const LensLayout layout = layOutLens({{310, 340}, 4, false, {true, true, false, false}, 96});
    ASSERT_EQ(layout.LensWidth, 300);
    EXPECT_EQ(rulerLook(LensScale::bottom, layout, glyphs(), 0, 96).last, 300);
}

TEST(RulerWalk, GivesEveryPixelOfTheImageItsTick) {
    for (const LensScale scale : lensScales) {
        for (int factor = 1; factor <= 10; ++factor) {
            const RulerLook look = lookOf(scale, factor, 3, true);
            const LensLayout layout = layoutOf(factor, true);
            const PixelSheet sheet = drawn(look);
            const int pixels = look.isRow() ? layout.SourceWidth : layout.SourceHeight;
            for (int pixel = 0; pixel < pixels; ++pixel) {
                const RulerMark mark = rulerMark(look, pixel * factor);
                if (mark.Length == 0) {
                    continue;
                }
                const bool atEnd = scale == LensScale::top || scale == LensScale::left;
                const int at = look.isRow() ? mark.tick.from.x : mark.tick.from.y;
                const int edge = look.isRow() ? look.canvas.height : look.canvas.width;
                const int rim = atEnd ? edge - 1 : 0;
                EXPECT_EQ(look.isRow() ? sheet.at(at, rim) : sheet.at(rim, at), ink)
                    << "pixel " << pixel << " at factor " << factor;
            }
        }
    }
}

TEST(RulerLabels, ThatAnEndOfTheScaleWouldCutAreNotDrawn) {
    const RulerLook top = lookOf(LensScale::top, 4);
    const auto labels = labelsOf(top);
    // The line of -10 lies before the strip, the end of its number would not.
    EXPECT_FALSE(labelFits(top, labels.at(-10), glyphs()));
    EXPECT_TRUE(labelFits(top, labels.at(0), glyphs()));
    RulerMark last = rulerMark(top, 280);
    last.Value = 1234;
    last.text.x = top.canvas.width - 4 * 6;
    EXPECT_TRUE(labelFits(top, last, glyphs()));
    last.text.x += 1;
    EXPECT_FALSE(labelFits(top, last, glyphs())) << "a digit would be halved";
    const RulerLook right = lookOf(LensScale::right, 4);
    RulerMark lowest = rulerMark(right, 280);
    lowest.text.y = right.canvas.height - glyphs().height;
    EXPECT_TRUE(labelFits(right, lowest, glyphs()));
    lowest.text.y += 1;
    EXPECT_FALSE(labelFits(right, lowest, glyphs()));
}

TEST(RulerLabels, ThatWouldBeCutLeaveTheirTickAndNothingElse) {
    int cut = 0;
    for (const LensScale scale : lensScales) {
        for (int base = -1010; base < 1000; base += 7) {
            const RulerLook look = lookOf(scale, 4, base);
            const PixelSheet sheet = drawn(look);
            for (const auto& [value, mark] : labelsOf(look)) {
                const int at = look.isRow() ? mark.tick.from.x : mark.tick.from.y;
                const int length = look.isRow() ? look.canvas.width : look.canvas.height;
                if (at < 0 || at >= length || labelFits(look, mark, glyphs())) {
                    continue;
                }
                ++cut;
                const PixelPoint tick = mark.tick.to;
                const PixelPoint beyond = mark.toEdge.to;
                const int middle = (look.isRow() ? tick.y + beyond.y : tick.x + beyond.x) / 2;
                EXPECT_NE(look.isRow() ? sheet.at(at, middle) : sheet.at(middle, at), quietInk)
                    << value;
                const int rim = look.isRow() ? std::min(mark.tick.from.y, look.canvas.height - 1)
                                             : std::min(mark.tick.from.x, look.canvas.width - 1);
                EXPECT_EQ(look.isRow() ? sheet.at(at, rim) : sheet.at(rim, at), ink) << value;
            }
        }
    }
    EXPECT_GT(cut, 100);
}

TEST(RulerBackground, RunsFromLightToDark) {
    PixelSheet top({100, 16});
    fillRuler(top.view(), LensScale::top);
    EXPECT_EQ(top.at(0, 0), 0xFF686868U);
    EXPECT_EQ(top.at(2, 15), 0xFF4A4A4AU);
    PixelSheet right({28, 100});
    fillRuler(right.view(), LensScale::right);
    EXPECT_EQ(right.at(0, 50), 0xFF686868U);
    EXPECT_EQ(right.at(27, 50), 0xFF4A4A4AU);
}

TEST(RulerBackground, OfTheLeftScaleBeginsDarker) {
    PixelSheet left({28, 100});
    fillRuler(left.view(), LensScale::left);
    EXPECT_EQ(left.at(0, 0), 0xFF606060U);
    EXPECT_EQ(left.at(0, 99), 0xFF606060U);
    EXPECT_EQ(left.at(27, 50), 0xFF4A4A4AU);
}

TEST(DrawRuler, PutsTickEdgeAndShadowWhereTheMarkSays) {
    const PixelSheet top = drawn(lookOf(LensScale::top, 4));
    for (int y = 11; y < 16; ++y) {
        EXPECT_EQ(top.at(69, y), ink);
    }
    for (int y = 0; y < 11; ++y) {
        EXPECT_EQ(top.at(69, y), quietInk) << y;
        EXPECT_EQ(top.at(68, y), shadow);
    }
    EXPECT_EQ(top.at(73, 15), ink) << "a pixel's own tick";
    EXPECT_EQ(top.at(73, 13), drawn(lookOf(LensScale::top, 1)).at(72, 13));
}

TEST(DrawRuler, AtFactor1OnlyFivesAndTensHaveTicks) {
    const RulerLook look = lookOf(LensScale::bottom, 1);
    const PixelSheet bottom = drawn(look);
    for (int value = 0; value < 200; ++value) {
        EXPECT_EQ(bottom.at(28 + value, 0) == ink, value % 5 == 0) << value;
    }
}

TEST(DrawRuler, WritesNumbersBesideTheirMarks) {
    ScaleGlyphs signs = glyphs();
    for (auto& glyph : signs.glyphs) {
        glyph.coverage.assign(glyph.coverage.size(), 255);
    }
    const PixelSheet top = drawn(lookOf(LensScale::top, 4), signs);
    EXPECT_EQ(top.at(71, 0), ink);
    EXPECT_EQ(top.at(71 + 11, 12), ink) << "two digits";
    EXPECT_NE(top.at(71 + 12, 0), ink);
    const PixelSheet left = drawn(lookOf(LensScale::left, 4), signs);
    EXPECT_EQ(left.at(21, 45), ink);
    EXPECT_EQ(left.at(10, 45), ink);
    EXPECT_NE(left.at(9, 45), ink);
    EXPECT_NE(left.at(22, 45), ink);
}

TEST(CountedPlace, IsThatOfTheScalesThatAreOn) {
    constexpr ScaleOrigins origins{{500, 400}, {120, 90}, {-1280, 0}};
    LensOptions options;
    options.topOrigin = scaleOrigin::worksheet;
    options.bottomOrigin = scaleOrigin::magnifier;
    EXPECT_EQ(countedPlace({7, 3}, options, origins), (PixelPoint{387, 313}));
    options.topScales = false;
    EXPECT_EQ(countedPlace({7, 3}, options, origins), (PixelPoint{7, 3}));
    options.bottomScales = false;
    EXPECT_EQ(countedPlace({7, 3}, options, origins), (PixelPoint{387, 313}));
    options.topOrigin = scaleOrigin::allScreens;
    EXPECT_EQ(countedPlace({7, 3}, options, origins), (PixelPoint{1787, 403}));
}

}  // namespace
}  // namespace ormala
