#include <gtest/gtest.h>

#include <algorithm>
#include <functional>
#include <ostream>
#include <string>
#include <vector>

#include "app/win/shell/Program.h"
#include "dialogs/win/frmAbout.h"
#include "dialogs/win/frmColor.h"
#include "dialogs/win/frmOptions.h"
#include "e2e/support/AppDataFolder.h"
#include "measure/ManualMeasures.h"
#include "measure/win/frmUnit.h"
#include "platform/win/controlName.h"
#include "stencil/win/frmPatternSelect.h"
#include "stencil/win/frmRatio.h"
#include "support/MemoryCodePage.h"
#include "support/OwnToolSettings.h"
#include "support/QuietToolHost.h"
#include "win/AccessibleReader.h"
#include "win/EnglishTexts.h"
#include "win/ModalPlayer.h"
#include "win/NotedOptions.h"
#include "win/TestWindow.h"

namespace ormala {
namespace {

/// What a screen reader says of a control.
struct Spoken {
    std::string className;
    std::string control;
    std::string name;
    long role;
    long state;
};

std::ostream& operator<<(std::ostream& out, const Spoken& spoken) {
    return out << spoken.className << " " << spoken.control << ": \"" << spoken.name << "\", role "
               << spoken.role << ", state 0x" << std::hex << spoken.state << std::dec;
}

/// All that is shown in a window, at any depth.
std::vector<Spoken> spokenOf(HWND window) {
    std::vector<Spoken> list;
    EnumChildWindows(
        window,
        [](HWND child, LPARAM parameter) -> BOOL {
            if (IsWindowVisible(child) != FALSE) {
                const AccessibleReader reader(child);
                reinterpret_cast<std::vector<Spoken>*>(parameter)->push_back(
                    {classNameOf(child), controlName(child), reader.name(), reader.role(),
                     reader.state()});
            }
            return TRUE;
        },
        reinterpret_cast<LPARAM>(&list));
    return list;
}

/// Texts may be empty for a time, and what only holds other controls says nothing itself. Of its
/// own lists the system tells here no more than that.
bool needsName(const Spoken& spoken) {
    constexpr long silent[] = {ROLE_SYSTEM_STATICTEXT, ROLE_SYSTEM_CLIENT, ROLE_SYSTEM_WINDOW,
                               ROLE_SYSTEM_PANE};
    return std::ranges::find(silent, spoken.role) == std::end(silent);
}

class ScreenReader : public testing::Test {
  protected:
    /// Reads all of a window and expects a name of each control that can be used.
    void read(HWND window) {
        list_ = spokenOf(window);
        for (const Spoken& spoken : list_) {
            EXPECT_FALSE(needsName(spoken) && spoken.name.empty()) << spoken;
            if (spoken.className == "ZelvikButtonXP") {
                EXPECT_FALSE(spoken.name.empty()) << spoken;
                EXPECT_EQ(spoken.role == ROLE_SYSTEM_RADIOBUTTON,
                          spoken.control.starts_with("opt") || spoken.control.starts_with("btn"))
                    << spoken;
            }
        }
    }
    void expectSpoken(const std::string& control, const std::string& name, long role,
                      long state = 0) const {
        const auto found = std::ranges::find(list_, control, &Spoken::control);
        ASSERT_NE(found, list_.end()) << control;
        EXPECT_EQ(found->name, name) << *found;
        EXPECT_EQ(found->role, role) << *found;
        EXPECT_EQ(found->state & state, state) << *found;
    }
    /// Reads a dialog while it is shown, and leaves it.
    void readDialog(const std::string& className) {
        player_.untilActive(className).then([this] { read(GetActiveWindow()); }).key(VK_ESCAPE);
    }

