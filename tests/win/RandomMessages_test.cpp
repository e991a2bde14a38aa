#include <gtest/gtest.h>

#include <array>
#include <atomic>
#include <memory>
#include <random>
#include <set>
#include <string>
#include <thread>
#include <vector>

#include "app/win/shell/Program.h"
#include "e2e/support/AppDataFolder.h"
#include "e2e/support/SettingsFile.h"
#include "platform/win/controlName.h"

// Whoever runs beside the program can send its windows any message.

namespace ormala {
namespace {

constexpr int messageCount = 8000;
/// So many more go to a dialog before it is closed.
constexpr int messagesToDialog = 40;

/// Pointers, which only the system may fill, are null or their messages left out, and so are those
/// that end the program or begin a loop of the system's own that nobody could end.
constexpr std::array messages{
    WM_MOUSEMOVE,     WM_LBUTTONDOWN,    WM_LBUTTONUP,      WM_LBUTTONDBLCLK,
    WM_RBUTTONDOWN,   WM_RBUTTONUP,      WM_MBUTTONDOWN,    WM_MBUTTONUP,
    WM_MOUSEWHEEL,    WM_MOUSELEAVE,     WM_CAPTURECHANGED, WM_CANCELMODE,
    WM_KEYDOWN,       WM_KEYUP,          WM_SYSKEYUP,       WM_CHAR,
    WM_SETFOCUS,      WM_KILLFOCUS,      WM_ACTIVATE,       WM_MOUSEACTIVATE,
    WM_ENABLE,        WM_SIZE,           WM_MOVE,           WM_PAINT,
    WM_ERASEBKGND,    WM_TIMER,          WM_COMMAND,        WM_HSCROLL,
    WM_VSCROLL,       WM_SETCURSOR,      WM_NCHITTEST,      WM_SETTINGCHANGE,
    WM_DISPLAYCHANGE, WM_SYSCOLORCHANGE, WM_THEMECHANGED,   WM_INPUTLANGCHANGE,
    WM_EXITSIZEMOVE,  WM_ENTERSIZEMOVE,  WM_CONTEXTMENU,    BM_CLICK,
    BM_GETCHECK,      WM_GETDLGCODE,     WM_UNICHAR,        WM_ACTIVATEAPP,
    WM_NULL,
};

constexpr UINT firstOwn = WM_APP;
constexpr UINT ownCount = 12;

std::string classOf(HWND window) {
    wchar_t name[64]{};
    GetClassNameW(window, name, 64);
    std::string narrow;
    for (const wchar_t* c = name; *c != 0; ++c) {
        narrow += static_cast<char>(*c);
    }
    return narrow;
}

BOOL CALLBACK addWindow(HWND window, LPARAM list) {
    reinterpret_cast<std::vector<HWND>*>(list)->push_back(window);
    return TRUE;
}

std::vector<HWND> windowsOf(DWORD thread) {
    std::vector<HWND> top;
    EnumThreadWindows(thread, addWindow, reinterpret_cast<LPARAM>(&top));
    std::vector<HWND> all = top;
    for (HWND window : top) {
        EnumChildWindows(window, addWindow, reinterpret_cast<LPARAM>(&all));
    }
    return all;
}

class Sender {
  public:
    explicit Sender(unsigned seed) : random_(seed) {}

    struct Message {
        UINT message;
        WPARAM wParam;
        LPARAM lParam;
    };

    Message next() {
        const bool own = pick(10) == 0;
        const UINT message =
            own ? firstOwn + pick(ownCount) : static_cast<UINT>(messages[pick(messages.size())]);
        // Small numbers mean something more often.
        const std::uint32_t one = pick(2) == 0 ? pick(256) : random_();
        const std::uint32_t other = pick(2) == 0 ? MAKELONG(pick(600), pick(600)) : random_();
        const bool pointer =
            message == WM_SETTINGCHANGE || message == WM_COMMAND || message == WM_GETDLGCODE;
        return {message, message == WM_KEYDOWN ? WPARAM{key()} : one,
                pointer ? 0 : static_cast<LPARAM>(other)};
    }
    unsigned pick(std::size_t below) { return random_() % static_cast<unsigned>(below); }

