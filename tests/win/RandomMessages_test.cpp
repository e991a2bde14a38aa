#include <gtest/gtest.h>

#include <algorithm>
#include <array>
#include <chrono>
#include <condition_variable>
#include <mutex>
#include <random>
#include <set>
#include <string>
#include <thread>
#include <vector>

#include "platform/win/controlName.h"
#include "stencil/ctlRatioGrid.h"
#include "win/ModalPlayer.h"
#include "win/ModesStage.h"

// Whoever runs beside the program can send its windows any message.

namespace ormala {
namespace {

constexpr int messageCount = 6000;
/// So many go to each dialog that comes up before it is closed.
constexpr int messagesToDialog = 60;

/// What means something to windows of the program. Those with pointers, which only the system may
/// fill, are left out, and those that end the program or begin a loop of the system's own that
/// nothing could end.
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

struct Message {
    UINT number;
    WPARAM wParam;
    LPARAM lParam;
};

/// The same messages for the same seed.
class Dice {
  public:
    explicit Dice(unsigned seed) : random_(seed) {}

    unsigned pick(std::size_t below) {
        return static_cast<unsigned>(random_()) % static_cast<unsigned>(below);
    }
    Message message() {
        const UINT number =
            pick(10) == 0 ? ownNumber() : static_cast<UINT>(messages[pick(messages.size())]);
        // Small numbers mean something more often.
        const WPARAM wParam = pick(2) == 0 ? pick(256) : static_cast<WPARAM>(random_());
        const LPARAM lParam =
            pick(2) == 0 ? MAKELPARAM(pick(600), pick(600)) : static_cast<LPARAM>(random_());
        const bool hasPointer =
            number == WM_SETTINGCHANGE || number == WM_COMMAND || number == WM_GETDLGCODE;
        return {number, number == WM_KEYDOWN ? key() : wParam, hasPointer ? 0 : lParam};
    }

  private:
    UINT ownNumber() {
        const UINT first = pick(2) == 0 ? WM_USER : WM_APP;
        return first + pick(first == WM_USER ? 0x310 : 12);
    }
    /// That of the help would start a browser.
    WPARAM key() {
        const WPARAM any = pick(256);
        return any == VK_F1 ? WPARAM{VK_F2} : any;
    }

    std::mt19937 random_;
};

/// Ends the process with the name of the last message if the messages do not end.
class Watchdog {
  public:
    Watchdog() : thread_([this] { watch(); }) {}
    Watchdog(const Watchdog&) = delete;
    Watchdog& operator=(const Watchdog&) = delete;
    ~Watchdog() {
        {
            const std::lock_guard lock(mutex_);
            done_ = true;
        }
        changed_.notify_one();
        thread_.join();
    }

    void note(const std::string& last) {
        const std::lock_guard lock(mutex_);
        last_ = last;
    }

  private:
    void watch() {
        constexpr std::chrono::seconds longest{90};
        std::unique_lock lock(mutex_);
        if (!changed_.wait_for(lock, longest, [this] { return done_; })) {
            std::printf("[  FAILED  ] No end of %s\n", last_.c_str());
            std::fflush(stdout);
            TerminateProcess(GetCurrentProcess(), 1);
        }
    }

    std::mutex mutex_;
    std::condition_variable changed_;
    bool done_ = false;
    std::string last_ = "the start";
    std::thread thread_;
};

BOOL CALLBACK addWindow(HWND window, LPARAM list) {
    reinterpret_cast<std::vector<HWND>*>(list)->push_back(window);
    return TRUE;
}

std::vector<HWND> topWindows() {
    std::vector<HWND> top;
    EnumThreadWindows(GetCurrentThreadId(), addWindow, reinterpret_cast<LPARAM>(&top));
    return top;
}

std::vector<HWND> allIn(HWND window) {
    std::vector<HWND> all{window};
    EnumChildWindows(window, addWindow, reinterpret_cast<LPARAM>(&all));
    return all;
}

/// What these do is real input, which goes wherever the mouse is, a browser, or a dialog of the
/// system over all files of the machine.
bool isLeftAlone(HWND window) {
    static const std::set<std::string> names{"cmdSendMouseInput", "cmdHelp", "cmdLoad", "cmdSave",
                                             "cmdSaveAs"};
    return names.contains(controlName(window)) || classNameOf(window) == "LinkLabel";
}

/// Sends messages, and leaves whatever has a message loop of its own then: menus and boxes at once,
/// dialogs after some messages of their own.
class Sender : private Window {
  public:
    explicit Sender(unsigned seed) : dice_(seed) {
        constexpr UINT tickLength = 10;
        WindowDesign design;
        design.className = L"RandomMessages";
        create(design);
        SetTimer(handle(), 1, tickLength, nullptr);
    }
    ~Sender() override { destroy(); }

