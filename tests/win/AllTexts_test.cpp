#include <gtest/gtest.h>

#include <functional>
#include <memory>
#include <numbers>
#include <string>

#include "app/clipboardNotes.h"
#include "app/win/shell/Program.h"
#include "dialogs/win/frmAbout.h"
#include "dialogs/win/frmColor.h"
#include "dialogs/win/frmLineStyle.h"
#include "dialogs/win/frmOptions.h"
#include "e2e/support/AppDataFolder.h"
#include "e2e/support/SettingsFile.h"
#include "measure/ManualMeasures.h"
#include "measure/ctlSetMeasure.h"
#include "measure/win/frmUnit.h"
#include "stencil/ctlSetRatioGrid.h"
#include "stencil/win/frmPatternSelect.h"
#include "stencil/win/frmRatio.h"
#include "support/MemoryCodePage.h"
#include "support/OwnToolSettings.h"
#include "support/QuietToolHost.h"
#include "widgets/win/Label.h"
#include "win/EnglishTexts.h"
#include "win/LanguageAndDpi.h"
#include "win/ModalPlayer.h"
#include "win/NotedOptions.h"
#include "win/TestWindow.h"
#include "win/TextWalk.h"

// All windows of the program have room for all their texts, in both languages.

namespace ormala {
namespace {

class AllTexts : public testing::TestWithParam<LanguageAndDpi> {
  protected:
    AllTexts() { MlSetLanguage(GetParam().language, {}); }

    static void expectRoom(HWND window, const std::string& state = {}) {
        const TextWalk walk(window, GetParam().dpi);
        EXPECT_EQ(walk.complaints(), std::vector<std::string>{}) << state;
    }
    /// Lays a window out for the resolution of the test.
    static void scale(HWND window) {
        RECT place{};
        GetWindowRect(window, &place);
        const int own = static_cast<int>(GetDpiForWindow(window));
        place.right = place.left + MulDiv(place.right - place.left, GetParam().dpi, own);
        place.bottom = place.top + MulDiv(place.bottom - place.top, GetParam().dpi, own);
        const auto dpi = static_cast<WORD>(GetParam().dpi);
        SendMessageW(window, WM_DPICHANGED, MAKEWPARAM(dpi, dpi), reinterpret_cast<LPARAM>(&place));
    }

  private:
    EnglishTexts english_;
};

/// The windows that stand while the program runs, with tools whose values are as long as they come.
class AllTextsOfTheProgram : public AllTexts {
  protected:
    AllTextsOfTheProgram() {
        test::SettingsFile options;
        options.set("Options", "Language", std::to_string(GetParam().language));
        options.write(folder_.optionsFile());
        program_ = std::make_unique<Program>(false);
        settings_ = &program_->settings();
        scale(settings_->handle());
    }
    template <typename Core>
    [[nodiscard]] Core& panel(ToolKind kind) {
        return dynamic_cast<Core&>(*program_->tools().tools().LastVisiblePanel(kind));
    }
    [[nodiscard]] HWND settings() const { return settings_->handle(); }
    void expectRoomForStencil(const Rect& bounds, double angle, const std::string& state) {
        auto& core = panel<ctlSetRatioGrid>(ToolKind::stencil);
        auto& tool = dynamic_cast<ctlRatioGrid&>(core.RefControlControl());
        tool.setRectBound(bounds);
        tool.setRotationAngle(angle);
        core.ShowAllProps(true);
        expectRoom(settings(), state);
    }
    void expectRoomForMeasure(const Line& a, const Line& b, const MeasureUnits& units) {
        auto& core = panel<ctlSetMeasure>(ToolKind::measurement);
        auto& tool = dynamic_cast<ctlMeasure&>(core.RefControlControl());
        core.setNumber(33);
        core.setUnits(units);
        tool.setConnected(false);
        tool.setLineA(a);
        tool.setLineB(b);
        core.ShowAllProps(true);
        expectRoom(settings(), units.LengthUnit);
    }