  private:
    /// The help would start a browser.
    unsigned key() {
        const unsigned any = pick(256);
        return any == VK_F1 ? unsigned{VK_F2} : any;
    }

    std::mt19937 random_;
};

/// Leaves what has a message loop of its own: menus, boxes and dialogs.
class Leaver {
  public:
    explicit Leaver(unsigned seed)
        : sender_(seed), main_(GetCurrentThreadId()), thread_([this] {
              while (!done_) {
                  Sleep(20);
                  leave();
              }
          }) {}
    Leaver(const Leaver&) = delete;
    Leaver& operator=(const Leaver&) = delete;
    ~Leaver() {
        done_ = true;
        thread_.join();
    }

  private:
    void leave() {
        static const std::set<std::string> dialogs{"frmOptions",       "frmColor", "frmLineStyle",
                                                   "frmPatternSelect", "frmRatio", "frmUnit",
                                                   "frmAbout"};
        for (HWND window : windowsOf(main_)) {
            const std::string name = classOf(window);
            if (IsWindowVisible(window) == FALSE) {
                continue;
            }
            if (name == "#32768") {
                PostMessageW(window, WM_KEYDOWN, VK_ESCAPE, 0);
            } else if (name == "#32770") {
                PostMessageW(window, WM_COMMAND, IDNO, 0);
                PostMessageW(window, WM_COMMAND, IDCANCEL, 0);
            } else if (dialogs.contains(name)) {
                annoy(window);
                PostMessageW(window, WM_CLOSE, 0, 0);
            }
        }
    }

    void annoy(HWND dialog) {
        std::vector<HWND> inside{dialog};
        EnumChildWindows(dialog, addWindow, reinterpret_cast<LPARAM>(&inside));
        for (int i = 0; i < messagesToDialog; ++i) {
            const auto [message, wParam, lParam] = sender_.next();
            PostMessageW(inside[sender_.pick(inside.size())], message, wParam, lParam);
        }
    }

    Sender sender_;
    DWORD main_;
    std::atomic<bool> done_ = false;
    std::thread thread_;
};

void takeMessages() {
    MSG message{};
    for (int i = 0; i < 100 && PeekMessageW(&message, nullptr, 0, 0, PM_REMOVE) != FALSE; ++i) {
        TranslateMessage(&message);
        DispatchMessageW(&message);
    }
}

TEST(RandomMessages, LeaveEveryWindowAlive) {
    const test::AppDataFolder folder;
    test::SettingsFile options;
    options.set("Options", "Language", " 9");
    options.set("Options", "LensVisible", "-1");
    options.write(folder.optionsFile());
    const auto given = static_cast<unsigned>(GTEST_FLAG_GET(random_seed));
    const unsigned seed = given != 0 ? given : 20261122;
    std::printf("again with --gtest_random_seed=%u\n", seed);
    std::set<std::string> reached;
    Program program(false);
    {
        const Leaver leaver(seed + 1);
        Sender sender(seed);
        std::vector<HWND> windows;
        for (int i = 0; i < messageCount; ++i) {
            if (i % 100 == 0) {
                takeMessages();
                windows = windowsOf(GetCurrentThreadId());
            }
            HWND window = windows[sender.pick(windows.size())];
            const auto [message, wParam, lParam] = sender.next();
            const bool help = controlName(window) == "cmdHelp";
            if (IsWindow(window) == FALSE || help) {
                continue;
            }
            reached.insert(classOf(window));
            SendMessageW(window, message, wParam, lParam);
        }
        takeMessages();
    }
    for (const char* name : {"frmSettings", "frmWorksheet", "frmResizer", "frmLens", "frmCrossHair",
                             "ctlSetRatioGrid", "ctlSetMeasure", "ZelvikButtonXP", "ctlSlider"}) {
        EXPECT_TRUE(reached.contains(name)) << name;
    }
    for (HWND window :
         {program.settings().handle(), program.worksheet().handle(), program.resizer().handle()}) {
        EXPECT_NE(IsWindow(window), FALSE);
    }
}

}  // namespace
}  // namespace ormala
