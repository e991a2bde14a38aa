#include <gtest/gtest.h>

#include <string>
#include <vector>

#include "app/win/shell/Program.h"
#include "app/win/tools/PanelDialogs.h"
#include "app/win/tools/ToolsPane.h"
#include "e2e/support/AppDataFolder.h"
#include "measure/ctlMeasure.h"
#include "platform/win/StandardControl.h"
#include "stencil/ctlRatioGrid.h"
#include "support/MemoryCodePage.h"
#include "win/EnglishTexts.h"
#include "win/ModalPlayer.h"

namespace ormala {
namespace {

/// The dialogs that the panels of the running program open.
class PanelDialogsTest : public testing::Test {
  protected:
    [[nodiscard]] HWND panel(const wchar_t* className) const {
        const HWND inner = namedChild(settings_.handle(), "picInner");
        return FindWindowExW(inner, nullptr, className, nullptr);
    }
    [[nodiscard]] HWND stencilPanel() const { return panel(L"ctlSetRatioGrid"); }
    [[nodiscard]] HWND measurePanel() const { return panel(L"ctlSetMeasure"); }
    [[nodiscard]] OverlayItem* tool(int kind) {
        return program_.worksheet().sheet().GetFirstControl(kind);
    }
    [[nodiscard]] ctlRatioGrid& stencil() { return dynamic_cast<ctlRatioGrid&>(*tool(0)); }
    [[nodiscard]] ctlMeasure& measure() { return dynamic_cast<ctlMeasure&>(*tool(1)); }

    /// Clicks a button and, in the dialog that opens, presses the keys.
    void play(HWND panel, const char* button, const std::string& dialog, const char* control,
              std::initializer_list<int> keys) {
        player_.untilActive(dialog).until("the focus", [dialog, control] {
            return GetFocus() == namedChild(GetActiveWindow(), control);
        });
        for (const int key : keys) {
            player_.key(key);
        }
        SendMessageW(namedChild(panel, button), BM_CLICK, 0, 0);
        EXPECT_TRUE(player_.done());
    }
    void pickColor(HWND panel, const char* button, std::initializer_list<int> keys) {
        play(panel, button, "frmColor", "ColorPicker", keys);
    }
    void pickLine(HWND panel, std::initializer_list<int> keys) {
        play(panel, "cmdLineStyle", "frmLineStyle", "LineSelect", keys);
    }

    test::AppDataFolder folder_;
    EnglishTexts english_;
    Program program_{false};
    frmSettings& settings_ = program_.settings();
    ModalPlayer player_;
};

TEST_F(PanelDialogsTest, TheColorOfAStencilIsPicked) {
    const Color former = stencil().Color();
    pickColor(stencilPanel(), "cmdColor", {VK_RIGHT, VK_DOWN, VK_RETURN});
    EXPECT_NE(stencil().Color(), former);
    const Color picked = stencil().Color();
    pickColor(stencilPanel(), "cmdColor", {VK_DOWN, VK_ESCAPE});
    EXPECT_EQ(stencil().Color(), picked);
}

TEST_F(PanelDialogsTest, TheColorOfEachLineOfAMeasureIsPicked) {
    const Color formerA = measure().ColorA();
    const Color formerB = measure().ColorB();
    pickColor(measurePanel(), "cmdColorA", {VK_RIGHT, VK_DOWN, VK_RETURN});
    EXPECT_NE(measure().ColorA(), formerA);
    EXPECT_EQ(measure().ColorB(), formerB);
    pickColor(measurePanel(), "cmdColorB", {VK_RIGHT, VK_DOWN, VK_RETURN});
    EXPECT_NE(measure().ColorB(), formerB);
}

TEST_F(PanelDialogsTest, TheLineStyleOfEitherToolIsChosen) {
    stencil().setLineWidth(2);
    pickLine(stencilPanel(), {VK_DOWN, VK_RETURN});
    EXPECT_EQ(stencil().LineWidth(), 3);
    measure().setLineWidth(2);
    pickLine(measurePanel(), {VK_UP, VK_UP, VK_RETURN});
    EXPECT_EQ(measure().LineWidth(), 0);
    pickLine(measurePanel(), {VK_DOWN, VK_ESCAPE});
    EXPECT_EQ(measure().LineWidth(), 0);
}

TEST_F(PanelDialogsTest, OtherWindowsAreAsideDuringTheMouseAction) {
    std::vector<bool> asides;
    ViewState state;
    const MemoryCodePage codePage;
    const SpecialRatios ratios([](int, std::string_view text) { return std::string(text); }, {});
    PanelDialogs dialogs({settings_.handle(), program_.worksheet().handle(), ratios, state,
                          codePage, [&](bool aside) { asides.push_back(aside); }});
    StencilCommands& commands = dialogs;
    commands.applyMouseAction(stencil());
    EXPECT_EQ(asides, (std::vector<bool>{true, false}));
}

TEST_F(PanelDialogsTest, FrameAndMagnifierComeBackAfterTheMouseAction) {
    const auto shown = [&] {
        return std::pair(program_.resizer().isVisible(), program_.view().lens().lens().isVisible());
    };
    for (const bool lens : {false, true}) {
        program_.state().set([lens](Options& options) { options.lensVisible = lens; });
        ASSERT_EQ(shown(), std::pair(true, lens));
        SendMessageW(namedChild(stencilPanel(), "cmdSendMouseInput"), BM_CLICK, 0, 0);
        EXPECT_EQ(shown(), std::pair(true, lens));
    }
}

TEST_F(PanelDialogsTest, AMouseActionThatTheSystemRefusesIsTold) {
    DragSystem refusing = windowsDragSystem();
    refusing.admits = [](HWND) { return false; };
    std::vector<bool> asides;
    const MemoryCodePage codePage;
    const SpecialRatios ratios([](int, std::string_view text) { return std::string(text); }, {});
    PanelDialogs dialogs({settings_.handle(), program_.worksheet().handle(), ratios,
                          program_.state(), codePage,
                          [&asides](bool aside) { asides.push_back(aside); }, refusing});
    std::string message;
    player_.untilActive("#32770").then([&] {
        constexpr int textId = 65535;
        message = textOf(GetDlgItem(GetActiveWindow(), textId));
        PostMessageW(GetActiveWindow(), WM_COMMAND, IDOK, 0);
    });
    static_cast<StencilCommands&>(dialogs).applyMouseAction(stencil());
    EXPECT_TRUE(player_.done());
    EXPECT_EQ(message.rfind("Windows does not let Ormala use the mouse in the program below.", 0),
              0U)
        << message;
    // The message comes when the windows are back.
    EXPECT_EQ(asides, (std::vector{true, false}));
}

}  // namespace
}  // namespace ormala
