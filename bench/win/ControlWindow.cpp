#include <algorithm>
#include <cstdio>
#include <limits>
#include <string>
#include <vector>

#include "Figures.h"
#include "ProcessorTime.h"
#include "app/win/shell/Program.h"
#include "benchmarks.h"
#include "e2e/support/AppDataFolder.h"
#include "stencil/ctlRatioGrid.h"
#include "support/win/Wait.h"

namespace ormala::bench {

namespace {

constexpr std::size_t windowTools = 33;
constexpr int windowRuns = 9;

/// With all that are in it.
int windowsOf(HWND window) {
    int count = 1;
    for (HWND child = GetWindow(window, GW_CHILD); child != nullptr;
         child = GetWindow(child, GW_HWNDNEXT)) {
        count += windowsOf(child);
    }
    return count;
}

/// The program in this process, with its windows on the screen and without tools.
class ControlWindowStage {
  public:
    ControlWindowStage() { list().RemoveAllTools(); }

    [[nodiscard]] ToolList& list() { return program_.tools().tools(); }
    [[nodiscard]] ToolsPane& pane() { return program_.tools(); }
    [[nodiscard]] SettingControl& lastPanel() {
        return list().GetPanelsInVisualOrder().back().listed.panel();
    }
    /// The lowest panel of a stencil.
    [[nodiscard]] HWND lastStencilPanel() {
        const HWND inner = FindWindowExW(
            FindWindowExW(program_.settings().handle(), nullptr, L"PictureBox", nullptr), nullptr,
            L"PictureBox", nullptr);
        HWND last = nullptr;
        int lowest = std::numeric_limits<int>::min();
        HWND panel = nullptr;
        while ((panel = FindWindowExW(inner, panel, L"ctlSetRatioGrid", nullptr)) != nullptr) {
            RECT place{};
            GetWindowRect(panel, &place);
            if (IsWindowVisible(panel) != FALSE && place.top > lowest) {
                lowest = static_cast<int>(place.top);
                last = panel;
            }
        }
        return last;
    }

    /// Of the control window and in it.
    [[nodiscard]] int windowCount() { return windowsOf(program_.settings().handle()); }

    /// Adds a tool until its panel is painted.
    void add(ToolKind kind) {
        pane().execute(kind == ToolKind::stencil ? Command::addStencil : Command::addMeasure);
        paint();
    }
    void fill(ToolKind kind) {
        while (list().GetPanelsInVisualOrder().size() < windowTools) {
            add(kind);
        }
    }
    void paint() {
        RedrawWindow(program_.settings().handle(), nullptr, nullptr,
                     RDW_UPDATENOW | RDW_ALLCHILDREN);
        UpdateWindow(program_.worksheet().handle());
        GdiFlush();
    }
    /// What the system still has to say is said, and the throttled read-outs are shown.
    static void settle() { test::pause(test::milliseconds(200)); }

  private:
    const test::AppDataFolder folder_;
    Program program_{false};
};

int windowsToPaint(HWND window) {
    int count = GetUpdateRect(window, nullptr, FALSE) != FALSE ? 1 : 0;
    for (HWND child = GetWindow(window, GW_CHILD); child != nullptr;
         child = GetWindow(child, GW_HWNDNEXT)) {
        count += windowsToPaint(child);
    }
    return count;
}

void addPanels(ControlWindowStage& stage, ToolKind kind, const std::string& what) {
    std::vector<double> firsts;
    std::vector<double> lasts;
    for (int i = 0; i < windowRuns; ++i) {
        stage.list().RemoveAllTools();
        // The first pair has its window already.
        stage.add(kind);
        ControlWindowStage::settle();
        firsts.push_back(elapsed([&] { stage.add(kind); }));
        while (stage.list().GetPanelsInVisualOrder().size() + 1 < windowTools) {
            stage.add(kind);
        }
        ControlWindowStage::settle();
        lasts.push_back(elapsed([&] { stage.add(kind); }));
    }
    report("adding the 33rd " + what + " with its panel", median(lasts), "ms",
           limitOf(firsts, "the first panel made", 2));
}

/// As many windows as a panel has, each with a text, until they are painted.
class BareWindows {
  public:
    BareWindows(HWND parent, int count) {
        for (int i = 0; i < count; ++i) {
            constexpr int side = 16;
            constexpr int perRow = 16;
            windows_.push_back(CreateWindowExW(0, L"STATIC", L"12345", WS_CHILD | WS_VISIBLE,
                                               i % perRow * side, i / perRow * side, side, side,
                                               parent, nullptr, nullptr, nullptr));
            UpdateWindow(windows_.back());
        }
        GdiFlush();
    }
    BareWindows(const BareWindows&) = delete;
    BareWindows& operator=(const BareWindows&) = delete;
    ~BareWindows() {
        for (HWND window : windows_) {
            DestroyWindow(window);
        }
    }

