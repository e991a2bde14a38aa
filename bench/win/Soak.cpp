#include <windows.h>

#include <algorithm>
#include <cstdio>
#include <functional>
#include <iterator>
#include <stdexcept>
#include <string>
#include <utility>

// Needs what windows.h declares.
#include <psapi.h>

#include "app/win/shell/Program.h"
#include "benchmarks.h"
#include "e2e/support/AppDataFolder.h"
#include "platform/win/HandleCount.h"
#include "platform/win/controlName.h"
#include "platform/win/text.h"
#include "support/win/Wait.h"
#include "toolkit/GripTool.h"

namespace ormala::bench {

namespace {

constexpr std::size_t mostTools = 33;

struct Holdings {
    std::size_t bytes = 0;
    /// Of the wrappers.
    long handles = 0;
    int windows = 0;
};

BOOL CALLBACK countWindow(HWND window, LPARAM count) {
    ++*reinterpret_cast<int*>(count);
    EnumChildWindows(
        window,
        [](HWND, LPARAM inner) -> BOOL {
            ++*reinterpret_cast<int*>(inner);
            return TRUE;
        },
        count);
    return TRUE;
}

Holdings holdings() {
    test::pause(test::milliseconds(500));
    PROCESS_MEMORY_COUNTERS counters{};
    GetProcessMemoryInfo(GetCurrentProcess(), &counters, sizeof counters);
    Holdings now{counters.PagefileUsage, HandleCount::held(), 0};
    EnumThreadWindows(GetCurrentThreadId(), countWindow, reinterpret_cast<LPARAM>(&now.windows));
    return now;
}

std::string classNameOf(HWND window) {
    wchar_t text[64]{};
    GetClassNameW(window, text, 64);
    return narrow(text);
}

/// The first control of that name in a window, at any depth.
HWND findControl(HWND window, const std::string& name) {
    for (HWND child = GetWindow(window, GW_CHILD); child != nullptr;
         child = GetWindow(child, GW_HWNDNEXT)) {
        if (controlName(child) == name) {
            return child;
        }
        if (HWND found = findControl(child, name); found != nullptr) {
            return found;
        }
    }
    return nullptr;
}

/// Closes each dialog as soon as it is shown.
class Closer : private Window {
  public:
    Closer() {
        WindowDesign design;
        design.className = L"SoakCloser";
        create(design);
        SetTimer(handle(), 1, USER_TIMER_MINIMUM, nullptr);
    }
    ~Closer() override { destroy(); }

    void open(HWND button, const std::string& dialog) {
        wanted_ = dialog;
        SendMessageW(button, BM_CLICK, 0, 0);
        wanted_.clear();
    }

  private:
    std::optional<LRESULT> onMessage(UINT message, WPARAM /*wParam*/, LPARAM /*lParam*/) override {
        if (message == WM_TIMER && !wanted_.empty()) {
            EnumThreadWindows(GetCurrentThreadId(), &closeWanted, reinterpret_cast<LPARAM>(this));
            return 0;
        }
        return std::nullopt;
    }
    static BOOL CALLBACK closeWanted(HWND window, LPARAM self) {
        if (IsWindowVisible(window) != FALSE &&
            classNameOf(window) == reinterpret_cast<Closer*>(self)->wanted_) {
            PostMessageW(window, WM_CLOSE, 0, 0);
        }
        return TRUE;
    }

    std::string wanted_;
};

class SoakStage {
  public:
    SoakStage() { fill(); }

