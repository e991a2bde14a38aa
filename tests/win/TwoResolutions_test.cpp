#include <gtest/gtest.h>

#include <string>
#include <vector>

#include "win/ModesStage.h"
#include "win/PlayedMonitors.h"

// The three large windows on monitors of different resolutions.

namespace ormala {
namespace {

constexpr std::array sections{"FormSettings", "FormResizer", "FormLens"};

class TwoResolutions : public ModesStage {
  protected:
    void store(std::string_view section, const PixelRect& place) {
        option(section, "Left", std::to_string(place.left));
        option(section, "Top", std::to_string(place.top));
        option(section, "Right", std::to_string(place.right));
        option(section, "Bottom", std::to_string(place.bottom));
    }

    static PixelRect stored(const test::SettingsFile& file, std::string_view section) {
        const auto number = [&](std::string_view key) {
            return static_cast<int>(file.number(section, key).value_or(-1));
        };
        return {number("Left"), number("Top"), number("Right"), number("Bottom")};
    }

    /// All three on the right half, with the magnifier shown.
    void storeOnTheRight() {
        const int left = PlayedMonitors::middle() + 40;
        store("FormSettings", {left, 80, left + 300, 680});
        store("FormResizer", {left - 20, 150, left + 681, 651});
        store("FormLens", {left + 60, 201, left + 463, 608});
        option("Options", "LensVisible", "-1");
    }

    /// Each start finds what the former one has left.
    void staysThroughStarts(int starts, int rightDpi, PlayedMonitors::Told told) {
        const PlayedMonitors monitors(rightDpi, told);
        storeOnTheRight();
        const test::SettingsFile wanted = file_;
        start();
        EXPECT_GE(monitors.count(), 3) << "each window has come to the other resolution";
        file_ = end();
        for (const std::string_view section : {"FormResizer", "FormLens"}) {
            EXPECT_EQ(stored(file_, section), stored(wanted, section)) << section;
        }
        const PixelRect control = stored(file_, "FormSettings");
        EXPECT_EQ(control.left, stored(wanted, "FormSettings").left);
        EXPECT_EQ(control.top, stored(wanted, "FormSettings").top);
        const test::SettingsFile first = file_;
        for (int times = 2; times <= starts; ++times) {
            start();
            file_ = end();
            for (const std::string_view section : sections) {
                EXPECT_EQ(stored(file_, section), stored(first, section))
                    << section << ", start " << times;
            }
        }
    }

    static int systemDpi() { return static_cast<int>(GetDpiForSystem()); }

    std::vector<HWND> largeWindows() {
        return {settings_->handle(), program_->resizer().handle(),
                program_->view().lens().lens().handle()};
    }
};

TEST_F(TwoResolutions, PlacesStayThroughTenStartsOnAFinerMonitor) {
    staysThroughStarts(10, systemDpi() * 3 / 2, PlayedMonitors::Told::atOnce);
}

TEST_F(TwoResolutions, PlacesStayThroughTenStartsOnACoarserMonitor) {
    staysThroughStarts(10, systemDpi() / 2, PlayedMonitors::Told::atOnce);
}

TEST_F(TwoResolutions, PlacesStayForWindowsThatHearOfItWhenTheyAreShown) {
    staysThroughStarts(3, systemDpi() * 3 / 2, PlayedMonitors::Told::whenShown);
}

TEST_F(TwoResolutions, DragThereAndBackLeavesEverySize) {
    option("Options", "LensVisible", "-1");
    start();
    const int system = systemDpi();
    for (const HWND window : largeWindows()) {
        SetWindowPos(window, nullptr, 0, 0, 703, 501, SWP_NOMOVE | SWP_NOZORDER | SWP_NOACTIVATE);
        RECT before{};
        GetWindowRect(window, &before);
        for (const int other : {system / 2, system * 3 / 2, system * 2}) {
            tellResolution(window, system, other);
            RECT there{};
            GetWindowRect(window, &there);
            EXPECT_NEAR(heightOf(there), 1.0 * heightOf(before) * other / system, 1) << other;
            tellResolution(window, other, system);
            RECT back{};
            GetWindowRect(window, &back);
            EXPECT_EQ(widthOf(back), widthOf(before)) << other;
            EXPECT_EQ(heightOf(back), heightOf(before)) << other;
        }
    }
}

TEST_F(TwoResolutions, ReadOutsCountInLogicalPixelsOfTheMonitorThatTheWorksheetComesTo) {
    option("Options", "LogicalPixels", "-1");
    start();
    const int& counted = program_->state().toolSettings().textForm.logicalDpi;
    const int system = systemDpi();
    EXPECT_EQ(counted, system);
    tellResolution(program_->worksheet().handle(), system, system * 2);
    EXPECT_EQ(counted, system * 2);
    tellResolution(program_->worksheet().handle(), system * 2, system);
    EXPECT_EQ(counted, system);
}

TEST_F(TwoResolutions, WindowThatIsShownTakesTheSuggestedSize) {
    start();
    const HWND frame = program_->resizer().handle();
    SetWindowPos(frame, nullptr, 100, 100, 600, 400, SWP_NOZORDER | SWP_NOACTIVATE);
    tellResolution(frame, systemDpi(), systemDpi() * 3 / 2);
    EXPECT_EQ(widthOf(program_->resizer().rectangle()), 900);
    EXPECT_EQ(heightOf(program_->resizer().rectangle()), 600);
    EXPECT_TRUE(worksheetLiesInTheFrame());
}

}  // namespace
}  // namespace ormala
