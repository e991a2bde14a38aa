#include "app/win/tools/MouseAction.h"

#include <gtest/gtest.h>
#include <windowsx.h>

#include <atomic>
#include <mutex>
#include <thread>
#include <vector>

#include "platform/win/Window.h"
#include "support/win/Wait.h"
#include "win/TestSheet.h"

namespace ormala {
namespace {

/// A window on a thread of its own, as that of another program, that notes the mouse and takes its
/// time for each message.
class Target {
  public:
    explicit Target(const RECT& place) : thread_([this, place] { run(place); }) {
        EXPECT_TRUE(test::waitUntil([this] { return window_ != nullptr; }));
    }
    Target(const Target&) = delete;
    Target& operator=(const Target&) = delete;
    ~Target() {
        PostMessageW(window_, WM_CLOSE, 0, 0);
        thread_.join();
    }

    struct Noted {
        UINT message;
        PixelPoint at;
        bool operator==(const Noted&) const = default;
        friend std::ostream& operator<<(std::ostream& out, const Noted& noted) {
            return out << noted.message << " at " << noted.at.x << ", " << noted.at.y;
        }
    };
    /// Presses and releases so far.
    std::vector<Noted> buttons() {
        const std::lock_guard lock(mutex_);
        return buttons_;
    }
    int dragMoves() const { return dragMoves_; }
    void setSlowness(DWORD milliseconds) { slowness_ = milliseconds; }
    HWND window() const { return window_; }

  private:
    void run(const RECT& place) {
        WNDCLASSW windowClass{};
        windowClass.lpfnWndProc = dispatch;
        windowClass.hInstance = GetModuleHandleW(nullptr);
        windowClass.lpszClassName = L"MouseActionTarget";
        RegisterClassW(&windowClass);
        const HWND window =
            CreateWindowExW(0, windowClass.lpszClassName, L"", WS_POPUP, place.left, place.top,
                            place.right - place.left, place.bottom - place.top, nullptr, nullptr,
                            windowClass.hInstance, nullptr);
        SetWindowLongPtrW(window, GWLP_USERDATA, reinterpret_cast<LONG_PTR>(this));
        ShowWindow(window, SW_SHOW);
        window_ = window;
        MSG message{};
        while (GetMessageW(&message, nullptr, 0, 0) > 0) {
            DispatchMessageW(&message);
        }
    }

    static LRESULT CALLBACK dispatch(HWND window, UINT message, WPARAM wParam, LPARAM lParam) {
        auto* self = reinterpret_cast<Target*>(GetWindowLongPtrW(window, GWLP_USERDATA));
        if (message == WM_DESTROY) {
            PostQuitMessage(0);
        } else if (self != nullptr && message >= WM_MOUSEFIRST && message <= WM_MOUSELAST) {
            self->note(message, wParam, lParam);
        }
        return DefWindowProcW(window, message, wParam, lParam);
    }

    /// Takes no capture: each piece goes to whoever lies at its place when it is fetched.
    void note(UINT message, WPARAM held, LPARAM place) {
        POINT at{GET_X_LPARAM(place), GET_Y_LPARAM(place)};
        ClientToScreen(window_, &at);
        Sleep(slowness_);
        const std::lock_guard lock(mutex_);
        if (message == WM_MOUSEMOVE) {
            dragMoves_ += (held & MK_LBUTTON) != 0 ? 1 : 0;
        } else {
            buttons_.push_back({message, {static_cast<int>(at.x), static_cast<int>(at.y)}});
        }
    }

    std::mutex mutex_;
    std::vector<Noted> buttons_;
    std::atomic<int> dragMoves_ = 0;
    std::atomic<DWORD> slowness_ = 0;
    std::atomic<HWND> window_ = nullptr;
    std::thread thread_;
};

/// What the control window is to this.
class Control : public Window {
  public:
    Control() {
        WindowDesign design;
        design.className = L"MouseActionControl";
        design.style = WS_CAPTION | WS_SYSMENU | WS_THICKFRAME | WS_VISIBLE;
        design.place = {60, 60, 300, 300};
        create(design);
    }
    ~Control() override { destroy(); }

  private:
    std::optional<LRESULT> onMessage(UINT, WPARAM, LPARAM) override { return std::nullopt; }
};

PixelPoint cursor() {
    POINT now{};
    GetCursorPos(&now);
    return {static_cast<int>(now.x), static_cast<int>(now.y)};
}

class MouseActionTest : public testing::Test {
  protected:
    MouseActionTest() {
        test::pause(test::milliseconds{200});
        SetCursorPos(600, 600);
        test::pause(test::milliseconds{100});
    }

    void play() {
        sheet_.window().setTransparentToMouse(true);
        taken_ = applyMouseAction(stencil_, sheet_.window().handle(), control_.handle(), system_);
        sheet_.window().setTransparentToMouse(false);
    }

