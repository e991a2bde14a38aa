#include "widgets/buttonFace.h"

#include <gtest/gtest.h>

#include "scene/pixelImages.h"
#include "support/Contrast.h"
#include "widgets/dpi.h"
#include "widgets/lookColors.h"

namespace ormala {
namespace {

constexpr PixelSize size{40, 22};
constexpr Color back = rgb(100, 110, 120);
constexpr std::uint32_t outline = 0xFF404040U;
constexpr std::uint32_t hoverMark = 0xFFE19947U;
constexpr std::uint32_t focusMark = 0xFF8CAAE6U;

Color sampleSystemColor(int index) {
    return rgb(index, 2 * index, 3 * index);
}

ButtonDesign grey() {
    ButtonDesign design;
    design.BackColor = back;
    design.ForeColor = rgb(255, 230, 0);
    return design;
}

PixelImage face(const ButtonDesign& design, const ButtonState& state, int dpi = 96) {
    const PixelSize scaled{size.width * dpi / 96, size.height * dpi / 96};
    return buttonFace(design, state, scaled, dpi, &sampleSystemColor);
}

std::uint32_t shifted(int delta) {
    return opaquePixel(OffsetColor(back, delta, nullptr));
}

TEST(buttonFace, NormalFaceFallsFromBrightToDark) {
    const PixelImage image = face(grey(), {});
    EXPECT_EQ(pixelAt(image, {20, 0}), outline);
    EXPECT_EQ(pixelAt(image, {20, 1}), shifted(48));
    EXPECT_EQ(pixelAt(image, {20, 20}), shifted(-24));
    EXPECT_EQ(pixelAt(image, {20, 21}), outline);
    EXPECT_EQ(pixelAt(image, {0, 10}), outline);
    EXPECT_EQ(pixelAt(image, {39, 10}), outline);
    EXPECT_EQ(pixelAt(image, {1, 10}), pixelAt(image, {38, 10}));
}

TEST(buttonFace, PressedFaceRisesFromDarkToBright) {
    const PixelImage image = face(grey(), {true, false, true, false});
    EXPECT_EQ(pixelAt(image, {20, 1}), shifted(-22));
    EXPECT_EQ(pixelAt(image, {20, 20}), shifted(48));
}

TEST(buttonFace, PlaneFaceHasTheBackColourInAllRows) {
    ButtonDesign design = grey();
    design.PlaneFace = true;
    const PixelImage image = face(design, {});
    for (int y = 1; y < 21; ++y) {
        EXPECT_EQ(pixelAt(image, {20, y}), shifted(0)) << y;
    }
}

TEST(buttonFace, DisabledFaceIsFlatWithALighterOutlineAndNoMarks) {
    ButtonDesign design = grey();
    const ButtonState disabled{false, true, false, true};
    const PixelImage image = face(design, disabled);
    EXPECT_EQ(pixelAt(image, {20, 0}), 0xFF7A7A7AU);
    for (int y = 1; y < 21; ++y) {
        EXPECT_EQ(pixelAt(image, {20, y}), shifted(58)) << y;
    }
    design.PlaneFace = true;
    EXPECT_EQ(pixelAt(face(design, disabled), {20, 10}), shifted(0));
}

TEST(buttonFace, MarkIsTwoPixelsWideInsideTheOutline) {
    const PixelImage image = face(grey(), {true, true, false, false});
    EXPECT_EQ(pixelAt(image, {20, 0}), outline);
    EXPECT_EQ(pixelAt(image, {20, 1}), hoverMark);
    EXPECT_EQ(pixelAt(image, {20, 2}), hoverMark);
    EXPECT_EQ(pixelAt(image, {2, 10}), hoverMark);
    EXPECT_EQ(pixelAt(image, {37, 10}), hoverMark);
    EXPECT_EQ(pixelAt(image, {3, 10}), pixelAt(face(grey(), {}), {3, 10}));
    EXPECT_EQ(pixelAt(image, {20, 3}), pixelAt(face(grey(), {}), {20, 3}));
}

TEST(buttonFace, FocusIsMarkedOnlyWhileTheMouseIsNotOverTheButton) {
    EXPECT_EQ(pixelAt(face(grey(), {true, false, false, true}), {20, 1}), focusMark);
    EXPECT_EQ(pixelAt(face(grey(), {true, true, false, true}), {20, 1}), hoverMark);
}

TEST(buttonFace, OwnMarkColoursCountWithoutTheDefaultOnes) {
    ButtonDesign design = grey();
    design.XPDefaultColors = false;
    EXPECT_EQ(pixelAt(face(design, {true, false, false, true}), {20, 1}), 0xFF808080U);
    EXPECT_EQ(pixelAt(face(design, {true, true, false, false}), {20, 1}), 0xFFC0C0C0U);
}

TEST(buttonFace, RoundCornersAreTransparentAndTheOutlineFollowsThem) {
    const PixelImage image = face(grey(), {});
    for (const int x : {0, 39}) {
        for (const int y : {0, 21}) {
            EXPECT_EQ(pixelAt(image, {x, y}), 0U) << x << ' ' << y;
        }
    }
    EXPECT_EQ(pixelAt(image, {1, 0}), outline);
    EXPECT_EQ(pixelAt(image, {1, 1}), outline);
    EXPECT_NE(pixelAt(image, {2, 1}), outline);
}

TEST(buttonFace, SquareCornersHaveOutlineUpToTheCorner) {
    ButtonDesign design = grey();
    design.CornerStyle = 3;
    const PixelImage image = face(design, {});
    EXPECT_EQ(pixelAt(image, {0, 0}), outline);
    EXPECT_EQ(pixelAt(image, {39, 21}), outline);
    EXPECT_NE(pixelAt(image, {1, 1}), outline);
}

TEST(buttonFace, LinesGrowWithTheResolution) {
    const PixelImage image = face(grey(), {true, true, false, false}, 192);
    EXPECT_EQ(pixelAt(image, {40, 1}), outline);
    EXPECT_EQ(pixelAt(image, {40, 2}), hoverMark);
    EXPECT_EQ(pixelAt(image, {40, 5}), hoverMark);
    EXPECT_NE(pixelAt(image, {40, 6}), hoverMark);
}

TEST(buttonFace, SystemColoursAreLookedUp) {
    const ButtonDesign design;
    ButtonDesign plane = design;
    plane.PlaneFace = true;
    EXPECT_EQ(pixelAt(face(plane, {}), {20, 10}), opaquePixel(sampleSystemColor(15)));
}

TEST(buttonFace, FlatStyleShowsNothingUntilTheMouseComes) {
    ButtonDesign design = grey();
    design.ButtonStyle = 1;
    const PixelImage normal = face(design, {});
    EXPECT_EQ(normal.argb, filledImage(size, shifted(0)).argb);
    const PixelImage hover = face(design, {true, true, false, false});
    EXPECT_EQ(pixelAt(hover, {0, 0}), opaquePixel(design.ForeColor));
    // The selection colour is 13, 26, 39 here; 79 of 255 parts of it and 176.
    EXPECT_EQ(pixelAt(hover, {20, 10}), opaquePixel(rgb(180, 184, 188)));
    const PixelImage pressed = face(design, {true, true, true, false});
    EXPECT_EQ(pixelAt(pressed, {20, 10}), opaquePixel(rgb(134, 140, 147)));
    design.XPDefaultColors = false;
    EXPECT_EQ(pixelAt(face(design, {true, true, false, false}), {20, 10}), 0xFFC0C0C0U);
    EXPECT_EQ(pixelAt(face(design, {true, true, true, false}), {20, 10}), 0xFF808080U);
}

TEST(buttonFace, UnknownStylePaintsNoFace) {
    ButtonDesign design = grey();
    design.ButtonStyle = 17;
    EXPECT_EQ(face(design, {true, true, true, true}).argb, filledImage(size, shifted(0)).argb);
}

TEST(buttonFace, PressedContentSinksByOnePixelAndRisesByTwoInTheFlatStyle) {
    ButtonDesign design = grey();
    const ButtonState pressed{true, false, true, false};
    EXPECT_EQ(pictureShift(design, {}, 96), 0);
    EXPECT_EQ(pictureShift(design, pressed, 96), 1);
    EXPECT_EQ(captionShift(design, pressed, 96), 1);
    EXPECT_EQ(pictureShift(design, pressed, 192), 2);
    design.ButtonStyle = 1;
    EXPECT_EQ(pictureShift(design, pressed, 96), -2);
    EXPECT_EQ(captionShift(design, pressed, 96), 0);
}

TEST(pictureInState, GreyPictureGetsItsColoursUnderTheMouse) {
    const PixelImage red{{1, 1}, {0x80FF0000U}};
    ButtonDesign design = grey();
    EXPECT_EQ(pictureInState(red, design, {}, nullptr).argb, red.argb);
    design.GreyPicture = true;
    EXPECT_EQ(pictureInState(red, design, {}, nullptr).argb, std::vector{0x80363636U});
    EXPECT_EQ(pictureInState(red, design, {true, true, false, false}, nullptr).argb, red.argb);
}

TEST(pictureInState, DisabledPictureIsGreyAndFaded) {
    const PixelImage red{{1, 1}, {0xFFFF0000U}};
    EXPECT_EQ(pictureInState(red, grey(), {false, false, false, false}, nullptr).argb,
              std::vector{0x60363636U});
}

/// The colour of an opaque pixel, whose parts stand the other way round.
Color colorOf(std::uint32_t pixel) {
    return rgb(static_cast<int>(pixel >> 16 & 0xFF), static_cast<int>(pixel >> 8 & 0xFF),
               static_cast<int>(pixel & 0xFF));
}

TEST(buttonFace, ThePlaneFaceOfAPressIsDarkerAndThatOfAToggleIsNot) {
    ButtonDesign design = grey();
    design.PlaneFace = true;
    EXPECT_EQ(pixelAt(face(design, {true, false, true, false}), {20, 10}), shifted(-22));
    EXPECT_EQ(pixelAt(face(design, {true, false, true, false, true}), {20, 10}), shifted(0));
}

TEST(buttonFace, AnOpenBottomIsOneWithWhatLiesBelow) {
    ButtonDesign design = grey();
    design.PlaneFace = true;
    design.OpenBelow = true;
    const PixelImage image = face(design, {});
    EXPECT_EQ(pixelAt(image, {0, 21}), outline);
    EXPECT_EQ(pixelAt(image, {1, 21}), shifted(0));
    EXPECT_EQ(pixelAt(image, {20, 21}), shifted(0));
    EXPECT_EQ(pixelAt(image, {20, 0}), outline);
}

/// The pixels of a sign's place that have another colour than the face.
int inkOf(ButtonSign sign, bool on, int dpi = 96) {
    ButtonDesign design = grey();
    design.PlaneFace = true;
    design.Sign = sign;
    const ButtonState state{true, false, false, false, on};
    PixelImage image = face(design, state, dpi);
    const PixelRect place = scaledToDpi(PixelRect{7, 6, 16, 15}, dpi);
    paintSign(image, place, design, state, dpi, &sampleSystemColor);
    int ink = 0;
    for (int y = place.top; y < place.bottom; ++y) {
        for (int x = place.left; x < place.right; ++x) {
            ink += pixelAt(image, {x, y}) != shifted(0) ? 1 : 0;
        }
    }
    return ink;
}

TEST(paintSign, TickAndLampTellWithoutColourWhetherAButtonIsOn) {
    for (const int dpi : {96, 144, 192}) {
        EXPECT_GE(inkOf(ButtonSign::tick, true, dpi), inkOf(ButtonSign::tick, false, dpi) + 6);
        EXPECT_GE(inkOf(ButtonSign::lamp, true, dpi), inkOf(ButtonSign::lamp, false, dpi) + 6);
    }
    EXPECT_NE(inkOf(ButtonSign::tick, false), inkOf(ButtonSign::lamp, false));
}

TEST(buttonFace, CaptionsStandOutFromEachRowBehindThem) {
    for (const CaptionColors& colors :
         {dialogCaption, dialogCaptionOn, toolbarCaption, toolbarCaptionOn}) {
        ButtonDesign design;
        design.BackColor = colors.face;
        design.PlaneFace = colors.plane;
        for (const bool pressed : {false, true}) {
            const PixelImage image =
                buttonFace(design, {true, false, pressed, false, false}, {90, 24}, 96, nullptr);
            for (int y = 6; y < 18; ++y) {
                EXPECT_GE(test::contrast(colorOf(pixelAt(image, {45, y})), colors.text),
                          test::readable)
                    << std::hex << colors.face << std::dec << " row " << y;
            }
        }
    }
}

/// The ground, the text, the chosen ground and its text of a black scheme, each of its own.
Color blackScheme(int index) {
    switch (static_cast<ColorRole>(index)) {
        case ColorRole::window:
        case ColorRole::buttonFace:
            return rgb(0, 0, 0);
        case ColorRole::buttonText:
            return rgb(0, 255, 1);
        case ColorRole::highlight:
            return rgb(26, 235, 255);
        case ColorRole::highlightText:
            return rgb(2, 0, 2);
        case ColorRole::grayText:
            return rgb(63, 242, 63);
        default:
            return rgb(255, 255, 255);
    }
}

constexpr SystemColorLookup contrasting(blackScheme, true);
constexpr ButtonState resting{true, false, false, false};
constexpr ButtonState disabled{false, false, false, false};

ButtonDesign inRole(Color ground) {
    ButtonDesign design;
    design.BackColor = ground;
    design.ForeColor = dark::text;
    return design;
}

TEST(buttonFaceInHighContrast, IsPlaneInTheColorOfItsRole) {
    for (const ButtonState& state : {resting, disabled, ButtonState{true, false, true, false}}) {
        const PixelImage image = buttonFace(inRole(dark::off), state, size, 96, contrasting);
        for (int y = 1; y < 21; ++y) {
            EXPECT_EQ(pixelAt(image, {20, y}), opaquePixel(rgb(0, 0, 0))) << y;
        }
        const Color edge = state.enabled ? rgb(255, 255, 255) : rgb(63, 242, 63);
        EXPECT_EQ(pixelAt(image, {20, 0}), opaquePixel(edge));
    }
    const PixelImage on = buttonFace(inRole(dark::on), resting, size, 96, contrasting);
    EXPECT_EQ(pixelAt(on, {20, 10}), opaquePixel(rgb(26, 235, 255)));
}

TEST(buttonFaceInHighContrast, MarksFocusAndMouseInTheColorOfItsText) {
    for (const Color ground : {dark::off, dark::on}) {
        ButtonState state = resting;
        state.focused = true;
        const PixelImage image = buttonFace(inRole(ground), state, size, 96, contrasting);
        EXPECT_EQ(pixelAt(image, {20, 1}), opaquePixel(inkOf(inRole(ground), state, contrasting)));
    }
}

TEST(buttonFaceInHighContrast, InkBelongsToTheFace) {
    EXPECT_EQ(inkOf(inRole(dark::off), resting, contrasting), rgb(0, 255, 1));
    EXPECT_EQ(inkOf(inRole(dark::on), resting, contrasting), rgb(2, 0, 2));
    EXPECT_EQ(inkOf(inRole(dark::off), disabled, contrasting), rgb(63, 242, 63));
    EXPECT_EQ(inkOf(inRole(dark::off), resting, sampleSystemColor), dark::text & figures);
    // A swatch keeps face and text.
    EXPECT_EQ(inkOf(grey(), resting, contrasting), rgb(255, 230, 0));
    EXPECT_NE(pixelAt(buttonFace(grey(), resting, size, 96, contrasting), {20, 1}),
              pixelAt(buttonFace(grey(), resting, size, 96, contrasting), {20, 20}));
}

TEST(buttonFaceInHighContrast, PicturesTakeTheColorsOfTheFaceByTheirKind) {
    const PixelImage drawn{{2, 1}, {opaquePixel(pictureInk::ink), opaquePixel(pictureInk::paper)}};
    const std::uint32_t face = opaquePixel(rgb(26, 235, 255));
    const std::uint32_t ink = opaquePixel(rgb(2, 0, 2));
    ButtonDesign design = inRole(dark::on);
    EXPECT_EQ(pictureInState(drawn, design, resting, contrasting).argb, (std::vector{face, ink}));
    EXPECT_EQ(pictureInState(drawn, design, resting, sampleSystemColor).argb, drawn.argb);
    design.Kind = PictureKind::lines;
    EXPECT_EQ(pictureInState(drawn, design, resting, contrasting).argb, (std::vector{ink, ink}));
    design.Kind = PictureKind::preview;
    EXPECT_EQ(pictureInState(drawn, design, resting, contrasting).argb, drawn.argb);
    design = inRole(dark::off);
    EXPECT_EQ(pictureInState(drawn, design, disabled, contrasting).argb[1],
              opaquePixel(rgb(63, 242, 63)));
}

}  // namespace
}  // namespace ormala
