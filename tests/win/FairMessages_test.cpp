#include "platform/win/FairMessages.h"

#include <gtest/gtest.h>

#include <functional>
#include <optional>

#include "platform/win/Timer.h"
#include "platform/win/Window.h"
#include "support/win/Wait.h"

namespace ormala {
namespace {

/// A window to which the mouse moves again as soon as it has moved.
class FloodedWindow : public Window {
  public:
    FloodedWindow() {
        WindowDesign design;
        design.className = L"FloodedWindow";
        design.style = WS_POPUP | WS_VISIBLE;
        design.place = {100, 100, 200, 200};
        create(design);
        timer_.start(handle(), 15);
        PostMessageW(handle(), WM_MOUSEMOVE, 0, 0);
    }
    ~FloodedWindow() override { destroy(); }

    int moves = 0;
    int ticks = 0;
    int paintings = 0;

  protected:
    std::optional<LRESULT> onMessage(UINT message, WPARAM /*wParam*/, LPARAM /*lParam*/) override {
        switch (message) {
            case WM_MOUSEMOVE:
                ++moves;
                PostMessageW(handle(), WM_MOUSEMOVE, 0, 0);
                return 0;
            case WM_TIMER:
                ++ticks;
                InvalidateRect(handle(), nullptr, FALSE);
                return 0;
            case WM_PAINT:
                ++paintings;
                ValidateRect(handle(), nullptr);
                return 0;
            default:
                return std::nullopt;
        }
    }

  private:
    Timer timer_{1};
};

/// Handles messages until it is enough, or a time has passed that is ample for that.
void handleUntil(const std::function<bool(MSG&)>& next, const std::function<bool()>& enough) {
    const ULONGLONG end = GetTickCount64() + 10000;
    MSG message{};
    while (!enough() && GetTickCount64() < end && next(message)) {
        DispatchMessageW(&message);
    }
}

TEST(FairMessages, TimersAndPaintingsComeInTheMiddleOfAFloodOfMouseMoves) {
    FloodedWindow window;
    FairMessages messages;
    handleUntil([&](MSG& message) { return messages.next(message); },
                [&] { return window.ticks >= 20 && window.paintings >= 20; });
    EXPECT_GE(window.ticks, 20);
    EXPECT_GE(window.paintings, 20);
    EXPECT_GT(window.moves, window.ticks) << "and the mouse is not kept waiting";
}

TEST(FairMessages, WithoutThemTheFloodGoesBeforeAllElse) {
    FloodedWindow window;
    handleUntil([](MSG& message) { return GetMessageW(&message, nullptr, 0, 0) > 0; },
                [&] { return window.moves >= 5000; });
    EXPECT_EQ(window.ticks, 0);
}

TEST(FairMessages, TheEndOfTheProgramIsTheLastMessage) {
    for (const bool inATurn : {true, false}) {
        FairMessages messages;
        MSG message{};
        if (!inATurn) {
            PostThreadMessageW(GetCurrentThreadId(), WM_APP, 0, 0);
            EXPECT_TRUE(messages.next(message));
        }
        PostQuitMessage(7);
        bool goesOn = true;
        while (goesOn) {
            goesOn = messages.next(message);
        }
        EXPECT_EQ(message.message, static_cast<UINT>(WM_QUIT));
        EXPECT_EQ(message.wParam, 7U);
    }
}

}  // namespace
}  // namespace ormala
