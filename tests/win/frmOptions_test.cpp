#include "dialogs/win/frmOptions.h"

#include <oleacc.h>

#include "dialogs/palettes.h"
#include "language/MlStringModule.h"
#include "win/DialogPicture.h"
#include "win/OptionsStage.h"
#include "win/TestAccessible.h"

namespace ormala {
namespace {

class frmOptionsTest : public OptionsStage {
  protected:
    /// One change on every page.
    void changeMuch() const {
        click("optLanguage(1)");
        click("chkTemplateWithBorder");
        click("optGridMode(1)");
        step("sldMagnification", VK_RIGHT);
        click("optHotSpotDrawMode(2)");
    }
    /// Picks the colour right of the present one in the dialog of colours.
    void pickNextColor() {
        player_.untilActive("frmColor")
            .until("the palette", [] { return classNameOf(GetFocus()) == "ColorPic"; })
            .key(VK_RIGHT)
            .key(VK_RETURN)
            .untilActive("frmOptions");
    }
};

TEST_F(frmOptionsTest, ShowsTheLiveSettings) {
    port_.live.language = languageGerman;
    port_.live.templateWithBorder = true;
    port_.live.grid = {true, 1, 3, rgb(255, 0, 0), {20, 30, 4, 5}};
    port_.live.lens = {7,     true, false, false, rgb(0, 255, 0), 5, 13,
                       false, 0,    6,     false, true,           2, 3};
    untilReady()
        .then([this] {
            EXPECT_TRUE(isOn("optLanguage(1)"));
            EXPECT_TRUE(isOn("chkTemplateWithBorder"));
            EXPECT_TRUE(isOn("optGridMode(1)"));
            EXPECT_EQ(text("sldGridSizeX"), "Grid size X: 20");
            EXPECT_EQ(text("sldGridSizeY"), "Grid size Y: 30");
            EXPECT_EQ(text("sldGridOffsetX"), "Grid offset X: 4");
            EXPECT_EQ(text("sldGridOffsetY"), "Grid offset Y: 5");
            EXPECT_EQ(accessibleValueOf(part("GridLineSelect")), "4/5");
            EXPECT_EQ(accessibleValueOf(part("colpicGrid")), "#FF0000");
            EXPECT_FALSE(isOn("chkCursorVisible"));
            EXPECT_TRUE(isOn("chkStick"));
            EXPECT_EQ(text("sldMagnification"), "Magnification: 7");
            EXPECT_FALSE(isOn("chkHotSpotVisible"));
            EXPECT_TRUE(isOn("optHotSpotStyle(5)"));
            EXPECT_TRUE(isOn("optHotSpotDrawMode(2)"));
            EXPECT_FALSE(isOn("chkLensGridVisible"));
            EXPECT_TRUE(isOn("optLensGridDrawMode(0)"));
            EXPECT_FALSE(isOn("chkTopLeftVisible"));
            EXPECT_TRUE(isOn("optTopLeftRef(2)"));
            EXPECT_TRUE(isOn("chkBottomRightVisible"));
            EXPECT_TRUE(isOn("optBottomRightRef(3)"));
        })
        .key(VK_ESCAPE);
    show(0);
}

TEST_F(frmOptionsTest, OKWithoutChangeAppliesEqualValues) {
    untilReady().key(VK_RETURN);
    show(0);
    ASSERT_EQ(port_.applied.size(), 1U);
    EXPECT_EQ(port_.applied[0], port_.live);
    EXPECT_FALSE(dialog_.Cancelled());
}

TEST_F(frmOptionsTest, OKAppliesEveryControl) {
    untilReady().then([this] {
        click("optLanguage(1)");
        click("chkTemplateWithBorder");
        click("optGridMode(1)");
        click("chkSameGridSizeXY");
        click("chkSameGridOffsetXY");
        step("sldGridSizeX", VK_RIGHT);
        step("sldGridSizeY", VK_LEFT);
        step("sldGridOffsetX", VK_RIGHT);
        SendMessageW(part("GridLineSelect"), WM_KEYDOWN, VK_DOWN, 1);
        click("chkLogicalPixels");
        click("chkCursorVisible");
        click("chkStick");
        step("sldMagnification", VK_RIGHT);
        click("chkHotSpotVisible");
        click("optHotSpotStyle(7)");
        click("optHotSpotDrawMode(0)");
        click("chkLensGridVisible");
        click("optLensGridDrawMode(2)");
        click("chkTopLeftVisible");
        click("optTopLeftRef(3)");
        click("chkBottomRightVisible");
        click("optBottomRightRef(2)");
    });
    pressOK();
    show(0);
    OptionValues expected = port_.live;
    expected.language = languageGerman;
    expected.templateWithBorder = true;
    expected.logicalPixels = true;
    expected.grid.style = 1;
    expected.grid.lineWidth = 3;
    expected.grid.steps = {51, 49, 1, 0};
    expected.lens = {
        5,     true,  false, false, rgb(0, 0, 255), 7, 6, false, rgb(191, 191, 191), 13,
        false, false, 3,     2};
    ASSERT_EQ(port_.applied.size(), 1U);
    EXPECT_EQ(port_.applied[0], expected);
}

TEST_F(frmOptionsTest, APressThatMovesOffChoosesNothing) {
    untilReady()
        .then([this] {
            for (const char* name : {"btnTab(2)", "optLanguage(1)", "chkTemplateWithBorder",
                                     "optGridMode(1)", "optHotSpotStyle(7)", "cmdOK"}) {
                const bool before = isOn(name);
                SendMessageW(part(name), WM_LBUTTONDOWN, MK_LBUTTON, MAKELPARAM(5, 5));
                EXPECT_EQ(isOn(name), before) << name;
                SendMessageW(part(name), WM_MOUSEMOVE, MK_LBUTTON, MAKELPARAM(-30, -30));
                SendMessageW(part(name), WM_LBUTTONUP, 0, MAKELPARAM(-30, -30));
                EXPECT_EQ(isOn(name), before) << name;
            }
            expectPage(0);
        })
        .key(VK_RETURN);
    show(0);
    ASSERT_EQ(port_.applied.size(), 1U);
    EXPECT_EQ(port_.applied[0], port_.live);
}

TEST_F(frmOptionsTest, APressAndAReleaseOnAnOptionChooseIt) {
    untilReady()
        .then([this] {
            for (const char* name : {"optLanguage(1)", "btnTab(2)"}) {
                SendMessageW(part(name), WM_LBUTTONDOWN, MK_LBUTTON, MAKELPARAM(5, 5));
                SendMessageW(part(name), WM_LBUTTONUP, 0, MAKELPARAM(5, 5));
                EXPECT_TRUE(isOn(name)) << name;
            }
            expectPage(2);
        })
        .key(VK_RETURN);
    show(0);
    ASSERT_EQ(port_.applied.size(), 1U);
    EXPECT_EQ(port_.applied[0].language, languageGerman);
}

TEST_F(frmOptionsTest, AValueBeyondItsSliderIsTakenOnlyWhenItsSliderIsMoved) {
    port_.live.grid.steps = {512, 400, 0, 0};
    untilReady().then([this] { EXPECT_EQ(text("sldGridSizeX"), "Grid size X: 300"); });
    pressOK();
    show(1);
    untilReady().then([this] {
        // Away from the end and back to it.
        step("sldGridSizeX", VK_LEFT);
        step("sldGridSizeX", VK_RIGHT);
        EXPECT_EQ(text("sldGridSizeX"), "Grid size X: 300");
    });
    pressOK();
    show(1);
    untilReady().then([this] {
        const HWND slider = part("sldGridSizeY");
        RECT room{};
        GetClientRect(slider, &room);
        const auto send = [slider](UINT message, LONG x, LONG y) {
            SendMessageW(slider, message, message == WM_LBUTTONUP ? 0 : MK_LBUTTON,
                         MAKELPARAM(x, y));
        };
        const LONG y = room.bottom - 8;
        send(WM_LBUTTONDOWN, room.right - 7, y);
        send(WM_MOUSEMOVE, room.right - 60, y);
        send(WM_MOUSEMOVE, room.right - 7, y);
        send(WM_LBUTTONUP, room.right - 7, y);
        EXPECT_EQ(text("sldGridSizeY"), "Grid size Y: 300");
    });
    pressOK();
    show(1);
    ASSERT_EQ(port_.applied.size(), 3U);
    EXPECT_EQ(port_.applied[0].grid.steps, port_.live.grid.steps);
    EXPECT_EQ(port_.applied[1].grid.steps, (decltype(port_.live.grid.steps){300, 400, 0, 0}));
    EXPECT_EQ(port_.applied[2].grid.steps, (decltype(port_.live.grid.steps){512, 300, 0, 0}));
}

TEST_F(frmOptionsTest, ThePickedGridColorIsApplied) {
    port_.live.grid.color = rgb(255, 0, 0);
    untilReady().then([this] { SendMessageW(part("colpicGrid"), WM_KEYDOWN, VK_DOWN, 1); });
    pressOK();
    show(1);
    ASSERT_EQ(port_.applied.size(), 1U);
    EXPECT_EQ(port_.applied[0].grid.color, paletteOf(palette::hues).at({0, 7}));
}

TEST_F(frmOptionsTest, CancelLeavesNothingBehindAndTheNextOpeningShowsLiveValues) {
    untilReady().then([this] { changeMuch(); }).then([this] {
        PostMessageW(part("cmdHotSpotDrawColor"), BM_CLICK, 0, 0);
    });
    pickNextColor();
    player_.then([this] { PostMessageW(part("cmdCancel"), BM_CLICK, 0, 0); });
    show(2);
    EXPECT_TRUE(dialog_.Cancelled());
    EXPECT_TRUE(port_.applied.empty());
    port_.live.lens.factor = 9;
    untilReady()
        .then([this] {
            EXPECT_TRUE(isOn("optLanguage(0)"));
            EXPECT_FALSE(isOn("chkTemplateWithBorder"));
            EXPECT_TRUE(isOn("optGridMode(2)"));
            EXPECT_EQ(text("sldMagnification"), "Magnification: 9");
            EXPECT_TRUE(isOn("optHotSpotDrawMode(1)"));
        })
        .key(VK_RETURN);
    show(-1);
    ASSERT_EQ(port_.applied.size(), 1U);
    EXPECT_EQ(port_.applied[0], port_.live);
}

TEST_F(frmOptionsTest, ClosingTheFrameCancels) {
    untilReady().then([this] { changeMuch(); }).then([this] {
        PostMessageW(dialog_.handle(), WM_CLOSE, 0, 0);
    });
    show(0);
    EXPECT_TRUE(port_.applied.empty());
}

TEST_F(frmOptionsTest, EscapeCancels) {
    untilReady().then([this] { changeMuch(); }).key(VK_ESCAPE);
    show(0);
    EXPECT_TRUE(port_.applied.empty());
}

TEST_F(frmOptionsTest, AColorPickedOverTheDialogIsAppliedByOK) {
    port_.live.lens.gridColor = rgb(255, 0, 0);
    untilReady().then([this] {
        SetFocus(part("cmdLensGridColor"));
        PostMessageW(part("cmdLensGridColor"), WM_KEYDOWN, VK_RETURN, 1);
    });
    pickNextColor();
    player_.until("the focus back", [this] { return hasFocus("cmdLensGridColor"); });
    pressOK();
    show(2);
    ASSERT_EQ(port_.applied.size(), 1U);
    OptionValues expected = port_.live;
    expected.lens.gridColor = paletteOf(palette::hues).at({1, 6});
    EXPECT_EQ(port_.applied[0], expected);
}

TEST_F(frmOptionsTest, CoupledSlidersMoveEachOther) {
    untilReady().then([this] {
        EXPECT_TRUE(isOn("chkSameGridSizeXY"));
        step("sldGridSizeX", VK_RIGHT);
        EXPECT_EQ(text("sldGridSizeY"), "Grid size Y: 51");
        step("sldGridSizeY", VK_RIGHT);
        EXPECT_EQ(text("sldGridSizeX"), "Grid size X: 52");
        EXPECT_TRUE(isOn("chkSameGridOffsetXY"));
        step("sldGridOffsetX", VK_RIGHT);
        EXPECT_EQ(text("sldGridOffsetY"), "Grid offset Y: 1");
        step("sldGridOffsetY", VK_RIGHT);
        EXPECT_EQ(text("sldGridOffsetX"), "Grid offset X: 2");
    });
    pressOK();
    show(1);
    ASSERT_EQ(port_.applied.size(), 1U);
    EXPECT_EQ(port_.applied[0].grid.steps, (Grid{52, 52, 2, 2}));
}

TEST_F(frmOptionsTest, DecouplingMovesNothing) {
    untilReady().then([this] {
        click("chkSameGridSizeXY");
        EXPECT_FALSE(isOn("chkSameGridSizeXY"));
        EXPECT_EQ(text("sldGridSizeX"), "Grid size X: 50");
        EXPECT_EQ(text("sldGridSizeY"), "Grid size Y: 50");
        step("sldGridSizeX", VK_LEFT);
        EXPECT_EQ(text("sldGridSizeY"), "Grid size Y: 50");
    });
    pressOK();
    show(1);
    ASSERT_EQ(port_.applied.size(), 1U);
    EXPECT_EQ(port_.applied[0].grid.steps, (Grid{49, 50, 0, 0}));
}

TEST_F(frmOptionsTest, CouplingCopiesXToY) {
    port_.live.grid.steps = {20, 30, 1, 2};
    untilReady().then([this] {
        EXPECT_FALSE(isOn("chkSameGridSizeXY"));
        click("chkSameGridSizeXY");
        EXPECT_EQ(text("sldGridSizeY"), "Grid size Y: 20");
        click("chkSameGridOffsetXY");
        EXPECT_EQ(text("sldGridOffsetY"), "Grid offset Y: 1");
    });
    pressOK();
    show(1);
    ASSERT_EQ(port_.applied.size(), 1U);
    EXPECT_EQ(port_.applied[0].grid.steps, (Grid{20, 20, 1, 1}));
}

TEST_F(frmOptionsTest, AValueThatNoOptionHasSelectsNoneAndStaysByOK) {
    port_.live.language = 0;
    port_.live.grid.style = 0;
    port_.live.lens.hotSpotStyle = 12;
    port_.live.lens.hotSpotDrawMode = 7;
    port_.live.lens.gridDrawMode = 15;
    port_.live.lens.topOrigin = 4;
    untilReady().then([this] {
        for (const char* const option :
             {"optLanguage(0)", "optLanguage(1)", "optGridMode(1)", "optGridMode(2)",
              "optHotSpotDrawMode(0)", "optHotSpotDrawMode(1)", "optHotSpotDrawMode(2)"}) {
            EXPECT_FALSE(isOn(option)) << option;
        }
    });
    pressOK();
    show(2);
    ASSERT_EQ(port_.applied.size(), 1U);
    EXPECT_EQ(port_.applied[0], port_.live);
}

TEST_F(frmOptionsTest, AValueOutsideOfASliderStaysByOK) {
    port_.live.grid.lineWidth = 9;
    port_.live.grid.steps = {1000, 2000, -40, -30};
    port_.live.lens.factor = 20;
    untilReady().then([this] {
        EXPECT_EQ(text("sldGridSizeX"), "Grid size X: 300");
        EXPECT_EQ(text("sldGridOffsetX"), "Grid offset X: 0");
    });
    pressOK();
    show(1);
    ASSERT_EQ(port_.applied.size(), 1U);
    EXPECT_EQ(port_.applied[0], port_.live);
}

TEST_F(frmOptionsTest, ALanguageChangeByItsOwnOKRelabelsTheDialog) {
    untilReady().then([this] { click("optLanguage(1)"); }).key(VK_RETURN);
    show(0);
    ASSERT_EQ(port_.applied.size(), 1U);
    GetLanguageSupport().ChangeLanguage(port_.applied[0].language);
    EXPECT_EQ(textOf(dialog_.handle()), "Ormala Optionen");
    EXPECT_EQ(text("btnTab(0)"), "Allgemein");
    EXPECT_EQ(text("cmdCancel"), "Abbrechen");
    EXPECT_EQ(text("sldMagnification"), "Vergrößerung: 4");
}

TEST_F(frmOptionsTest, ThePaletteEndsWhereItsColumnEndsAtEveryResolution) {
    untilReady()
        .then([this] {
            for (const int dpi : {96, 120, 144, 168, 192}) {
                moveToDpi(dialog_.handle(), dpi);
                RECT palette{};
                GetWindowRect(part("colpicGrid"), &palette);
                RECT slider{};
                GetWindowRect(part("sldGridOffsetX"), &slider);
                EXPECT_EQ(palette.right, slider.right) << dpi;
            }
        })
        .key(VK_ESCAPE);
    show(1);
}

TEST_F(frmOptionsTest, TheOpenTabIsOneWithItsPage) {
    untilReady()
        .then([this] {
            constexpr COLORREF on = RGB(187, 168, 0);
            RECT tab{};
            GetWindowRect(part("btnTab(1)"), &tab);
            MapWindowPoints(HWND_DESKTOP, dialog_.handle(), reinterpret_cast<POINT*>(&tab), 2);
            RedrawWindow(dialog_.handle(), nullptr, nullptr,
                         RDW_INVALIDATE | RDW_UPDATENOW | RDW_ALLCHILDREN);
            const HDC context = GetDC(dialog_.handle());
            const int middle = static_cast<int>(tab.left + tab.right) / 2;
            for (int y = static_cast<int>(tab.bottom) - 4; y < tab.bottom + 2; ++y) {
                EXPECT_EQ(GetPixel(context, middle, y), on) << y - tab.bottom;
            }
            ReleaseDC(dialog_.handle(), context);
        })
        .key(VK_ESCAPE);
    show(1);
}

TEST_F(frmOptionsTest, TheCaptionIsComposedOfTheTitle) {
    dialog_.SetRuntimeTexts("Other");
    EXPECT_EQ(textOf(dialog_.handle()), "Other Options");
    GetLanguageSupport().ChangeLanguage(languageGerman);
    EXPECT_EQ(textOf(dialog_.handle()), "Other Optionen");
}

}  // namespace
}  // namespace ormala