    /// To windows of the program's own classes; those of the system take care of themselves.
    void sendToAny(const std::vector<HWND>& windows) {
        HWND window = windows[dice_.pick(windows.size())];
        const Message message = dice_.message();
        if (window != handle() && IsWindow(window) != FALSE && isOwn(window) &&
            !isLeftAlone(window)) {
            send(window, message);
        }
    }
    void send(HWND window, const Message& message) {
        const std::string name = classNameOf(window);
        reached.insert(name);
        watchdog_.note("message " + std::to_string(message.number) + " (" +
                       std::to_string(message.wParam) + ", " + std::to_string(message.lParam) +
                       ") to " + name + " " + controlName(window));
        SendMessageW(window, message.number, message.wParam, message.lParam);
    }

    std::set<std::string> reached;

  private:
    /// The class's own procedure is one of the program's.
    static bool isOwn(HWND window) {
        HMODULE module = nullptr;
        return GetModuleHandleExW(
                   GET_MODULE_HANDLE_EX_FLAG_FROM_ADDRESS |
                       GET_MODULE_HANDLE_EX_FLAG_UNCHANGED_REFCOUNT,
                   reinterpret_cast<LPCWSTR>(GetWindowLongPtrW(window, GWLP_WNDPROC)),
                   &module) != FALSE &&
               module == GetModuleHandleW(nullptr);
    }

    std::optional<LRESULT> onMessage(UINT message, WPARAM /*wParam*/, LPARAM /*lParam*/) override {
        if (message != WM_TIMER) {
            return std::nullopt;
        }
        leave();
        return 0;
    }

    void leave() {
        static const std::set<std::string> dialogs{"frmOptions",       "frmColor", "frmLineStyle",
                                                   "frmPatternSelect", "frmRatio", "frmUnit",
                                                   "frmAbout"};
        EndMenu();
        for (HWND window : topWindows()) {
            const std::string name = IsWindowVisible(window) != FALSE ? classNameOf(window) : "";
            if (name == "#32770") {
                PostMessageW(window, WM_COMMAND, IDNO, 0);
                PostMessageW(window, WM_COMMAND, IDCANCEL, 0);
            } else if (dialogs.contains(name)) {
                play(window, name);
                PostMessageW(window, WM_CLOSE, 0, 0);
            }
        }
    }

    /// Another one that comes up meanwhile has the next turn.
    void play(HWND dialog, const std::string& name) {
        if (playing_.contains(name)) {
            return;
        }
        playing_.insert(name);
        if (HWND about = namedChild(dialog, "cmdAbout"); about != nullptr) {
            send(about, {BM_CLICK, 0, 0});
        }
        for (int i = 0; i < messagesToDialog && IsWindow(dialog) != FALSE; ++i) {
            sendToAny(allIn(dialog));
        }
        playing_.erase(name);
    }

    Dice dice_;
    Watchdog watchdog_;
    std::set<std::string> playing_;
};

class RandomMessages : public ModesStage {
  protected:
    RandomMessages() {
        option("Options", "Language", " 9");
        option("Options", "LensVisible", "-1");
        start();
        showCrossHair();
    }

    /// Its lines are made when they are first shown, which is where the mouse is.
    void showCrossHair() {
        const RECT sheet = program_->worksheet().rectangle();
        program_->execute(Command::crossHair);
        EXPECT_TRUE(test::waitUntil([&] {
            SetCursorPos((sheet.left + sheet.right) / 2, (sheet.top + sheet.bottom) / 2);
            return std::ranges::any_of(
                topWindows(), [](HWND window) { return classNameOf(window) == "frmCrossHair"; });
        }));
    }

    /// Each dialog at least once.
    void openDialogs(Sender& sender) {
        for (const char* button : {"cmdOptions", "cmdColor", "cmdLineStyle", "cmdSelectPattern",
                                   "cmdEditRatio", "cmdUnits"}) {
            HWND found = namedChild(settings_->handle(), button);
            ASSERT_NE(found, nullptr) << button;
            sender.send(found, {BM_CLICK, 0, 0});
        }
    }

