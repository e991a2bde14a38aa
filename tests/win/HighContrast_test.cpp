#include <gtest/gtest.h>

#include <algorithm>
#include <map>
#include <memory>

#include "dialogs/win/frmOptions.h"
#include "platform/win/GdiCanvas.h"
#include "win/ControlPanel.h"
#include "win/DialogPicture.h"
#include "win/LanguageAndDpi.h"
#include "win/ModalPlayer.h"
#include "win/NotedOptions.h"
#include "win/PanelStage.h"
#include "win/PlayedContrast.h"
#include "win/TestSheet.h"
#include "win/TestWindow.h"

// The system's colours in all controls while high contrast is on, at once and back.

namespace ormala {
namespace {

using Shares = std::map<COLORREF, double>;

/// How much of a picture each colour has.
Shares sharesOf(const PixelMap& map) {
    Shares shares;
    for (const COLORREF pixel : map.pixels) {
        shares[pixel] += 1.0 / static_cast<double>(map.pixels.size());
    }
    return shares;
}

/// Colours that have more of a picture than the edges of smoothed letters, and are not the scheme's
/// nor those that a preview is allowed.
std::vector<COLORREF> foreignColors(const PixelMap& map, const std::vector<COLORREF>& allowed) {
    constexpr double edges = 0.01;
    std::vector<COLORREF> found;
    for (const auto& [color, share] : sharesOf(map)) {
        if (share > edges && std::ranges::count(PlayedContrast::all, color) == 0 &&
            std::ranges::count(allowed, color) == 0) {
            found.push_back(color);
        }
    }
    return found;
}

class HighContrast : public testing::TestWithParam<LanguageAndDpi> {
  protected:
    HighContrast() { MlSetLanguage(GetParam().language, {}); }
    ~HighContrast() override { MlSetLanguage(languageEnglish, {}); }

    /// Looks at a dialog while it is shown: as ever, in high contrast, and as ever again.
    void lookAt(const std::string& className, const std::vector<COLORREF>& allowed) {
        player_.untilActive(className).then([allowed] {
            const HWND dialog = GetActiveWindow();
            moveToDpi(dialog, GetParam().dpi);
            const PixelMap before = painted(dialog);
            PlayedContrast::turn(true);
            const PixelMap black = painted(dialog);
            EXPECT_EQ(foreignColors(black, allowed), std::vector<COLORREF>{});
            EXPECT_GT(sharesOf(black)[PlayedContrast::ground], 0.5);
            EXPECT_GT(sharesOf(black)[PlayedContrast::text], 0.01);
            PlayedContrast::turn(false);
            EXPECT_TRUE(painted(dialog) == before);
        });
        player_.key(VK_ESCAPE);
    }
    static PixelMap painted(HWND window) {
        RedrawWindow(window, nullptr, nullptr, RDW_UPDATENOW | RDW_ALLCHILDREN);
        return readClient(window);
    }

    const TestWindow owner_;
    ModalPlayer player_;
    PlayedContrast contrast_;
};

TEST_P(HighContrast, ChangesAnOpenDialogAndComesBack) {
    NotedOptions options;
    frmOptions dialog(options, {"Ormala", "1.0.0", {}, {}});
    for (int page = 0; page < 3; ++page) {
        // The swatch of the colour of the grid.
        lookAt("frmOptions", {colorRef(options.live.grid.color)});
        dialog.ShowForm(owner_.handle(), page);
    }
}

TEST_P(HighContrast, ChangesThePanelsAndComesBack) {
    PanelStage stage;
    const ControlPanel ground({400, 400});
    const auto tool = stage.makeStencil();
    const auto panel = stage.makePanel(ground.handle(), *tool);
    panel->setDpi(GetParam().dpi);
    panel->place({0, 0, panel->size().width, panel->size().height});
    panel->core().ShowAllProps(true);
    panel->setVisible(true);
    const PixelMap before = painted(panel->handle());
    PlayedContrast::turn(true);
    EXPECT_GT(sharesOf(painted(panel->handle()))[PlayedContrast::ground], 0.5);
    const Shares unselected = sharesOf(painted(panel->handle()));
    const auto grey = unselected.find(RGB(96, 96, 96));
    EXPECT_TRUE(grey == unselected.end() || grey->second < 0.01);
    panel->core().setSelected(true);
    panel->core().ShowAllProps(true);
    const Shares selected = sharesOf(painted(panel->handle()));
    const auto chosenOf = [](Shares shares) { return shares[PlayedContrast::chosen]; };
    EXPECT_GT(chosenOf(selected), chosenOf(unselected) + 0.05);
    panel->core().setSelected(false);
    panel->core().ShowAllProps(true);
    PlayedContrast::turn(false);
    EXPECT_TRUE(painted(panel->handle()) == before);
}

INSTANTIATE_TEST_SUITE_P(Looks, HighContrast, testing::ValuesIn(languagesAndDpis),
                         &LanguageAndDpi::nameOfTest);

TEST(HighContrastOnTheWorksheet, LeavesWhatTheUserMeasuresWith) {
    TestSheet sheet({400, 300});
    sheet.addStencil({40, 40, 200, 200}, 0, rgb(200, 30, 90));
    sheet.paintAnew();
    const PixelMap before = readClient(sheet.window().handle());
    const PlayedContrast contrast;
    PlayedContrast::turn(true);
    sheet.paintAnew();
    EXPECT_TRUE(readClient(sheet.window().handle()) == before);
}

}  // namespace
}  // namespace ormala