    test::AppDataFolder folder_;
    std::unique_ptr<Program> program_;
    frmSettings* settings_ = nullptr;
};

TEST_P(AllTextsOfTheProgram, HaveRoomInEveryMode) {
    for (const Mode mode : allModes) {
        program_->modes().SetMode(mode, false);
        expectRoom(settings(), std::to_string(numberOf(mode)));
    }
}

TEST_P(AllTextsOfTheProgram, HaveRoomForTheLongestValuesOfAStencil) {
    constexpr double turn = 348.75 * std::numbers::pi / 180;
    expectRoomForStencil({-12345, -12346, -12000, -11001}, turn, "far away");
    expectRoomForStencil({11111, 11112, 23455, 23457}, turn, "large");
    expectRoomForStencil({-12345, 100, -1, 109}, turn, "flat");
    expectRoomForStencil({100, -12345, 109, -1}, -turn, "steep");
}

TEST_P(AllTextsOfTheProgram, HaveRoomForEverySpecialRatio) {
    constexpr double side = 10000;
    for (const double ratio : specialRatioValues) {
        const auto rounded = static_cast<int>(side * ratio);
        expectRoomForStencil({0, 0, side - 1, rounded - 1.0}, 0, std::to_string(1 / ratio));
        expectRoomForStencil({0, 0, rounded - 1.0, side - 1}, 0, std::to_string(ratio));
    }
}

TEST_P(AllTextsOfTheProgram, HaveRoomForTheLongestValuesOfAMeasure) {
    const Line longLine{0, 0, 11000, 5000};
    const Line shortLine{0, 0, 7, 7};
    const Line point{100, 100, 100, 100};
    for (const MeasureUnits& units :
         {MeasureUnits{}, MeasureUnits{1, 0, 1, ""}, MeasureUnits{0, 1, 12.345678, "mm"},
          MeasureUnits{1, 1, 0.00123456, "km"}, MeasureUnits{1, 2, 12345.6, "µm"}}) {
        expectRoomForMeasure(longLine, shortLine, units);
        expectRoomForMeasure(shortLine, longLine, units);
        expectRoomForMeasure(longLine, point, units);
        expectRoomForMeasure(point, longLine, units);
    }
}

TEST_P(AllTextsOfTheProgram, HaveRoomOnTheLinesOfPathAndInformation) {
    const auto labelNamed = [&](const char* name) -> Label& {
        const HWND window = namedChild(settings(), name);
        return dynamic_cast<Label&>(
            *reinterpret_cast<Window*>(GetWindowLongPtrW(window, GWLP_USERDATA)));
    };
    for (const int row : {307, 308}) {
        labelNamed("lblPath").setText(MlString(row, {}));
        expectRoom(settings(), std::to_string(row));
    }
    // The list is hidden while the program is busy.
    ShowWindow(namedChild(settings(), "picOuter"), SW_HIDE);
    Label& info = labelNamed("lblInfo");
    info.setVisible(true);
    for (const int row : {377, 378}) {
        info.setText(MlString(row, {}));
        expectRoom(settings(), std::to_string(row));
    }
    for (const ClipboardAnswer outcome :
         {ClipboardAnswer::taken, ClipboardAnswer::held, ClipboardAnswer::refused}) {
        info.setText(shotNote(outcome, {13840, 12160}));
        expectRoom(settings(), "note of a screen shot");
        for (const TextCopy& copy : {TextCopy{{}, copyOfReadOuts({}).note}, copyOfColor(0)}) {
            info.setText(copyNote(outcome, copy));
            expectRoom(settings(), "note of a copy");
        }
    }
}

TEST_P(AllTextsOfTheProgram, HaveRoomInTheWorksheetsFrameAndTheMagnifier) {
    expectRoom(program_->resizer().handle());
    program_->state().set([](Options& options) {
        options.lensVisible = true;
        options.lens.sticked = false;
    });
    const frmLens& lens = program_->view().lens().lens();
    scale(lens.handle());
    for (const int factor : {1, 10}) {
        program_->execute(commandOfLensFactor(factor));
        expectRoom(lens.handle(), std::to_string(factor));
    }
}

/// The dialogs, with what they show in use.
class AllTextsOfDialogs : public AllTexts {
  protected:
    AllTextsOfDialogs() { SetCursorPos(5, 5); }