  private:
    std::vector<HWND> windows_;
};

/// Beside that of the first one, which has its window already.
void makePanel(ControlWindowStage& stage) {
    std::vector<double> made;
    std::vector<double> bare;
    for (int i = 0; i < windowRuns; ++i) {
        stage.list().RemoveAllTools();
        stage.add(ToolKind::stencil);
        ControlWindowStage::settle();
        made.push_back(elapsed([&] { stage.add(ToolKind::stencil); }));
        const HWND panel = stage.lastStencilPanel();
        const int count = windowsOf(panel);
        ControlWindowStage::settle();
        bare.push_back(elapsed([&] { const BareWindows windows(panel, count); }));
    }
    report("making one stencil panel", median(made), "ms",
           limitOf(bare, "as many bare windows of the system", 2));
}

void loadPanels(ControlWindowStage& stage, ToolKind kind, const std::string& what) {
    stage.fill(kind);
    stage.pane().automatic().save();
    std::vector<double> times;
    for (int i = 0; i < windowRuns; ++i) {
        times.push_back(elapsed([&] {
            stage.pane().automatic().load({});
            stage.paint();
        }));
        ControlWindowStage::settle();
    }
    report("load of 33 " + what + " with their panels", median(times), "ms",
           {150, "what a user takes for at once", 1});
    constexpr double mostWindows = 600;
    // Before the controls that nobody needs any more have gone.
    report("windows with 33 " + what, stage.windowCount(), "",
           {mostWindows, "what is promised", 1});
}

/// Such a small turn of a stencil changes its angle in radians and not that in degrees.
void refreshPanel(ControlWindowStage& stage) {
    auto& stencil = dynamic_cast<ctlRatioGrid&>(stage.lastPanel().RefControlControl());
    const HWND window = stage.lastStencilPanel();
    ControlWindowStage::settle();
    std::vector<double> times;
    int most = 0;
    for (int i = 0; i < 200; ++i) {
        stencil.setRotationAngle(i % 2 == 0 ? 0.0006 : 0);
        stage.paint();
        times.push_back(elapsed([&] {
            stage.lastPanel().ShowAllProps(true);
            most = std::max(most, windowsToPaint(window));
            stage.paint();
        }));
    }
    std::printf("%-46s %9.3f ms   at most %d of its controls repainted (at most 1)\n",
                "refresh of a panel, one read-out changed", median(times), most);
    std::fflush(stdout);
}

void turnWheel(ControlWindowStage& stage, const std::string& what) {
    constexpr int notches = 20;
    constexpr int steps = 8;
    std::vector<double> times;
    for (const int direction : {1, -1}) {
        for (int i = 0; i < 2 * notches; ++i) {
            stage.pane().Scroll(-direction);
        }
        for (int i = 0; i < notches; ++i) {
            times.push_back(elapsed([&] {
                                stage.pane().Scroll(direction);
                                stage.paint();
                            }) /
                            steps);
        }
    }
    report("a step of the wheel through 33 " + what, median(times), "ms",
           {8, "what the glide allows it", 0.5});
}

}  // namespace

void idlePanels() {
    ControlWindowStage stage;
    stage.fill(ToolKind::stencil);
    ControlWindowStage::settle();
    // Long enough that the 10 ms in which the system counts tell little.
    constexpr int seconds = 30;
    const double before = processorTime();
    idleFor(seconds * 1000);
    report("30 s of idling with 33 panels", processorTime() - before, "ms",
           {seconds * 1000 / 500.0, "0.2 per cent of a core", 1});
}

void controlWindow() {
    ControlWindowStage stage;
    makePanel(stage);
    addPanels(stage, ToolKind::stencil, "stencil");
    refreshPanel(stage);
    loadPanels(stage, ToolKind::stencil, "stencils");
    addPanels(stage, ToolKind::measurement, "measuring tool");
    loadPanels(stage, ToolKind::measurement, "measuring tools");
}

void wheel() {
    ControlWindowStage stage;
    for (const auto& [kind, what] : {std::pair{ToolKind::stencil, "stencils"},
                                     std::pair{ToolKind::measurement, "measuring tools"}}) {
        stage.list().RemoveAllTools();
        stage.fill(kind);
        ControlWindowStage::settle();
        turnWheel(stage, what);
    }
}

}  // namespace ormala::bench
