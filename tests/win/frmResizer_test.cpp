#include "worksheet/win/frmResizer.h"

#include <gtest/gtest.h>
#include <imm.h>

#include "language/MlStringModule.h"
#include "platform/win/regions.h"
#include "platform/win/text.h"
#include "support/win/Wait.h"
#include "win/HeldKeys.h"
#include "win/TestSheet.h"

namespace ormala {
namespace {

int widthOf(const RECT& rect) {
    return static_cast<int>(rect.right - rect.left);
}

int heightOfFrame(const RECT& rect) {
    return static_cast<int>(rect.bottom - rect.top);
}

/// A worksheet in its frame, apart from the rest of the program.
class frmResizerTest : public testing::Test {
  protected:
    frmResizerTest() {
        frame_.restore({200, 150, 900, 650}, false);
        frame_.show();
    }

    /// Where the worksheet belongs: five pixels inside the frame's client area, on the screen.
    PixelRect hole() const {
        const RECT client = frame_.clientRectangle();
        POINT corner{0, 0};
        ClientToScreen(frame_.handle(), &corner);
        const int left = static_cast<int>(corner.x);
        const int top = static_cast<int>(corner.y);
        return {left + 5, top + 5, left + static_cast<int>(client.right) - 5,
                top + static_cast<int>(client.bottom) - 5};
    }

    PixelRect worksheet() { return fromRect(sheet_.window().rectangle()); }

    /// As far as the frame's look has one besides its key.
    int opacity() const {
        BYTE alpha = 0;
        DWORD flags = 0;
        GetLayeredWindowAttributes(frame_.handle(), nullptr, &alpha, &flags);
        return (flags & LWA_ALPHA) != 0 ? alpha : 255;
    }

    bool settles() {
        return test::waitUntil([&] { return worksheet() == hole(); });
    }

    bool fillsScreen() {
        RECT work{};
        SystemParametersInfoW(SPI_GETWORKAREA, 0, &work, 0);
        return test::waitUntil([&] { return worksheet() == fromRect(work); });
    }