    static void sendToAll(Sender& sender) {
        std::vector<HWND> windows;
        for (int i = 0; i < messageCount; ++i) {
            if (i % 100 == 0) {
                test::pause(test::milliseconds(1));
                windows.clear();
                for (HWND top : topWindows()) {
                    std::ranges::copy(allIn(top), std::back_inserter(windows));
                }
            }
            sender.sendToAny(windows);
        }
    }

    /// Two tools as at the start, whatever has become of those that there were.
    void beginAnew() {
        program_->modes().SetMode(Mode::edit, false);
        program_->resizer().showNormal();
        ShowWindow(settings_->handle(), SW_SHOWNORMAL);
        program_->tools().tools().RemoveAllTools();
        program_->execute(Command::addStencil);
    }

    [[nodiscard]] std::size_t toolCount() {
        return program_->tools().tools().GetPanelsInVisualOrder().size();
    }

    static bool isPainted(HWND window) {
        RedrawWindow(window, nullptr, nullptr,
                     RDW_INVALIDATE | RDW_ERASE | RDW_ALLCHILDREN | RDW_UPDATENOW);
        return std::ranges::all_of(
            allIn(window), [](HWND each) { return GetUpdateRect(each, nullptr, FALSE) == FALSE; });
    }

    /// The stencil follows the mouse, and the panel shows where it is.
    void expectThatAStencilMoves() {
        const auto& tool = dynamic_cast<const ctlRatioGrid&>(
            program_->tools().tools().LastVisiblePanel(ToolKind::stencil)->RefControlControl());
        const Rect before = tool.RectBound();
        const Point grip = tool.grips()[0].center();
        const auto mouse = [&](UINT message, WPARAM buttons, int by) {
            SendMessageW(program_->worksheet().handle(), message, buttons,
                         MAKELPARAM(static_cast<int>(grip.x) + by, static_cast<int>(grip.y) + by));
        };
        mouse(WM_MOUSEMOVE, 0, 0);
        mouse(WM_LBUTTONDOWN, MK_LBUTTON, 0);
        mouse(WM_MOUSEMOVE, MK_LBUTTON, 10);
        mouse(WM_MOUSEMOVE, MK_LBUTTON, 20);
        mouse(WM_LBUTTONUP, 0, 20);
        EXPECT_EQ(tool.RectBound().left, before.left + 20);
        EXPECT_EQ(tool.RectBound().top, before.top + 20);
    }
};

TEST_F(RandomMessages, LeaveEveryWindowAtWork) {
    const auto given = static_cast<unsigned>(GTEST_FLAG_GET(random_seed));
    const unsigned seed = given != 0 ? given : 20261122;
    std::printf("again with --gtest_random_seed=%u\n", seed);
    {
        Sender sender(seed);
        openDialogs(sender);
        sendToAll(sender);
        test::pause(test::milliseconds(50));
        for (const char* name :
             {"frmSettings",      "frmWorksheet",  "frmResizer", "frmLens",    "frmCrossHair",
              "frmOptions",       "frmAbout",      "frmColor",   "frmRatio",   "frmLineStyle",
              "frmPatternSelect", "frmUnit",       "ColorPic",   "Scroll",     "ctlSetRatioGrid",
              "ctlSetMeasure",    "ctlLineSelect", "ctlSlider",  "PictureBox", "TextBoxNumeric",
              "ZelvikButtonXP"}) {
            EXPECT_TRUE(sender.reached.contains(name)) << name;
        }
    }
    beginAnew();
    EXPECT_TRUE(worksheetLiesInTheFrame());
    EXPECT_EQ(shown(), (std::array{true, true, true}));
    const RECT client = program_->worksheet().clientRectangle();
    EXPECT_EQ(program_->worksheet().sheet().size(), sizeOf(client));
    for (HWND window : {settings_->handle(), program_->worksheet().handle(),
                        program_->resizer().handle(), program_->view().lens().lens().handle()}) {
        EXPECT_TRUE(isPainted(window)) << classNameOf(window);
    }
    EXPECT_EQ(toolCount(), 1U);
    SendMessageW(namedChild(settings_->handle(), "cmdAddGrid"), BM_CLICK, 0, 0);
    EXPECT_EQ(toolCount(), 2U);
    expectThatAStencilMoves();
    EXPECT_TRUE(end().value("Options", "Language").has_value());
}

}  // namespace
}  // namespace ormala