    void fill() {
        while (list().GetPanelsInVisualOrder().size() < mostTools) {
            list().AddNewControl(static_cast<int>(list().GetPanelsInVisualOrder().size() % 2));
        }
    }
    void addAndRemove() {
        list().RemovePanel(list().GetPanelsInVisualOrder().back().listed.panel());
        list().AddNewControl(static_cast<int>(added_++ % 2));
        serve();
    }
    /// One change.
    void changeMode() {
        constexpr Mode modes[] = {Mode::templateMode, Mode::pause, Mode::edit};
        program_.modes().SetMode(modes[changed_++ % std::size(modes)], false);
        serve();
    }
    void dragStep() {
        const int by = 1 + static_cast<int>(dragged_ % 40);
        mouse(WM_MOUSEMOVE, MK_LBUTTON, by);
        ++dragged_;
        if (dragged_ % 16 == 0) {
            serve();
        }
    }
    void beginDrag() {
        grip_ = gripOfLastTool();
        mouse(WM_MOUSEMOVE, 0, 0);
        mouse(WM_LBUTTONDOWN, MK_LBUTTON, 0);
    }
    void endDrag() {
        const bool dragged = gripOfLastTool() != grip_;
        mouse(WM_LBUTTONUP, 0, 0);
        if (!dragged) {
            throw std::runtime_error("the tool did not follow the mouse");
        }
    }
    void openDialog(const char* button, const char* dialog) {
        closer_.open(findControl(program_.settings().handle(), button), dialog);
        serve();
    }

  private:
    [[nodiscard]] ToolList& list() { return program_.tools().tools(); }
    [[nodiscard]] Point gripOfLastTool() {
        const OverlayItem& tool =
            list().GetPanelsInVisualOrder().back().listed.panel().RefControlControl();
        return dynamic_cast<const GripTool&>(tool).grips()[0].center();
    }
    void mouse(UINT message, WPARAM buttons, int by) {
        SendMessageW(
            program_.worksheet().handle(), message, buttons,
            MAKELPARAM(static_cast<int>(grip_.x) + by, static_cast<int>(grip_.y) + by % 7));
    }
    /// What has been posted meanwhile, and what is to be painted.
    static void serve() { test::pause(test::milliseconds(0)); }

    const test::AppDataFolder folder_;
    Program program_{false};
    Closer closer_;
    Point grip_{};
    unsigned long dragged_ = 0;
    unsigned long changed_ = 0;
    unsigned long added_ = 0;
};

/// A hundredth of it first, so that what is made once is there.
void play(const std::string& what, int wanted, const std::function<void()>& step) {
    const int count = std::max(1, wanted);
    for (int i = 0; i < std::max(1, count / 100); ++i) {
        step();
    }
    const Holdings before = holdings();
    for (int i = 0; i < count; ++i) {
        step();
    }
    const Holdings after = holdings();
    std::printf("| %d %s | %zu, %zu KB | %ld, %ld | %d, %d |\n", count, what.c_str(),
                before.bytes / 1024, after.bytes / 1024, before.handles, after.handles,
                before.windows, after.windows);
    std::fflush(stdout);
}

}  // namespace

void soak(int divisor) {
    SoakStage stage;
    std::printf(
        "| What | private memory before and after | handles of the system | windows |\n"
        "|---|---|---|---|\n");
    stage.beginDrag();
    play("steps of a drag among 33 tools", 1000000 / divisor, [&] { stage.dragStep(); });
    stage.endDrag();
    // A whole turn of the three modes each time, so that it ends as it began.
    play("turns of the three modes", 10000 / 3 / divisor, [&] {
        stage.changeMode();
        stage.changeMode();
        stage.changeMode();
    });
    const std::pair<const char*, const char*> dialogs[] = {
        {"cmdOptions", "frmOptions"},     {"cmdColor", "frmColor"},
        {"cmdLineStyle", "frmLineStyle"}, {"cmdSelectPattern", "frmPatternSelect"},
        {"cmdEditRatio", "frmRatio"},     {"cmdUnits", "frmUnit"},
    };
    for (const auto& opened : dialogs) {
        play(std::string("openings of ") + opened.second, 1000 / divisor,
             [&] { stage.openDialog(opened.first, opened.second); });
    }
    play("removals and additions", 1000 / divisor, [&] { stage.addAndRemove(); });
}

}  // namespace ormala::bench