    /// Looks at the dialog that opens next, after each of the steps, and leaves it.
    void expectRoomIn(
        const std::string& className, int steps = 1,
        const std::function<void(int)>& step = [](int) {}) {
        player_.untilActive(className).then([] { scale(GetActiveWindow()); });
        for (int each = 0; each < steps; ++each) {
            player_.then([step, each] {
                step(each);
                expectRoom(GetActiveWindow(), std::to_string(each));
            });
        }
        player_.then([] { PostMessageW(GetActiveWindow(), WM_CLOSE, 0, 0); });
    }
    static void click(const std::string& name) {
        SendMessageW(namedChild(GetActiveWindow(), name), BM_CLICK, 0, 0);
    }
    static std::string indexed(const char* name, int index) {
        return std::string(name) + "(" + std::to_string(index) + ")";
    }

    TestWindow owner_;
    OwnToolSettings settings_;
    ModalPlayer player_;
};

TEST_P(AllTextsOfDialogs, HaveRoomOnAllPagesOfTheOptions) {
    NotedOptions options;
    options.live.language = GetParam().language;
    frmOptions dialog(options, {"Ormala", "1.0.0", {}, {}});
    constexpr int pages = 3;
    expectRoomIn("frmOptions", pages, [](int page) {
        click(indexed("btnTab", page));
        for (const char* slider : {"sldMagnification", "sldGridSizeX", "sldGridOffsetX"}) {
            SendMessageW(namedChild(GetActiveWindow(), slider), WM_KEYDOWN, VK_END, 1);
        }
    });
    dialog.ShowForm(owner_.handle(), 0);
}

TEST_P(AllTextsOfDialogs, HaveRoomInTheAboutBox) {
    frmAbout dialog({"Ormala", "10.10.100", "https://example.org/ormala", "author@example.org"},
                    {});
    expectRoomIn("frmAbout");
    dialog.ShowAbout(owner_.handle());
}

TEST_P(AllTextsOfDialogs, HaveRoomInTheDialogsOfColorAndLine) {
    frmColor color;
    expectRoomIn("frmColor");
    EXPECT_EQ(color.GetColor(owner_.handle(), 0), 0U);
    frmLineStyle line;
    expectRoomIn("frmLineStyle");
    EXPECT_EQ(line.GetLineStyle(owner_.handle(), 2), 2);
}

TEST_P(AllTextsOfDialogs, HaveRoomInTheDialogOfUnits) {
    QuietToolHost host;
    const ManualMeasures others;
    ctlMeasure tool(host, settings_, others);
    tool.setLengthMode(1);
    tool.setLengthFactor(12345.678901);
    tool.setLengthUnit("km");
    MeasureUnits defaults;
    const MemoryCodePage codePage;
    frmUnit dialog("Ormala", ".", codePage);
    expectRoomIn("frmUnit", 3, [](int unit) { click(indexed("optLengthUnit", unit)); });
    dialog.SelectUnits(owner_.handle(), tool, defaults);
}

TEST_P(AllTextsOfDialogs, HaveRoomInTheDialogOfRatios) {
    const SpecialRatios ratios([](int id, std::string_view text) { return MlString(id, text); },
                               settings_.textForm);
    frmRatio dialog(ratios, settings_.textForm);
    for (const double ratio : {1.7778, 1234.5, 0.00123456}) {
        expectRoomIn("frmRatio", 2, [](int inverted) { click(indexed("optInvert", inverted)); });
        dialog.EditRatio(owner_.handle(), ratio);
    }
}

TEST_P(AllTextsOfDialogs, HaveRoomOnAllTabsOfThePatterns) {
    PatternList patterns;
    patterns[1] = {18, std::numbers::pi / 4};
    int tab = 1;
    frmPatternSelect dialog;
    expectRoomIn("frmPatternSelect", patternSlots,
                 [](int number) { click(indexed("btnTab", number)); });
    EXPECT_FALSE(dialog.SelectPattern(patterns, tab, owner_.handle()));
}

INSTANTIATE_TEST_SUITE_P(Looks, AllTextsOfTheProgram, testing::ValuesIn(languagesAndDpis),
                         &LanguageAndDpi::nameOfTest);
INSTANTIATE_TEST_SUITE_P(Looks, AllTextsOfDialogs, testing::ValuesIn(languagesAndDpis),
                         &LanguageAndDpi::nameOfTest);

}  // namespace
}  // namespace ormala
