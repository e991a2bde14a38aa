#include "app/win/MouseAction.h"

#include <gtest/gtest.h>
#include <windowsx.h>

#include <vector>

#include "platform/win/Window.h"
#include "support/win/Wait.h"
#include "win/TestSheet.h"

namespace ormala {
namespace {

/// A window of another program's kind that notes the mouse.
class Target : public Window {
  public:
    explicit Target(RECT place, DWORD style = WS_POPUP) {
        WindowDesign design;
        design.className = L"MouseActionTarget";
        design.style = style | WS_VISIBLE;
        design.place = place;
        create(design);
    }
    ~Target() override { destroy(); }

    struct Noted {
        UINT message;
        POINT at;
        WPARAM buttons;
    };
    std::vector<Noted> noted;

  private:
    std::optional<LRESULT> onMessage(UINT message, WPARAM wParam, LPARAM lParam) override {
        if (message == WM_LBUTTONDOWN || message == WM_LBUTTONUP || message == WM_MOUSEMOVE) {
            POINT at{GET_X_LPARAM(lParam), GET_Y_LPARAM(lParam)};
            ClientToScreen(handle(), &at);
            noted.push_back({message, at, wParam});
            if (message == WM_LBUTTONDOWN) {
                SetCapture(handle());
            } else if (message == WM_LBUTTONUP) {
                ReleaseCapture();
            }
        }
        return std::nullopt;
    }
};

TEST(MouseAction, PathIsTheFirstAndLastPixelOnTheScreen) {
    TestSheet sheet({640, 480});
    const RECT place = sheet.window().rectangle();
    const MouseActionPath path = mouseActionPath({10.4, 20.5, 100.6, 200}, sheet.window().handle());
    EXPECT_EQ(path.from.x, place.left + 10);
    EXPECT_EQ(path.from.y, place.top + 21);
    EXPECT_EQ(path.to.x, place.left + 101);
    EXPECT_EQ(path.to.y, place.top + 200);
}

TEST(MouseAction, DragsInTheProgramBelowAndPutsEverythingBack) {
    Target target({0, 0, 900, 700});
    Target control({700, 100, 900, 300}, WS_CAPTION | WS_SYSMENU | WS_THICKFRAME);
    TestSheet sheet({640, 480});
    ctlRatioGrid& stencil = sheet.addStencil({100, 100, 300, 250}, 0.5, rgb(255, 0, 0));
    sheet.window().setClickable(false);
    test::pause(test::milliseconds{200});
    SetCursorPos(600, 600);
    test::pause(test::milliseconds{100});
    target.noted.clear();
    const LONG left = control.rectangle().left;
    POINT before{};
    GetCursorPos(&before);

    applyMouseAction(stencil, sheet.window().handle(), control.handle());

    const auto has = [&](UINT message) {
        return std::ranges::any_of(target.noted,
                                   [&](const auto& note) { return note.message == message; });
    };
    EXPECT_TRUE(test::waitUntil([&] { return has(WM_LBUTTONUP); }));
    const RECT place = sheet.window().rectangle();
    for (const auto& note : target.noted) {
        if (note.message == WM_LBUTTONDOWN) {
            EXPECT_EQ(note.at.x, place.left + 100);
            EXPECT_EQ(note.at.y, place.top + 100);
        }
        if (note.message == WM_LBUTTONUP) {
            EXPECT_EQ(note.at.x, place.left + 300);
            EXPECT_EQ(note.at.y, place.top + 250);
        }
    }
    EXPECT_TRUE(has(WM_LBUTTONDOWN));
    EXPECT_TRUE(test::waitUntil([&] { return control.rectangle().left == left; }))
        << control.rectangle().left << " instead of " << left;
    EXPECT_TRUE(test::waitUntil([&] {
        POINT now{};
        GetCursorPos(&now);
        return now.x == before.x && now.y == before.y;
    }));
    EXPECT_TRUE(stencil.mouseAction().running());
}

}  // namespace
}  // namespace ormala
