#include <gtest/gtest.h>

#include <functional>
#include <numbers>
#include <string>

#include "dialogs/win/frmAbout.h"
#include "dialogs/win/frmOptions.h"
#include "language/MlStringModule.h"
#include "measure/ManualMeasures.h"
#include "measure/win/frmUnit.h"
#include "stencil/win/frmPatternSelect.h"
#include "stencil/win/frmRatio.h"
#include "support/MemoryCodePage.h"
#include "support/OwnToolSettings.h"
#include "support/QuietToolHost.h"
#include "support/win/Golden.h"
#include "win/EnglishTexts.h"
#include "win/LanguageAndDpi.h"
#include "win/ModalPlayer.h"
#include "win/NotedOptions.h"
#include "win/TestSheet.h"
#include "win/TestWindow.h"

namespace ormala {
namespace {

/// The dialogs that the panels open, with what they show in use.
class DialogsGolden : public testing::TestWithParam<LanguageAndDpi> {
  protected:
    DialogsGolden() {
        MlSetLanguage(GetParam().language, {});
        SetCursorPos(5, 5);
    }

    /// Compares the dialog once it is shown, and leaves it.
    void comparePicture(const std::string& className, const std::string& name) {
        player_.untilActive(className)
            .then([] { scale(GetActiveWindow()); })
            .then([] { redraw(GetActiveWindow()); })
            .then([name] { expectGolden(GetActiveWindow(), name); })
            .key(VK_ESCAPE);
    }

    EnglishTexts english_;
    TestWindow owner_;
    OwnToolSettings settings_;
    ModalPlayer player_;

  private:
    static void scale(HWND dialog) {
        RECT suggested{20, 20, 900, 700};
        const auto dpi = static_cast<WORD>(GetParam().dpi);
        SendMessageW(dialog, WM_DPICHANGED, MAKEWPARAM(dpi, dpi),
                     reinterpret_cast<LPARAM>(&suggested));
    }
    static void redraw(HWND dialog) {
        RedrawWindow(dialog, nullptr, nullptr,
                     RDW_INVALIDATE | RDW_ERASE | RDW_UPDATENOW | RDW_ALLCHILDREN);
    }
    static void expectGolden(HWND dialog, const std::string& name) {
        const PixelMap map = readClient(dialog);
        const test::Picture picture({0, 0, map.size.width, map.size.height},
                                    {map.pixels.begin(), map.pixels.end()});
        EXPECT_EQ(test::goldenComplaint(picture, name + "_" + GetParam().name()), "");
    }
};

TEST_P(DialogsGolden, PatternsLookAsTheyAlwaysDid) {
    PatternList patterns;
    patterns[0] = {1, 0};
    patterns[1] = {18, std::numbers::pi / 4};
    patterns[3] = {12, 0};
    int tab = 1;
    frmPatternSelect dialog;
    comparePicture("frmPatternSelect", "pattern_dialog");
    EXPECT_FALSE(dialog.SelectPattern(patterns, tab, owner_.handle()));
}

TEST_P(DialogsGolden, RatiosLookAsTheyAlwaysDid) {
    const SpecialRatios ratios([](int id, std::string_view text) { return MlString(id, text); },
                               settings_.textForm);
    frmRatio dialog(ratios, settings_.textForm);
    comparePicture("frmRatio", "ratio_dialog");
    EXPECT_EQ(dialog.EditRatio(owner_.handle(), 1.7778), std::nullopt);
}

TEST_P(DialogsGolden, UnitsLookAsTheyAlwaysDid) {
    QuietToolHost host;
    const ManualMeasures others;
    ctlMeasure tool(host, settings_, others);
    tool.setLengthMode(1);
    tool.setLengthFactor(0.25);
    tool.setLengthUnit("km");
    MeasureUnits defaults;
    const MemoryCodePage codePage;
    frmUnit dialog("Ormala", ".", codePage);
    comparePicture("frmUnit", "unit_dialog");
    EXPECT_EQ(dialog.SelectUnits(owner_.handle(), tool, defaults), frmUnit::cancelled);
}

TEST_P(DialogsGolden, OptionsLookAsTheyAlwaysDid) {
    NotedOptions options;
    options.live.language = GetParam().language;
    options.live.grid.color = rgb(60, 120, 200);
    options.live.grid.steps = {40, 40, 12, 8};
    frmOptions dialog(options, {"Ormala", "1.0.0", {}, {}});
    const char* const pages[] = {"options_general", "options_grid", "options_magnifier"};
    for (int page = 0; page < 3; ++page) {
        comparePicture("frmOptions", pages[page]);
        dialog.ShowForm(owner_.handle(), page);
    }
}

TEST_P(DialogsGolden, TheAboutBoxLooksAsItAlwaysDid) {
    frmAbout dialog({"Ormala", "1.0.0", "https://example.org/ormala", "author@example.org"}, {});
    comparePicture("frmAbout", "about_box");
    dialog.ShowAbout(owner_.handle());
}

INSTANTIATE_TEST_SUITE_P(Looks, DialogsGolden, testing::ValuesIn(languagesAndDpis),
                         &LanguageAndDpi::nameOfTest);

}  // namespace
}  // namespace ormala