    TestSheet sheet_{{640, 480}};
    frmResizer frame_{sheet_.window(), sheet_.commands};
};

TEST_F(frmResizerTest, FirstPlaceIsTheGoldenSectionOfTheScreenCentred) {
    TestSheet sheet({640, 480});
    const frmResizer frame(sheet.window(), sheet.commands);
    const RECT place = frame.rectangle();
    const int width = GetSystemMetrics(SM_CXSCREEN);
    const int height = GetSystemMetrics(SM_CYSCREEN);
    EXPECT_NEAR(widthOf(place), 0.618034 * width, 1);
    EXPECT_NEAR(heightOfFrame(place), 0.618034 * height, 1);
    EXPECT_NEAR(place.left + place.right, width, 2);
    EXPECT_NEAR(place.top + place.bottom, height, 2);
    EXPECT_FALSE(frame.isVisible());
}

TEST_F(frmResizerTest, OwnsTheWorksheetAndStandsAboveOtherPrograms) {
    EXPECT_EQ(GetWindow(sheet_.window().handle(), GW_OWNER), frame_.handle());
    EXPECT_NE(GetWindowLongPtrW(frame_.handle(), GWL_EXSTYLE) & WS_EX_TOPMOST, 0);
}

TEST_F(frmResizerTest, WorksheetTakesTheMouseInTheHole) {
    const auto windowInside = [&] {
        const PixelRect place = hole();
        return WindowFromPoint({place.left + 40, place.top + 40});
    };
    EXPECT_EQ(windowInside(), sheet_.window().handle());
    SetWindowPos(frame_.handle(), HWND_TOPMOST, 0, 0, 0, 0, SWP_NOMOVE | SWP_NOSIZE);
    EXPECT_EQ(windowInside(), sheet_.window().handle());
    SetForegroundWindow(frame_.handle());
    EXPECT_EQ(windowInside(), sheet_.window().handle());
    frame_.maximise();
    frame_.showNormal();
    EXPECT_EQ(windowInside(), sheet_.window().handle());
}

TEST_F(frmResizerTest, HoleIsOneForTheMouse) {
    const auto partAt = [&](int x, int y) {
        return SendMessageW(frame_.handle(), WM_NCHITTEST, 0, MAKELPARAM(x, y));
    };
    const PixelRect place = hole();
    EXPECT_EQ(partAt(place.left, place.top), HTTRANSPARENT);
    EXPECT_EQ(partAt(place.right - 1, place.bottom - 1), HTTRANSPARENT);
    EXPECT_EQ(partAt(place.left - 1, place.top), HTCLIENT);
    EXPECT_EQ(partAt(place.left + 100, place.top - 10), HTCAPTION);
}

TEST_F(frmResizerTest, MouseInTheHoleBringsTheWorksheetBackInFront) {
    const HWND worksheetWindow = sheet_.window().handle();
    SetWindowPos(worksheetWindow, frame_.handle(), 0, 0, 0, 0,
                 SWP_NOMOVE | SWP_NOSIZE | SWP_NOACTIVATE | SWP_NOOWNERZORDER);
    const PixelRect place = hole();
    SendMessageW(frame_.handle(), WM_NCHITTEST, 0, MAKELPARAM(place.left + 40, place.top + 40));
    HWND above = GetWindow(frame_.handle(), GW_HWNDPREV);
    while (above != nullptr && above != worksheetWindow) {
        above = GetWindow(above, GW_HWNDPREV);
    }
    EXPECT_EQ(above, worksheetWindow);
}

TEST_F(frmResizerTest, CaptionIsTheTitleAndTheLanguagesWord) {
    wchar_t text[100]{};
    frame_.SetRuntimeTexts("Ormala");
    GetWindowTextW(frame_.handle(), text, 100);
    EXPECT_EQ(narrow(text), "Ormala Worksheet");
    MlSetLanguage(languageGerman, {});
    frame_.SetRuntimeTexts("Ormala");
    GetWindowTextW(frame_.handle(), text, 100);
    EXPECT_EQ(narrow(text), "Ormala Arbeitsblatt");
    MlSetLanguage(languageEnglish, {});
}

TEST_F(frmResizerTest, WorksheetLiesFivePixelsInside) {
    EXPECT_EQ(worksheet(), hole());
    EXPECT_FALSE(sheet_.window().MaxSized());
}

TEST_F(frmResizerTest, WorksheetFollowsAMoveAtOnce) {
    const RECT before = frame_.rectangle();
    SetWindowPos(frame_.handle(), nullptr, before.left + 70, before.top + 40, 0, 0,
                 quietly | SWP_NOSIZE);
    EXPECT_EQ(worksheet(), hole());
    EXPECT_EQ(frame_.rectangle().left, before.left + 70);
}

TEST_F(frmResizerTest, WorksheetFollowsASizingAtOnce) {
    SetWindowPos(frame_.handle(), nullptr, 0, 0, 555, 444, quietly | SWP_NOMOVE);
    EXPECT_EQ(worksheet(), hole());
    EXPECT_EQ(widthOf(frame_.rectangle()), 555);
}

TEST_F(frmResizerTest, InsideIsKeyedOut) {
    COLORREF key = 0;
    DWORD flags = 0;
    ASSERT_TRUE(GetLayeredWindowAttributes(frame_.handle(), &key, nullptr, &flags));
    EXPECT_EQ(key, RGB(192, 192, 192));
    EXPECT_EQ(flags, static_cast<DWORD>(LWA_COLORKEY));
    ASSERT_TRUE(settles());
    UpdateWindow(frame_.handle());
    const PixelMap inside = readClient(frame_.handle());
    EXPECT_EQ(inside.at(5, 5), key);
    EXPECT_EQ(inside.at(inside.size.width / 2, inside.size.height / 2), key);
    EXPECT_NE(inside.at(4, 4), key) << "the decoration fills the margin";
    EXPECT_NE(inside.at(inside.size.width - 1, inside.size.height - 1), key);
}

TEST_F(frmResizerTest, StaysSeeThroughWhileItIsDragged) {
    for (int step = 1; step <= 5; ++step) {
        SetWindowPos(frame_.handle(), nullptr, 200 + step * 20, 150 + step * 10, 0, 0,
                     quietly | SWP_NOSIZE);
        COLORREF key = 0;
        DWORD flags = 0;
        GetLayeredWindowAttributes(frame_.handle(), &key, nullptr, &flags);
        EXPECT_EQ(flags, static_cast<DWORD>(LWA_COLORKEY));
        EXPECT_EQ(worksheet(), hole()) << step;
    }
}

TEST_F(frmResizerTest, CannotBeMadeSmallerThan200By124) {
    const int dpi = static_cast<int>(GetDpiForWindow(frame_.handle()));
    SetWindowPos(frame_.handle(), nullptr, 0, 0, 20, 20, quietly | SWP_NOMOVE);
    EXPECT_EQ(widthOf(frame_.rectangle()), MulDiv(200, dpi, 96));
    EXPECT_EQ(heightOfFrame(frame_.rectangle()), MulDiv(124, dpi, 96));
    EXPECT_FALSE(worksheet().empty());
}

TEST_F(frmResizerTest, MaximiseButtonMakesTheWorksheetFullScreenWithoutAFrame) {
    const RECT before = frame_.rectangle();
    SendMessageW(frame_.handle(), WM_SYSCOMMAND, SC_MAXIMIZE | HTCAPTION, 0);
    EXPECT_TRUE(frame_.isVisible()) << "the system's own call is still under way";
    EXPECT_FALSE(sheet_.window().MaxSized());
    EXPECT_TRUE(fillsScreen());
    EXPECT_TRUE(sheet_.window().MaxSized());
    EXPECT_FALSE(frame_.isVisible());
    EXPECT_FALSE(IsZoomed(frame_.handle()));
    frame_.showNormal();
    EXPECT_TRUE(frame_.isVisible());
    EXPECT_FALSE(sheet_.window().MaxSized());
    const RECT after = frame_.rectangle();
    EXPECT_NE(EqualRect(&after, &before), FALSE);
    EXPECT_TRUE(settles());
}

TEST_F(frmResizerTest, FullScreenWorksheetThatSomethingPutsElsewhereComesBack) {
    frame_.maximise();
    ASSERT_TRUE(fillsScreen());
    SetWindowPos(sheet_.window().handle(), nullptr, 205, 180, 690, 460, quietly);
    EXPECT_TRUE(fillsScreen());
    EXPECT_FALSE(frame_.isVisible());
}

TEST_F(frmResizerTest, MaximisedByTheSystemItGoesTheSameWay) {
    const RECT before = frame_.rectangle();
    ShowWindow(frame_.handle(), SW_SHOWMAXIMIZED);
    EXPECT_TRUE(IsZoomed(frame_.handle())) << "nothing is nested into the system's own call";
    EXPECT_FALSE(sheet_.window().MaxSized());
    EXPECT_EQ(opacity(), 0) << "a maximised frame is never seen";
    EXPECT_TRUE(fillsScreen());
    EXPECT_TRUE(sheet_.window().MaxSized());
    EXPECT_FALSE(frame_.isVisible());
    EXPECT_FALSE(IsZoomed(frame_.handle()));
    frame_.showNormal();
    EXPECT_TRUE(test::waitUntil([&] {
        const RECT after = frame_.rectangle();
        return EqualRect(&after, &before) != FALSE;
    }));
    EXPECT_TRUE(settles());
}

TEST_F(frmResizerTest, DraggedToTheUpperEdgeItGoesTheSameWay) {
    SendMessageW(frame_.handle(), WM_ENTERSIZEMOVE, 0, 0);
    ShowWindow(frame_.handle(), SW_SHOWMAXIMIZED);
    SendMessageW(frame_.handle(), WM_EXITSIZEMOVE, 0, 0);
    EXPECT_TRUE(IsZoomed(frame_.handle()));
    EXPECT_TRUE(fillsScreen());
    EXPECT_FALSE(frame_.isVisible());
    EXPECT_FALSE(IsZoomed(frame_.handle()));
}

TEST_F(frmResizerTest, MaximisedAndAtOnceRestoredItEndsAsOneOfTheTwo) {
    const RECT before = frame_.rectangle();
    ShowWindow(frame_.handle(), SW_SHOWMAXIMIZED);
    ShowWindow(frame_.handle(), SW_RESTORE);
    const auto isBack = [&] {
        const RECT now = frame_.rectangle();
        return opacity() == 255 && frame_.isVisible() && !sheet_.window().MaxSized() &&
               EqualRect(&now, &before) != FALSE && worksheet() == hole();
    };
    // A window manager may heed the first of two wishes after the second one.
    const auto isFullScreen = [&] {
        return sheet_.window().MaxSized() && !frame_.isVisible() &&
               IsZoomed(frame_.handle()) == FALSE;
    };
    EXPECT_TRUE(test::waitUntil([&] { return isBack() || isFullScreen(); }));
    if (isFullScreen()) {
        EXPECT_TRUE(fillsScreen());
    }
}

TEST_F(frmResizerTest, SnappedToAHalfOfTheScreenItTakesTheWorksheetAlong) {
    RECT work{};
    SystemParametersInfoW(SPI_GETWORKAREA, 0, &work, 0);
    const int half = widthOf(work) / 2;
    // Without a sizing loop, and repainted by the same call.
    for (const int left : {0, half}) {
        SetWindowPos(frame_.handle(), nullptr, static_cast<int>(work.left) + left,
                     static_cast<int>(work.top), half, heightOfFrame(work),
                     quietly | SWP_FRAMECHANGED | SWP_NOCOPYBITS);
        EXPECT_EQ(worksheet(), hole());
        EXPECT_FALSE(sheet_.window().MaxSized());
        EXPECT_TRUE(settles());
    }
}

TEST_F(frmResizerTest, HiddenFrameOfAFullScreenWorksheetMayBeMoved) {
    frame_.maximise();
    SetWindowPos(frame_.handle(), nullptr, 100, 90, 600, 500, quietly);
    EXPECT_TRUE(sheet_.window().MaxSized());
    EXPECT_TRUE(fillsScreen());
}

TEST_F(frmResizerTest, HiddenFrameTakesTheWorksheetAlong) {
    frame_.hide();
    SetWindowPos(frame_.handle(), nullptr, 100, 90, 600, 500, quietly);
    EXPECT_EQ(worksheet(), hole());
    EXPECT_FALSE(sheet_.window().MaxSized());
}

TEST_F(frmResizerTest, HiddenWorksheetStaysHidden) {
    sheet_.window().hide();
    SetWindowPos(frame_.handle(), nullptr, 100, 90, 600, 500, quietly);
    EXPECT_FALSE(sheet_.window().isVisible());
    EXPECT_EQ(worksheet(), hole());
}

TEST_F(frmResizerTest, StoredAsMaximisedItBringsAFullScreenWorksheet) {
    sheet_.window().hide();
    frame_.hide();
    frame_.restore({300, 200, 1000, 700}, true);
    EXPECT_TRUE(sheet_.window().MaxSized());
    EXPECT_FALSE(sheet_.window().isVisible()) << "the mode shows it";
    EXPECT_FALSE(frame_.isVisible());
    sheet_.window().show();
    EXPECT_TRUE(fillsScreen());
    frame_.showNormal();
    EXPECT_EQ(widthOf(frame_.rectangle()), 700);
    EXPECT_EQ(heightOfFrame(frame_.rectangle()), 500);
}

TEST_F(frmResizerTest, CloseBoxMeansPauseAndUnloadsNothing) {
    SendMessageW(frame_.handle(), WM_SYSCOMMAND, SC_CLOSE, 0);
    EXPECT_EQ(sheet_.commands.executed, std::vector{Command::pauseMode});
    EXPECT_EQ(sheet_.commands.closes, 0);
    EXPECT_TRUE(IsWindow(frame_.handle()));
    EXPECT_TRUE(IsWindow(sheet_.window().handle()));
}

TEST_F(frmResizerTest, ModeKeysWorkInTheFrame) {
    for (const WPARAM key : std::initializer_list<WPARAM>{VK_F2, VK_F3, VK_F4, VK_F1}) {
        SendMessageW(frame_.handle(), WM_KEYDOWN, key, 0);
    }
    const std::vector<Command> asked{Command::editMode, Command::pauseMode, Command::templateMode,
                                     Command::help};
    EXPECT_EQ(sheet_.commands.executed, asked);
}

/// The keys of the frame are the worksheet's, and so is its keyboard.
TEST_F(frmResizerTest, ArrowKeysInTheFrameMoveTheSelectedTool) {
    const ctlRatioGrid& one = sheet_.addStencil({100, 100, 200, 200}, 0, rgb(255, 0, 0));
    const ctlRatioGrid& other = sheet_.addStencil({300, 100, 400, 200}, 0, rgb(0, 255, 0));
    Sheet& tools = sheet_.window().sheet();
    const auto press = [&](WPARAM key) {
        SendMessageW(frame_.handle(), WM_KEYDOWN, key, 0);
        SendMessageW(frame_.handle(), WM_KEYUP, key, 0);
    };
    SetForegroundWindow(sheet_.window().handle());
    ASSERT_TRUE(test::waitUntil([&] { return GetFocus() == sheet_.window().handle(); }));
    const std::vector<OverlayItem*> order = tools.zOrder();
    tools.giveFocus(*order.front());
    ASSERT_EQ(tools.focused(), order.front());
    // The other one is selected by its panel meanwhile.
    SetFocus(nullptr);
    sheet_.foreground.LastForegroundWindow = nullptr;
    tools.SelectControl(*order.back());
    SetForegroundWindow(frame_.handle());
    ASSERT_TRUE(test::waitUntil([&] { return GetForegroundWindow() == frame_.handle(); }));
    SetFocus(frame_.handle());
    EXPECT_EQ(tools.focused(), order.back());
    press(VK_RIGHT);
    EXPECT_EQ(one.RectBound().left, 100);
    EXPECT_EQ(other.RectBound().left, 301);
    tools.focusNext(false);
    EXPECT_EQ(tools.focused(), order.front()) << "the worksheet is in front with its frame";
    press(VK_RIGHT);
    EXPECT_EQ(one.RectBound().left, 101);
    SetFocus(sheet_.window().handle());
    EXPECT_EQ(tools.focused(), order.front()) << "nothing has changed hands";
}

TEST_F(frmResizerTest, TakesNoInputMethod) {
    EXPECT_EQ(ImmGetContext(frame_.handle()), nullptr);
}

TEST_F(frmResizerTest, ShiftAndF10InTheFrameAreTheMenuKeyOfTheWorksheet) {
    const HeldKeys held{VK_SHIFT};
    SendMessageW(frame_.handle(), WM_SYSKEYDOWN, VK_F10, 0);
    EXPECT_EQ(sheet_.commands.executed, std::vector{Command::worksheetMenu});
}

TEST_F(frmResizerTest, KeysDoNothingWhileTheWorksheetTakesNoMouse) {
    sheet_.window().setClickable(false);
    SendMessageW(frame_.handle(), WM_KEYDOWN, VK_F2, 0);
    EXPECT_TRUE(sheet_.commands.executed.empty());
}

TEST_F(frmResizerTest, RepaintsItselfOnceTheSizeRests) {
    constexpr COLORREF smear = RGB(255, 0, 0);
    SetWindowPos(frame_.handle(), nullptr, 0, 0, 560, 440, quietly | SWP_NOMOVE);
    UpdateWindow(frame_.handle());
    const WindowContext context(frame_.handle());
    SetPixel(context.get(), 2, 2, smear);
    ASSERT_EQ(GetPixel(context.get(), 2, 2), smear);
    EXPECT_TRUE(test::waitUntil([&] { return GetPixel(context.get(), 2, 2) != smear; },
                                test::milliseconds{2000}));
}

TEST_F(frmResizerTest, WideningAndNarrowingEndsAtTheSameSize) {
    const RECT before = frame_.rectangle();
    int sizings = 0;
    const Subscription resized = sheet_.window().resized.subscribe([&] { ++sizings; });
    frame_.widenAndNarrow();
    const RECT after = frame_.rectangle();
    EXPECT_NE(EqualRect(&after, &before), FALSE);
    EXPECT_GE(sizings, 2);
    EXPECT_EQ(worksheet(), hole());
}

TEST_F(frmResizerTest, TellsWhereTheWorksheetLies) {
    std::vector<PixelPoint> told;
    const Subscription placed =
        frame_.worksheetPlaced.subscribe([&](PixelPoint place) { told.push_back(place); });
    SetWindowPos(frame_.handle(), nullptr, 240, 170, 0, 0, quietly | SWP_NOSIZE);
    ASSERT_FALSE(told.empty());
    EXPECT_EQ(told.back(), (PixelPoint{hole().left, hole().top}));
}

TEST_F(frmResizerTest, WorksheetFollowsTheMouseWhenNoMessageTellsOfTheDrag) {
    const RECT frame = frame_.rectangle();
    const PixelRect before = hole();
    const POINT start{(frame.left + frame.right) / 2, (frame.top + before.top - 5) / 2 + 1};
    const auto dragTo = [](POINT point) {
        SetCursorPos(static_cast<int>(point.x), static_cast<int>(point.y));
        test::pause(test::milliseconds{30});
    };
    dragTo(start);
    SendMessageW(frame_.handle(), WM_ENTERSIZEMOVE, 0, 0);
    dragTo({start.x + 40, start.y + 25});
    EXPECT_TRUE(test::waitUntil([&] {
        return worksheet() ==
               PixelRect{before.left + 40, before.top + 25, before.right + 40, before.bottom + 25};
    }));
    SetWindowPos(frame_.handle(), nullptr, frame.left + 40, frame.top + 25, 0, 0,
                 quietly | SWP_NOSIZE);
    EXPECT_EQ(worksheet(), hole());
    dragTo({start.x + 90, start.y + 60});
    test::pause(test::milliseconds{200});
    EXPECT_EQ(worksheet(), hole()) << "the message of the move has taken over";
    SendMessageW(frame_.handle(), WM_EXITSIZEMOVE, 0, 0);
    EXPECT_EQ(worksheet(), hole());
}

TEST_F(frmResizerTest, FollowsTheResolutionOfItsMonitor) {
    RECT suggested{100, 100, 1000, 800};
    SendMessageW(frame_.handle(), WM_DPICHANGED, MAKEWPARAM(144, 144),
                 reinterpret_cast<LPARAM>(&suggested));
    const RECT place = frame_.rectangle();
    EXPECT_NE(EqualRect(&place, &suggested), FALSE);
    EXPECT_EQ(worksheet(), hole());
}

TEST_F(frmResizerTest, WorksheetThatTheSystemMovedOrWidenedComesBackIntoTheHole) {
    const HWND worksheetWindow = sheet_.window().handle();
    const PixelRect place = hole();
    SetWindowPos(worksheetWindow, nullptr, place.left, place.top, place.width() + 1, place.height(),
                 quietly);
    EXPECT_TRUE(settles()) << worksheet().width();
    SetWindowPos(worksheetWindow, nullptr, place.left - 30, place.top + 12, 0, 0,
                 quietly | SWP_NOSIZE);
    EXPECT_TRUE(settles());
    sheet_.window().hide();
    SetWindowPos(worksheetWindow, nullptr, 0, 0, 0, 0, quietly | SWP_NOSIZE);
    EXPECT_TRUE(settles());
    EXPECT_FALSE(sheet_.window().isVisible());
}

TEST_F(frmResizerTest, DragThatIsTakenBackLeavesTheWorksheetInTheHole) {
    const RECT frame = frame_.rectangle();
    const PixelRect before = hole();
    const POINT start{(frame.left + frame.right) / 2, (frame.top + before.top - 5) / 2 + 1};
    const auto takesTheWorksheetAlong = [&] {
        // A message of its move that is still on its way would end it.
        SetCursorPos(static_cast<int>(start.x), static_cast<int>(start.y));
        test::pause(test::milliseconds{30});
        SendMessageW(frame_.handle(), WM_ENTERSIZEMOVE, 0, 0);
        SetCursorPos(static_cast<int>(start.x) + 60, static_cast<int>(start.y) + 45);
        test::pause(test::milliseconds{200});
        return worksheet().left == before.left + 60;
    };
    ASSERT_TRUE(test::waitUntil(takesTheWorksheetAlong));
    // The frame has never moved.
    SendMessageW(frame_.handle(), WM_EXITSIZEMOVE, 0, 0);
    EXPECT_EQ(worksheet(), before);
    EXPECT_EQ(before, hole());
}

TEST(frmResizer, ItsEndLeavesTheWorksheetToItsOwner) {
    TestSheet sheet({640, 480});
    {
        frmResizer frame(sheet.window(), sheet.commands);
        frame.PositionWorksheet();
        frame.show();
    }
    EXPECT_TRUE(IsWindow(sheet.window().handle()));
    EXPECT_FALSE(sheet.window().isVisible());
}

}  // namespace
}  // namespace ormala
