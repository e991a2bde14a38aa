#include "platform/win/callbackGuard.h"

#include <gtest/gtest.h>

#include <stdexcept>

#include "platform/win/Window.h"

namespace ormala {
namespace {

constexpr UINT wmFail = WM_APP + 1;
constexpr UINT wmOpen = WM_APP + 2;

/// A window in which a message fails.
class FailingWindow : public Window {
  public:
    FailingWindow() {
        WindowDesign design;
        design.className = L"FailingWindow";
        design.style = WS_POPUP;
        create(design);
    }
    ~FailingWindow() override { destroy(); }

  private:
    std::optional<LRESULT> onMessage(UINT message, WPARAM, LPARAM) override {
        switch (message) {
            case wmFail:
                throw std::runtime_error("the first");
            case wmOpen:
                SendMessageW(handle(), wmFail, 0, 0);
                throw std::logic_error("the second");
            default:
                return std::nullopt;
        }
    }
};

int codeOfMessageLoop() {
    MSG message{};
    while (GetMessageW(&message, nullptr, 0, 0) > 0) {
        DispatchMessageW(&message);
    }
    return static_cast<int>(message.wParam);
}

TEST(CallbackGuard, AFailureInAMessageEndsTheLoopAndIsThrownBehindIt) {
    const FailingWindow window;
    PostMessageW(window.handle(), wmFail, 0, 0);
    EXPECT_EQ(codeOfMessageLoop(), 1);
    EXPECT_THROW(throwKeptFailure(), std::runtime_error);
    EXPECT_NO_THROW(throwKeptFailure());
}

TEST(CallbackGuard, TheFirstOfSeveralFailuresIsKept) {
    const FailingWindow window;
    SendMessageW(window.handle(), wmOpen, 0, 0);
    EXPECT_THROW(throwKeptFailure(), std::runtime_error);
}

TEST(CallbackGuard, AMessageAboutTheFailureFindsNoEndOfTheLoopLeftOver) {
    const FailingWindow window;
    SendMessageW(window.handle(), wmOpen, 0, 0);
    EXPECT_THROW(throwKeptFailure(), std::runtime_error);
    MSG message{};
    EXPECT_EQ(PeekMessageW(&message, nullptr, WM_QUIT, WM_QUIT, PM_REMOVE), FALSE);
}

TEST(CallbackGuard, AWindowThatTheSystemRefusesIsNamed) {
    class Refused : public Window {
      public:
        Refused() {
            WindowDesign design;
            design.className = L"RefusedWindow";
            // A child without a parent.
            design.style = WS_CHILD;
            create(design);
        }

      private:
        std::optional<LRESULT> onMessage(UINT, WPARAM, LPARAM) override { return std::nullopt; }
    };
    try {
        const Refused refused;
        FAIL() << "the system has made a child without a parent";
    } catch (const std::system_error& failure) {
        EXPECT_EQ(std::string(failure.what()).find("RefusedWindow"), 0U);
        EXPECT_EQ(failure.code().value(), ERROR_TLW_WITH_WSCHILD);
    }
}

}  // namespace
}  // namespace ormala