    /// Plays the action with a system that takes so many records and passes none of them on.
    void playWithSystemThatTakes(UINT count) {
        system_.send = [this, count](std::span<INPUT> records) {
            sent_.assign(records.begin(), records.end());
            return count;
        };
        play();
    }

    std::vector<Target::Noted> wanted() {
        const RECT place = sheet_.window().rectangle();
        const int left = static_cast<int>(place.left);
        const int top = static_cast<int>(place.top);
        return {{WM_LBUTTONDOWN, {left + 100, top + 100}}, {WM_LBUTTONUP, {left + 300, top + 250}}};
    }

    DragSystem system_ = windowsDragSystem();
    std::vector<INPUT> sent_;
    bool taken_ = false;
    Target target_{{0, 0, 900, 700}};
    Control control_;
    TestSheet sheet_{{640, 480}};
    ctlRatioGrid& stencil_ = sheet_.addStencil({100, 100, 300, 250}, 0.5, rgb(255, 0, 0));
};

TEST_F(MouseActionTest, DragsInTheProgramBelowInEditModeAndPutsEverythingBack) {
    const RECT former = control_.rectangle();
    const PixelPoint before = cursor();
    const Rect rectangle = stencil_.RectBound();
    ASSERT_TRUE(sheet_.window().Clickable());
    play();
    EXPECT_TRUE(taken_);
    EXPECT_EQ(target_.buttons(), wanted());
    EXPECT_GE(target_.dragMoves(), 1);
    EXPECT_TRUE(test::waitUntil([&] {
        const RECT now = control_.rectangle();
        return EqualRect(&now, &former) != FALSE;
    }));
    EXPECT_TRUE(test::waitUntil([&] { return cursor() == before; }));
    EXPECT_TRUE(stencil_.mouseAction().running());
    EXPECT_EQ(stencil_.RectBound().left, rectangle.left);
    EXPECT_EQ(stencil_.RectBound().bottom, rectangle.bottom);
    const RECT place = sheet_.window().rectangle();
    EXPECT_EQ(WindowFromPoint({place.left + 100, place.top + 100}), sheet_.window().handle());
}

TEST_F(MouseActionTest, WaitsForAProgramThatTakesItsTime) {
    target_.setSlowness(60);
    play();
    // What is fetched now would meet the worksheet again.
    test::waitUntil([&] { return target_.buttons() == wanted(); }, test::milliseconds{2000});
    EXPECT_EQ(target_.buttons(), wanted());
}

TEST_F(MouseActionTest, DoesNotWaitForEverForAProgramThatHangs) {
    target_.setSlowness(3000);
    const ULONGLONG start = GetTickCount64();
    play();
    EXPECT_LT(GetTickCount64() - start, 2700U);
}

TEST_F(MouseActionTest, SendsNothingIntoAProgramThatTheSystemShields) {
    const PixelPoint before = cursor();
    const RECT former = control_.rectangle();
    std::vector<HWND> asked;
    system_.admits = [&asked](HWND window) {
        asked.push_back(window);
        return false;
    };
    playWithSystemThatTakes(3);
    EXPECT_FALSE(taken_);
    EXPECT_EQ(asked, std::vector<HWND>{target_.window()});
    EXPECT_TRUE(sent_.empty());
    EXPECT_EQ(cursor(), before);
    const RECT now = control_.rectangle();
    EXPECT_TRUE(EqualRect(&now, &former));
}

TEST_F(MouseActionTest, TellsWhenTheSystemTakesNotAllOfTheInput) {
    const PixelPoint before = cursor();
    playWithSystemThatTakes(0);
    EXPECT_FALSE(taken_);
    playWithSystemThatTakes(2);
    EXPECT_FALSE(taken_);
    EXPECT_TRUE(test::waitUntil([&] { return cursor() == before; }));
}

TEST_F(MouseActionTest, SpeaksToAProgramOfTheSameRights) {
    EXPECT_TRUE(system_.admits(target_.window()));
}

TEST_F(MouseActionTest, PressesTheUsersMainButtonOnAnyMonitor) {
    for (const bool swapped : {false, true}) {
        system_.areButtonsSwapped = [swapped] { return swapped; };
        playWithSystemThatTakes(3);
        EXPECT_TRUE(taken_);
        ASSERT_EQ(sent_.size(), 3U);
        constexpr DWORD move = MOUSEEVENTF_MOVE | MOUSEEVENTF_ABSOLUTE | MOUSEEVENTF_VIRTUALDESK;
        const DWORD down = swapped ? MOUSEEVENTF_RIGHTDOWN : MOUSEEVENTF_LEFTDOWN;
        const DWORD up = swapped ? MOUSEEVENTF_RIGHTUP : MOUSEEVENTF_LEFTUP;
        EXPECT_EQ(sent_[0].mi.dwFlags, down);
        EXPECT_EQ(sent_[1].mi.dwFlags, move);
        EXPECT_EQ(sent_[2].mi.dwFlags, up);
    }
}

}  // namespace
}  // namespace ormala
