#include <gtest/gtest.h>

#include <algorithm>
#include <chrono>
#include <functional>
#include <string>

#include "platform/win/StandardControl.h"
#include "win/EnglishTexts.h"
#include "win/ModalPlayer.h"
#include "win/PanelStage.h"
#include "win/TestWindow.h"

// The windows' own timer, which shows the last change of a burst.

namespace ormala {
namespace {

using std::chrono::milliseconds;
using std::chrono::steady_clock;

class PanelTimer : public testing::Test {
  protected:
    /// How long a label goes on saying what it said, once the tool has changed.
    static milliseconds delayOf(PanelWindow& panel, const char* label,
                                const std::function<void()>& change) {
        panel.core().ShowAllProps(true);
        const HWND shown = namedChild(panel.handle(), label);
        const std::string before = textOf(shown);
        change();
        EXPECT_EQ(textOf(shown), before) << label;
        const auto start = steady_clock::now();
        constexpr milliseconds deadline{5000};
        while (textOf(shown) == before && steady_clock::now() - start < deadline) {
            MsgWaitForMultipleObjects(0, nullptr, FALSE, 1000, QS_ALLINPUT);
            MSG message{};
            while (PeekMessageW(&message, nullptr, 0, 0, PM_REMOVE) != FALSE) {
                DispatchMessageW(&message);
            }
        }
        EXPECT_NE(textOf(shown), before) << label;
        return std::chrono::duration_cast<milliseconds>(steady_clock::now() - start);
    }

    /// The clock of a timer goes in steps. A busy machine is late, but not always.
    static void expectInterval(PanelWindow& panel, const char* label,
                               const std::function<void(int)>& change) {
        constexpr milliseconds interval{110};
        constexpr milliseconds step{16};
        constexpr int tries = 10;
        milliseconds least{5000};
        for (int i = 1; i <= tries; ++i) {
            least = std::min(least, delayOf(panel, label, [&] { change(i); }));
        }
        EXPECT_GE(least, interval - step);
        EXPECT_LE(least, interval + 2 * step);
    }

    EnglishTexts english_;
    TestWindow owner_;
    PanelStage stage_;
};

TEST_F(PanelTimer, AStencilsLastChangeIsShownAfterATenthOfASecond) {
    const auto tool = stage_.makeStencil();
    const auto panel = stage_.makePanel(owner_.handle(), *tool);
    panel->core().finish();
    expectInterval(*panel, "lblPositionLeft", [&tool](int i) {
        tool->setRectBound({100.0 + i, 100, 300, 200});
        tool->events().change.raise();
    });
}

TEST_F(PanelTimer, AMeasuringToolsLastChangeIsShownAfterATenthOfASecond) {
    const auto tool = stage_.makeMeasure();
    const auto panel = stage_.makePanel(owner_.handle(), *tool);
    panel->core().finish();
    expectInterval(*panel, "lblLengthA", [&tool](int i) {
        tool->setLineA({100, 200.0 + i, 100, 100});
        tool->events().change.raise();
    });
}

}  // namespace
}  // namespace ormala
