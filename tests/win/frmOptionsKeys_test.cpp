#include <iterator>
#include <vector>

#include "win/OptionsStage.h"

namespace ormala {
namespace {

using frmOptionsKeys = OptionsStage;

TEST_F(frmOptionsKeys, OpensThePageThatIsNamedAndElseTheLastOne) {
    for (const int page : {1, 2, 0}) {
        untilReady().then([this, page] { expectPage(page); }).key(VK_ESCAPE);
        show(page);
    }
    untilReady()
        .then([this] { click("btnTab(2)"); })
        .then([this] { expectPage(2); })
        .key(VK_ESCAPE);
    show(1);
    untilReady().then([this] { expectPage(2); }).key(VK_ESCAPE);
    show(-1);
}

TEST_F(frmOptionsKeys, KeysGoThroughOptionsOfWhichNoneIsOnAndSpaceChooses) {
    port_.live.lens.hotSpotDrawMode = 7;
    untilReady()
        .then([this] { SetFocus(part("optHotSpotStyle(2)")); })
        .key(VK_TAB)
        .until("the draw modes", [this] { return hasFocus("optHotSpotDrawMode(0)"); })
        .key(VK_RIGHT)
        .until("the next one", [this] { return hasFocus("optHotSpotDrawMode(1)"); })
        .then([this] { EXPECT_FALSE(isOn("optHotSpotDrawMode(1)")); })
        .key(VK_SPACE)
        .until("the choice", [this] { return isOn("optHotSpotDrawMode(1)"); })
        .key(VK_RETURN);
    show(2);
    ASSERT_EQ(port_.applied.size(), 1U);
    EXPECT_EQ(port_.applied[0].lens.hotSpotDrawMode, 9);
}

TEST_F(frmOptionsKeys, IsTopmostAndBeginsWithTheFocusOnThePage) {
    untilReady()
        .then([this] {
            EXPECT_EQ(text("cmdOK"), "OK");
            EXPECT_EQ(textOf(dialog_.handle()), "Ormala Options");
            EXPECT_NE(GetWindowLongPtrW(dialog_.handle(), GWL_EXSTYLE) & WS_EX_TOPMOST, 0);
            EXPECT_TRUE(dialog_.Cancelled());
            EXPECT_TRUE(hasFocus("optLanguage(0)"));
        })
        .key(VK_ESCAPE);
    show(0);
    untilReady().then([this] { EXPECT_TRUE(hasFocus("chkCursorVisible")); }).key(VK_ESCAPE);
    show(2);
}

TEST_F(frmOptionsKeys, TabGoesThroughEveryControlOfAPageAndBack) {
    untilReady();
    for (const char* const control :
         {"chkCursorVisible", "chkStick", "sldMagnification", "chkHotSpotVisible",
          "optHotSpotStyle(2)", "optHotSpotDrawMode(1)", "cmdHotSpotDrawColor",
          "chkLensGridVisible", "optLensGridDrawMode(1)", "cmdLensGridColor", "chkTopLeftVisible",
          "optTopLeftRef(0)", "chkBottomRightVisible", "optBottomRightRef(1)", "cmdAbout", "cmdOK",
          "cmdCancel", "btnTab(2)"}) {
        player_.until(control, [this, control] { return hasFocus(control); }).key(VK_TAB);
    }
    player_.until("the first again", [this] { return hasFocus("chkCursorVisible"); })
        .key(VK_ESCAPE);
    show(2);
}

TEST_F(frmOptionsKeys, TabGoesThroughTheGridToo) {
    untilReady();
    for (const char* const control :
         {"optGridMode(2)", "sldGridSizeX", "sldGridSizeY", "chkSameGridSizeXY", "sldGridOffsetX",
          "sldGridOffsetY", "chkSameGridOffsetXY", "GridLineSelect", "colpicGrid", "cmdAbout"}) {
        player_.until(control, [this, control] { return hasFocus(control); }).key(VK_TAB);
    }
    player_.key(VK_ESCAPE);
    show(1);
}

TEST_F(frmOptionsKeys, ArrowsStayInTheirGroup) {
    untilReady()
        .then([this] { SetFocus(part("optTopLeftRef(3)")); })
        .key(VK_DOWN)
        .until("the first option", [this] { return isOn("optTopLeftRef(0)"); })
        .key(VK_LEFT)
        .until("the last option", [this] { return isOn("optTopLeftRef(3)"); })
        .key(VK_RETURN);
    show(2);
    ASSERT_EQ(port_.applied.size(), 1U);
    EXPECT_EQ(port_.applied[0].lens.topOrigin, 3);
    EXPECT_EQ(port_.applied[0].lens.bottomOrigin, 1);
}

TEST_F(frmOptionsKeys, ArrowsChooseThePage) {
    untilReady()
        .then([this] { SetFocus(part("btnTab(0)")); })
        .key(VK_RIGHT)
        .until("the next page", [this] { return isOn("btnTab(1)"); })
        .then([this] { expectPage(1); })
        .key(VK_ESCAPE);
    show(0);
}

TEST_F(frmOptionsKeys, TheAboutBoxComesUpOverTheDialog) {
    untilReady()
        .then([this] { PostMessageW(part("cmdAbout"), BM_CLICK, 0, 0); })
        .untilActive("frmAbout")
        .then([] {
            EXPECT_EQ(textOf(namedChild(GetActiveWindow(), "lblVersionInfo")), "1.2.3");
            EXPECT_EQ(textOf(namedChild(GetActiveWindow(), "lblTitle(0)")), "Ormala");
        })
        .key(VK_ESCAPE)
        .untilActive("frmOptions")
        .key(VK_ESCAPE);
    show(0);
    EXPECT_TRUE(port_.applied.empty());
}

TEST_F(frmOptionsKeys, EnterIsOKOnEveryKindOfControl) {
    const char* const controls[] = {"optGridMode(2)", "sldGridSizeX", "chkSameGridSizeXY",
                                    "GridLineSelect", "colpicGrid",   "btnTab(1)"};
    for (const char* const control : controls) {
        untilReady().then([this, control] { SetFocus(part(control)); }).key(VK_RETURN);
        show(1);
    }
    EXPECT_EQ(port_.applied, std::vector<OptionValues>(std::size(controls), port_.live));
}

TEST_F(frmOptionsKeys, ASecondCallWhileItIsShownDoesNothing) {
    untilReady()
        .then([this] {
            click("optLanguage(1)");
            show(2);
            EXPECT_TRUE(isOn("optLanguage(1)"));
            expectPage(0);
        })
        .key(VK_ESCAPE);
    show(0);
}

}  // namespace
}  // namespace ormala