    EnglishTexts english_;
    std::vector<Spoken> list_;
    ModalPlayer player_;
};

TEST_F(ScreenReader, NamesAllOfTheControlWindowAndItsPanels) {
    const test::AppDataFolder folder;
    Program program(false);
    const frmSettings& settings = program.settings();
    read(settings.handle());
    EXPECT_GT(list_.size(), 90U);
    expectSpoken("lblTitle", "Stencil Tool", ROLE_SYSTEM_STATICTEXT);
    expectSpoken("cmdMove(0)", "Move left (Shift, Ctrl or Alt key: align to grid)",
                 ROLE_SYSTEM_PUSHBUTTON, STATE_SYSTEM_FOCUSABLE);
    expectSpoken("cmdUndo", "Undo", ROLE_SYSTEM_PUSHBUTTON, STATE_SYSTEM_UNAVAILABLE);
    expectSpoken("cmdPause", "Hide", ROLE_SYSTEM_CHECKBUTTON);
    expectSpoken("imgPattern", "Patterns", ROLE_SYSTEM_PUSHBUTTON);
    expectSpoken("optMode(0)", "Connect the two lines", ROLE_SYSTEM_RADIOBUTTON,
                 STATE_SYSTEM_CHECKED);
    expectSpoken("chkShowAngle", "Show angles between the lines", ROLE_SYSTEM_CHECKBUTTON,
                 STATE_SYSTEM_CHECKED);
    expectSpoken("cmdColorA", "Select color for line 'a'", ROLE_SYSTEM_PUSHBUTTON);
}

TEST_F(ScreenReader, NamesAllOfTheControlWindowWith33ToolsWhereverTheListStands) {
    const test::AppDataFolder folder;
    Program program(false);
    frmSettings& settings = program.settings();
    ToolList& tools = program.tools().tools();
    // A first start has two.
    constexpr int more = 31;
    for (int made = 0; made < more; ++made) {
        tools.AddNewControl(made % 2);
    }
    for (int notch = 0; notch < 3; ++notch) {
        read(settings.handle());
        expectSpoken("cmdTL", "Up", ROLE_SYSTEM_PUSHBUTTON);
        expectSpoken("cmdMove", "Scroll position", ROLE_SYSTEM_INDICATOR);
        expectSpoken("cmdBR", "Down", ROLE_SYSTEM_PUSHBUTTON);
        program.tools().Scroll(-1);
    }
}

TEST_F(ScreenReader, NamesEachWindowThatCanBeSwitchedTo) {
    const test::AppDataFolder folder;
    Program program(false);
    program.execute(Command::lens);
    EXPECT_EQ(AccessibleReader(program.settings().handle()).name(), "Ormala - Edit");
    EXPECT_EQ(AccessibleReader(program.worksheet().handle()).name(), "Ormala Worksheet");
    EXPECT_EQ(AccessibleReader(program.resizer().handle()).name(), "Ormala Worksheet");
    EXPECT_FALSE(AccessibleReader(program.view().lens().lens().handle()).name().empty());
}

TEST_F(ScreenReader, NamesAllOfTheDialogOfColors) {
    const TestWindow owner;
    frmColor dialog;
    readDialog("frmColor");
    EXPECT_EQ(dialog.GetColor(owner.handle(), 0), 0);
    expectSpoken("btnPalette(0)", "All hues, from light to dark", ROLE_SYSTEM_RADIOBUTTON,
                 STATE_SYSTEM_CHECKED);
    expectSpoken("btnPalette(1)", "Pure colors", ROLE_SYSTEM_RADIOBUTTON);
    expectSpoken("btnPalette(2)", "Subdued colors", ROLE_SYSTEM_RADIOBUTTON);
}

TEST_F(ScreenReader, NamesAllOfTheDialogOfPatterns) {
    PatternList patterns;
    patterns[0] = {1, 0};
    int tab = 0;
    frmPatternSelect dialog;
    readDialog("frmPatternSelect");
    EXPECT_FALSE(dialog.SelectPattern(patterns, tab, nullptr));
    expectSpoken("btnTab(0)", "Pattern 1", ROLE_SYSTEM_RADIOBUTTON, STATE_SYSTEM_CHECKED);
    expectSpoken("optPattern(1)", "Halves", ROLE_SYSTEM_RADIOBUTTON, STATE_SYSTEM_CHECKED);
    expectSpoken("cboRotation", "Rotation", ROLE_SYSTEM_COMBOBOX, STATE_SYSTEM_FOCUSABLE);
}

TEST_F(ScreenReader, NamesAllOfTheDialogOfRatios) {
    const TextForm form;
    const SpecialRatios ratios([](int id, std::string_view text) { return MlString(id, text); },
                               form);
    const TestWindow owner;
    frmRatio dialog(ratios, form);
    readDialog("frmRatio");
    EXPECT_EQ(dialog.EditRatio(owner.handle(), 1.1), std::nullopt);
    expectSpoken("optInvert(1)", "Width >= Height", ROLE_SYSTEM_RADIOBUTTON, STATE_SYSTEM_CHECKED);
    expectSpoken("cmdOK", "OK", ROLE_SYSTEM_PUSHBUTTON, STATE_SYSTEM_UNAVAILABLE);
}

TEST_F(ScreenReader, NamesAllOfTheDialogOfUnits) {
    QuietToolHost host;
    const OwnToolSettings settings;
    const ManualMeasures others;
    ctlMeasure tool(host, settings, others);
    MeasureUnits defaults;
    const TestWindow owner;
    const MemoryCodePage codePage;
    frmUnit dialog("Ormala", ".", codePage);
    readDialog("frmUnit");
    EXPECT_EQ(dialog.SelectUnits(owner.handle(), tool, defaults), frmUnit::cancelled);
    expectSpoken("optLengthUnit(0)", "Pixel (no real world unit)", ROLE_SYSTEM_RADIOBUTTON,
                 STATE_SYSTEM_CHECKED);
    expectSpoken("chkDefault", "Use as default for new measurement tools", ROLE_SYSTEM_CHECKBUTTON);
}

TEST_F(ScreenReader, NamesAllOfTheOptions) {
    NotedOptions options;
    const TestWindow owner;
    frmOptions dialog(options, {"Ormala", "1.2.3", {}, {}});
    for (int page = 0; page < optionPageCount; ++page) {
        readDialog("frmOptions");
        dialog.ShowForm(owner.handle(), page);
    }
    expectSpoken("btnTab(2)", "Magnifier", ROLE_SYSTEM_RADIOBUTTON, STATE_SYSTEM_CHECKED);
    expectSpoken("chkHotSpotVisible", "Visible", ROLE_SYSTEM_CHECKBUTTON, STATE_SYSTEM_CHECKED);
    expectSpoken("optHotSpotStyle(2)", "3", ROLE_SYSTEM_RADIOBUTTON, STATE_SYSTEM_CHECKED);
    expectSpoken("cmdLensGridColor", "Select color", ROLE_SYSTEM_PUSHBUTTON);
    expectSpoken("sldMagnification", "Magnification", ROLE_SYSTEM_SLIDER);
}

TEST_F(ScreenReader, NamesAllOfTheAboutBox) {
    const TestWindow owner;
    frmAbout dialog({"Ormala", "1.2.3", "https://example.org", "author@example.org"}, {});
    readDialog("frmAbout");
    dialog.ShowAbout(owner.handle());
    expectSpoken("lblLink", "https://example.org", ROLE_SYSTEM_LINK, STATE_SYSTEM_FOCUSABLE);
    expectSpoken("cmdClose", "Close", ROLE_SYSTEM_PUSHBUTTON, STATE_SYSTEM_FOCUSED);
}

}  // namespace
}  // namespace ormala
