#include "widgets/win/Scroll.h"

#include <gtest/gtest.h>

#include <oleacc.h>

#include <algorithm>
#include <cstddef>
#include <memory>

#include "language/MlStringModule.h"
#include "platform/win/StandardControl.h"
#include "platform/win/controlName.h"
#include "platform/win/regions.h"
#include "platform/win/text.h"
#include "scene/Input.h"
#include "support/win/Wait.h"
#include "win/AccessibleReader.h"
#include "win/ControlPanel.h"
#include "win/EnglishTexts.h"
#include "win/TestSheet.h"
#include "win/marks.h"

namespace ormala {
namespace {

constexpr COLORREF glyph = RGB(255, 230, 0);

/// A window that holds bars.
class Holder : public Window {
  public:
    Holder() {
        WindowDesign design;
        design.className = L"ScrollHolder";
        design.style = WS_POPUP | WS_VISIBLE | WS_CLIPCHILDREN;
        design.place = {300, 200, 600, 700};
        create(design);
        SetForegroundWindow(handle());
    }
    ~Holder() override { destroy(); }

  private:
    std::optional<LRESULT> onMessage(UINT, WPARAM, LPARAM) override { return std::nullopt; }
};

/// A standing bar that scrolls a list of 1000 pixels of which 200 are in sight.
class ScrollTest : public testing::Test {
  protected:
    ScrollTest() {
        bar_->setDpi(96);
        resize(16, 200);
        bar_->setMax(-800);
        bar_->setSmallChange(10);
        bar_->setLargeChange(200);
    }

    void resize(int width, int height) {
        SetWindowPos(bar_->handle(), nullptr, 0, 0, width, height, SWP_NOZORDER | SWP_NOMOVE);
    }
    [[nodiscard]] HWND part(const char* name) const {
        for (HWND child = GetWindow(bar_->handle(), GW_CHILD); child != nullptr;
             child = GetWindow(child, GW_HWNDNEXT)) {
            if (controlName(child) == name) {
                return child;
            }
        }
        return nullptr;
    }
    [[nodiscard]] ScrollLayout layout() const {
        const PixelRect client = fromRect(bar_->clientRectangle());
        return layoutScroll({client.width(), client.height()}, 96, bar_->range());
    }
    [[nodiscard]] PixelRect placeOf(HWND child) const {
        RECT rect{};
        GetWindowRect(child, &rect);
        MapWindowPoints(nullptr, bar_->handle(), reinterpret_cast<POINT*>(&rect), 2);
        return fromRect(rect);
    }
    static void mouse(HWND window, UINT message, int x, int y) {
        const WPARAM held = message == WM_LBUTTONUP ? 0 : MK_LBUTTON;
        SendMessageW(window, message, held, MAKELPARAM(x, y));
    }
    void tick(int times) {
        for (int i = 0; i < times; ++i) {
            clock_.tick();
        }
    }
    /// What the bar shows once it has painted.
    [[nodiscard]] PixelMap shown() const {
        UpdateWindow(bar_->handle());
        test::pause(test::milliseconds{50});
        return readClient(bar_->handle());
    }
    /// How many pixels of a colour lie in a row, or in a column.
    static std::ptrdiff_t inRow(const PixelMap& map, int row, COLORREF color) {
        const auto first = map.pixels.begin() + std::ptrdiff_t{row} * map.size.width;
        return std::count(first, first + map.size.width, color);
    }
    static std::ptrdiff_t inColumn(const PixelMap& map, int column, COLORREF color) {
        std::ptrdiff_t count = 0;
        for (int row = 0; row < map.size.height; ++row) {
            count += map.at(column, row) == color ? 1 : 0;
        }
        return count;
    }

    /// Whether the bar listens to the clock, which then runs.
    [[nodiscard]] bool isHeld() {
        clock_.tick();
        return running_;
    }

    Holder holder_;
    bool running_ = false;
    Clock clock_{[this](bool running) { running_ = running; }};
    std::unique_ptr<Scroll> bar_ =
        std::make_unique<Scroll>(holder_.handle(), 7, "scrInner", clock_);
};

std::string classOf(HWND window) {
    wchar_t text[40]{};
    GetClassNameW(window, text, 40);
    return narrow(text);
}

TEST_F(ScrollTest, IsFoundByClassNameAndId) {
    EXPECT_EQ(classOf(bar_->handle()), "Scroll");
    EXPECT_EQ(controlName(bar_->handle()), "scrInner");
    EXPECT_EQ(GetDlgItem(holder_.handle(), 7), bar_->handle());
    for (const char* name : {"cmdTL", "cmdMove", "cmdBR"}) {
        ASSERT_NE(part(name), nullptr) << name;
        EXPECT_EQ(classOf(part(name)), "ZelvikButtonXP");
        EXPECT_TRUE(IsWindowVisible(part(name))) << name;
    }
    EXPECT_NE(GetDlgCtrlID(part("cmdTL")), GetDlgCtrlID(part("cmdBR")));
}

TEST_F(ScrollTest, ArrowsCarryTheirTextsOnceThereIsALanguage) {
    GetLanguageSupport().ChangeLanguage(languageGerman);
    EXPECT_EQ(textOf(part("cmdTL")), "6");
    EXPECT_EQ(textOf(part("cmdBR")), "5");
    GetLanguageSupport().ChangeLanguage(languageEnglish);
    EXPECT_EQ(textOf(part("cmdTL")), "6");
    EXPECT_EQ(textOf(part("cmdBR")), "5");
}

TEST_F(ScrollTest, ButtonsStandWhereTheLayoutHasThem) {
    EXPECT_EQ(placeOf(part("cmdTL")), layout().cmdTL);
    EXPECT_EQ(placeOf(part("cmdMove")), layout().cmdMove);
    EXPECT_EQ(placeOf(part("cmdBR")), layout().cmdBR);
    bar_->setValue(-333);
    EXPECT_EQ(placeOf(part("cmdMove")), layout().cmdMove);
    resize(150, 20);
    EXPECT_TRUE(layout().horizontal);
    EXPECT_EQ(placeOf(part("cmdMove")), layout().cmdMove);
    EXPECT_EQ(placeOf(part("cmdBR")), (PixelRect{130, 0, 150, 20}));
}

TEST_F(ScrollTest, HeldArrowStepsWithTheClockOfItsOwner) {
    mouse(part("cmdBR"), WM_LBUTTONDOWN, 8, 8);
    EXPECT_TRUE(running_);
    EXPECT_EQ(GetCapture(), bar_->handle());
    tick(10);
    EXPECT_EQ(bar_->Value(), 0);
    tick(3);
    EXPECT_EQ(bar_->Value(), -30);
    mouse(bar_->handle(), WM_LBUTTONUP, 8, 192);
    EXPECT_FALSE(isHeld());
    EXPECT_EQ(GetCapture(), nullptr);
    EXPECT_EQ(bar_->Value(), -30);
}

TEST_F(ScrollTest, ShortClickOnAnArrowStepsOnce) {
    mouse(part("cmdBR"), WM_LBUTTONDOWN, 8, 8);
    mouse(bar_->handle(), WM_LBUTTONUP, 8, 192);
    EXPECT_EQ(bar_->Value(), -10);
    mouse(part("cmdBR"), WM_LBUTTONDBLCLK, 8, 8);
    mouse(bar_->handle(), WM_LBUTTONUP, 8, 192);
    EXPECT_EQ(bar_->Value(), -20);
    SendMessageW(part("cmdTL"), BM_CLICK, 0, 0);
    EXPECT_EQ(bar_->Value(), -10);
}

TEST_F(ScrollTest, PressOnTheTrackPagesToTheMouse) {
    mouse(bar_->handle(), WM_LBUTTONDOWN, 8, 150);
    tick(200);
    const PixelRect thumb = placeOf(part("cmdMove"));
    EXPECT_TRUE(thumb.contains({8, 150}));
    mouse(bar_->handle(), WM_LBUTTONUP, 8, 150);
    EXPECT_EQ(bar_->Value(), -600);
}

TEST_F(ScrollTest, ThumbFollowsTheMouseThatHoldsIt) {
    int changes = 0;
    const Subscription counting = bar_->Change.subscribe([&] { ++changes; });
    const int top = placeOf(part("cmdMove")).top;
    mouse(part("cmdMove"), WM_LBUTTONDOWN, 8, 6);
    for (int y = 0; y <= 40; y += 10) {
        mouse(bar_->handle(), WM_MOUSEMOVE, 8, top + 6 + y);
        EXPECT_EQ(placeOf(part("cmdMove")).top, top + y);
    }
    EXPECT_EQ(changes, 4);
    mouse(bar_->handle(), WM_MOUSEMOVE, 500, 3000);
    EXPECT_EQ(bar_->Value(), -800);
    mouse(bar_->handle(), WM_LBUTTONUP, 500, 3000);
    mouse(bar_->handle(), WM_MOUSEMOVE, 8, 40);
    EXPECT_EQ(bar_->Value(), -800);
}

TEST_F(ScrollTest, KeysStepOnEveryButton) {
    for (const char* name : {"cmdTL", "cmdMove", "cmdBR"}) {
        bar_->setValue(-400);
        SendMessageW(part(name), WM_KEYDOWN, VK_DOWN, 0);
        EXPECT_EQ(bar_->Value(), -410) << name;
        SendMessageW(part(name), WM_KEYDOWN, VK_NEXT, 0);
        EXPECT_EQ(bar_->Value(), -610) << name;
        SendMessageW(part(name), WM_KEYDOWN, VK_PRIOR, 0);
        SendMessageW(part(name), WM_KEYDOWN, VK_UP, 0);
        EXPECT_EQ(bar_->Value(), -400) << name;
        EXPECT_NE(SendMessageW(part(name), WM_GETDLGCODE, 0, 0) & DLGC_WANTARROWS, 0);
    }
    SendMessageW(part("cmdTL"), WM_KEYDOWN, VK_SPACE, 0);
    EXPECT_EQ(bar_->Value(), -390);
    SendMessageW(part("cmdMove"), WM_KEYDOWN, VK_SPACE, 0);
    EXPECT_EQ(bar_->Value(), -390);
}

TEST_F(ScrollTest, LostCaptureEndsWhatIsHeld) {
    mouse(part("cmdBR"), WM_LBUTTONDOWN, 8, 8);
    SetCapture(holder_.handle());
    EXPECT_FALSE(isHeld());
    EXPECT_EQ(bar_->Value(), 0);
    ReleaseCapture();
}

TEST_F(ScrollTest, DisabledBarHasNoThumbAndTakesNoFocus) {
    SetFocus(part("cmdMove"));
    mouse(part("cmdBR"), WM_LBUTTONDOWN, 8, 8);
    bar_->setEnabled(false);
    EXPECT_FALSE(bar_->Enabled());
    EXPECT_FALSE(isHeld());
    EXPECT_FALSE(IsWindowVisible(part("cmdMove")));
    EXPECT_FALSE(IsWindowEnabled(part("cmdTL")));
    EXPECT_FALSE(IsWindowEnabled(part("cmdBR")));
    EXPECT_EQ(GetFocus(), holder_.handle());
    const PixelMap map = shown();
    EXPECT_EQ(std::count(map.pixels.begin(), map.pixels.end(), glyph), 0);
    bar_->setEnabled(true);
    EXPECT_TRUE(IsWindowVisible(part("cmdMove")));
    EXPECT_TRUE(IsWindowEnabled(part("cmdTL")));
}

TEST_F(ScrollTest, GlyphsPointAwayFromTheMiddle) {
    const PixelMap map = shown();
    EXPECT_EQ(inRow(map, 6, glyph), 2);
    EXPECT_EQ(inRow(map, 9, glyph), 8);
    EXPECT_EQ(inRow(map, 190, glyph), 8);
    EXPECT_EQ(inRow(map, 193, glyph), 2);
    resize(200, 16);
    const PixelMap lying = shown();
    EXPECT_EQ(inColumn(lying, 6, glyph), 2);
    EXPECT_EQ(inColumn(lying, 9, glyph), 8);
    EXPECT_EQ(inColumn(lying, 190, glyph), 8);
    EXPECT_EQ(inColumn(lying, 193, glyph), 2);
}

TEST_F(ScrollTest, AllMeasuresGrowWithTheResolution) {
    bar_->setDpi(192);
    resize(32, 400);
    const PixelMap map = shown();
    EXPECT_EQ(inRow(map, 12, glyph), 2);
    EXPECT_EQ(inRow(map, 19, glyph), 16);
    EXPECT_EQ(map.at(16, 0), RGB(64, 64, 64));
    EXPECT_EQ(map.at(16, 1), RGB(64, 64, 64));
    EXPECT_EQ(map.at(16, 2), RGB(112, 112, 112));
    EXPECT_EQ(placeOf(part("cmdMove")).top, 30);
}

TEST_F(ScrollTest, FocusMarkStandsAroundTheFocusedButton) {
    SetFocus(bar_->handle());
    EXPECT_EQ(GetFocus(), part("cmdTL"));
    const PixelMap map = shown();
    EXPECT_EQ(map.at(8, 1), focusMark);
    EXPECT_EQ(map.at(8, layout().cmdMove.top + 1), RGB(112, 112, 112));
    SetFocus(part("cmdMove"));
    const PixelMap moved = shown();
    EXPECT_EQ(moved.at(8, 1), RGB(112, 112, 112));
    EXPECT_EQ(moved.at(8, layout().cmdMove.top + 1), focusMark);
}

TEST_F(ScrollTest, HoverMarkComesAndGoesWithTheMouse) {
    SendMessageW(part("cmdBR"), WM_MOUSEMOVE, 0, MAKELPARAM(8, 8));
    UpdateWindow(part("cmdBR"));
    EXPECT_EQ(readClient(part("cmdBR")).at(8, 1), hoverMark);
    SendMessageW(part("cmdBR"), WM_MOUSELEAVE, 0, 0);
    UpdateWindow(part("cmdBR"));
    EXPECT_EQ(readClient(part("cmdBR")).at(8, 1), RGB(112, 112, 112));
}

TEST_F(ScrollTest, PressedArrowLooksPressedWhileTheMouseIsOnIt) {
    mouse(part("cmdTL"), WM_LBUTTONDOWN, 8, 8);
    EXPECT_EQ(shown().at(3, 3), RGB(84, 84, 84));
    mouse(bar_->handle(), WM_MOUSEMOVE, 8, 90);
    EXPECT_EQ(shown().at(3, 3), RGB(112, 112, 112));
    mouse(bar_->handle(), WM_LBUTTONUP, 8, 90);
}

TEST_F(ScrollTest, ItsPartsAreToldByWordsAndHaveNoTips) {
    const AccessibleThread thread;
    const EnglishTexts english;
    const int tips = tipWindowCount();
    const auto told = [this](const char* name) { return AccessibleReader(part(name)).name(); };
    EXPECT_EQ(told("cmdTL"), "Up");
    EXPECT_EQ(told("cmdBR"), "Down");
    EXPECT_EQ(told("cmdMove"), "Scroll position");
    EXPECT_EQ(AccessibleReader(part("cmdTL")).role(), ROLE_SYSTEM_PUSHBUTTON);
    EXPECT_EQ(AccessibleReader(part("cmdMove")).role(), ROLE_SYSTEM_INDICATOR);
    MlSetLanguage(languageGerman, {});
    EXPECT_EQ(told("cmdTL"), "Nach oben");
    EXPECT_EQ(told("cmdBR"), "Nach unten");
    EXPECT_EQ(told("cmdMove"), "Bildlaufposition");
    for (const char* name : {"cmdTL", "cmdMove", "cmdBR"}) {
        SendMessageW(part(name), WM_MOUSEMOVE, 0, MAKELPARAM(8, 8));
    }
    EXPECT_EQ(tipWindowCount(), tips);
}

TEST_F(ScrollTest, AScreenReaderPressesAnArrow) {
    const AccessibleThread thread;
    const int before = bar_->Value();
    EXPECT_EQ(AccessibleReader(part("cmdBR")).act(), S_OK);
    EXPECT_TRUE(test::waitUntil([&] { return bar_->Value() != before; }));
}

TEST_F(ScrollTest, BarOfNoSizeDoesNotFail) {
    SetFocus(part("cmdMove"));
    resize(0, 0);
    EXPECT_FALSE(IsWindowVisible(part("cmdMove")));
    EXPECT_EQ(GetFocus(), part("cmdTL"));
    mouse(bar_->handle(), WM_LBUTTONDOWN, 0, 0);
    mouse(bar_->handle(), WM_LBUTTONUP, 0, 0);
    EXPECT_EQ(bar_->Value(), 0);
    resize(16, 200);
    EXPECT_TRUE(IsWindowVisible(part("cmdMove")));
}

TEST_F(ScrollTest, HandlerMayDestroyTheBar) {
    const Subscription ending = bar_->Change.subscribe([this] { bar_.reset(); });
    mouse(part("cmdMove"), WM_LBUTTONDOWN, 8, 6);
    const HWND window = bar_->handle();
    mouse(window, WM_MOUSEMOVE, 8, 90);
    EXPECT_EQ(bar_, nullptr);
    EXPECT_FALSE(IsWindow(window));
}

TEST_F(ScrollTest, BarGoesWithItsParentAndLeavesNoName) {
    removeControlName(bar_->handle());
    setControlName(bar_->handle(), "scrNamedOnlyHere");
    EXPECT_NE(GlobalFindAtomW(L"scrNamedOnlyHere"), 0);
    SetFocus(part("cmdBR"));
    DestroyWindow(holder_.handle());
    EXPECT_EQ(bar_->handle(), nullptr);
    EXPECT_EQ(holder_.handle(), nullptr);
    EXPECT_EQ(GlobalFindAtomW(L"scrNamedOnlyHere"), 0);
    bar_->setValue(-100);
    EXPECT_EQ(bar_->Value(), -100);
}

}  // namespace
}  // namespace ormala
