#include "widgets/win/TextBoxNumeric.h"

#include <gtest/gtest.h>

#include <memory>

#include "platform/win/fonts.h"
#include "support/win/Wait.h"
#include "win/ModalPlayer.h"
#include "win/TestAccessible.h"
#include "win/TestSheet.h"
#include "win/TestWindow.h"

namespace ormala {
namespace {

class TextBoxNumericTest : public testing::Test {
  protected:
    TextBoxNumericTest() {
        box_.setDecimalsMax(2);
        SetWindowPos(box_.handle(), nullptr, 10, 10, 100, 22, SWP_NOZORDER);
        SendMessageW(box_.handle(), WM_SETFONT, reinterpret_cast<WPARAM>(font_.get()), FALSE);
    }

    [[nodiscard]] HWND tb() const { return namedChild(box_.handle(), "TB"); }
    void type(std::wstring_view keys) const {
        for (const wchar_t key : keys) {
            SendMessageW(tb(), WM_CHAR, key, 1);
        }
    }
    void select(int start, int end) const {
        SendMessageW(tb(), EM_SETSEL, static_cast<WPARAM>(start), end);
    }
    [[nodiscard]] std::pair<int, int> selection() const {
        const LRESULT ends = SendMessageW(tb(), EM_GETSEL, 0, 0);
        return {LOWORD(ends), HIWORD(ends)};
    }
    void paste(const wchar_t* text) const {
        const std::size_t bytes = (wcslen(text) + 1) * sizeof(wchar_t);
        const HGLOBAL memory = GlobalAlloc(GMEM_MOVEABLE, bytes);
        memcpy(GlobalLock(memory), text, bytes);
        GlobalUnlock(memory);
        ASSERT_NE(OpenClipboard(tb()), FALSE);
        EmptyClipboard();
        SetClipboardData(CF_UNICODETEXT, memory);
        CloseClipboard();
        constexpr WPARAM controlV = 22;
        SendMessageW(tb(), WM_CHAR, controlV, 1);
    }

    TestWindow holder_;
    FontHandle font_ = controlFont(96, FontLook::normal);
    TextBoxNumeric box_{holder_.handle(), 7, "txnFactor", ","};
};

TEST_F(TextBoxNumericTest, IsFoundByClassNameAndIdAndSpeaksItsText) {
    EXPECT_EQ(classNameOf(box_.handle()), "TextBoxNumeric");
    EXPECT_EQ(GetDlgItem(holder_.handle(), 7), box_.handle());
    EXPECT_EQ(classNameOf(tb()), "Edit");
    box_.setValue(2.5);
    EXPECT_EQ(textOf(box_.handle()), "2,5");
}

TEST_F(TextBoxNumericTest, TypedKeysAreFiltered) {
    select(0, -1);
    type(L"-1a2.3-4,5");
    EXPECT_EQ(box_.Text(), "-12,34");
    EXPECT_EQ(box_.Value(), -12.34);
    type(L"+");
    EXPECT_EQ(box_.Text(), "12,34");
}

TEST_F(TextBoxNumericTest, DigitOvertypesInFullDecimals) {
    box_.setValue(1.23);
    select(3, 3);
    type(L"9");
    EXPECT_EQ(box_.Text(), "1,29");
    type(L"9");
    EXPECT_EQ(box_.Text(), "1,29");
}

TEST_F(TextBoxNumericTest, MinusKeepsCaretAndSelection) {
    box_.setValue(1.23);
    select(2, 4);
    type(L"-");
    EXPECT_EQ(box_.Text(), "-1,23");
    EXPECT_EQ(selection(), (std::pair{3, 5}));
}

TEST_F(TextBoxNumericTest, PastedTextIsCleanedWithOneChange) {
    int changes = 0;
    select(0, -1);
    const Subscription counting = box_.Change.subscribe([&] { ++changes; });
    paste(L"007.505 km");
    EXPECT_EQ(box_.Text(), "7,51");
    EXPECT_EQ(changes, 1);
}

TEST_F(TextBoxNumericTest, TextFromOutsideIsCleanedWithOneChange) {
    int changes = 0;
    const Subscription counting = box_.Change.subscribe([&] { ++changes; });
    SetWindowTextW(tb(), L"no number");
    EXPECT_EQ(box_.Text(), "0");
    EXPECT_EQ(changes, 1);
    type(L"\x1");
    SetWindowTextW(box_.handle(), L"4x");
    EXPECT_EQ(box_.Text(), "4");
    EXPECT_EQ(changes, 2);
}

TEST_F(TextBoxNumericTest, EachTypedKeyIsOneChange) {
    int changes = 0;
    select(0, -1);
    const Subscription counting = box_.Change.subscribe([&] { ++changes; });
    type(L"1");
    EXPECT_EQ(changes, 1);
    type(L"-");
    EXPECT_EQ(changes, 2);
    type(L"x");
    EXPECT_EQ(changes, 2);
    box_.setValue(3);
    EXPECT_EQ(changes, 3);
}

TEST_F(TextBoxNumericTest, DeleteAndBackspaceLeaveTheRestAsItStands) {
    box_.setValue(1.23);
    select(0, 0);
    SendMessageW(tb(), WM_KEYDOWN, VK_DELETE, 1);
    EXPECT_EQ(box_.Text(), ",23");
    EXPECT_EQ(box_.Value(), 0.23);
    select(3, 3);
    type(L"\b");
    EXPECT_EQ(box_.Text(), ",2");
}

TEST_F(TextBoxNumericTest, WholeTextIsSelectedWithTheFocus) {
    box_.setValue(1.23);
    SetFocus(box_.handle());
    EXPECT_EQ(GetFocus(), tb());
    EXPECT_EQ(selection(), (std::pair{0, 4}));
    SetFocus(holder_.handle());
    select(1, 1);
    box_.setMarkAllOnGotFocus(false);
    SetFocus(box_.handle());
    EXPECT_EQ(selection(), (std::pair{1, 1}));
}

TEST_F(TextBoxNumericTest, DisabledBoxIsDimAndTakesNoFocus) {
    box_.setEnabled(false);
    EXPECT_FALSE(box_.Enabled());
    EXPECT_FALSE(IsWindowEnabled(tb()));
    UpdateWindow(box_.handle());
    UpdateWindow(tb());
    EXPECT_EQ(readClient(box_.handle()).at(2, 11), 0x404040U);
    box_.setEnabled(true);
    UpdateWindow(box_.handle());
    UpdateWindow(tb());
    EXPECT_EQ(readClient(box_.handle()).at(2, 11), 0x4A4A4AU);
    EXPECT_EQ(readClient(tb()).at(80, 2), 0x4A4A4AU);
}

TEST_F(TextBoxNumericTest, LengthIsLimited) {
    box_.setMaxLength(3);
    select(0, -1);
    type(L"12345");
    EXPECT_EQ(box_.Text(), "123");
}

TEST_F(TextBoxNumericTest, ScreenReaderHearsItsNameAndItsNumber) {
    box_.setAccessibleName("Factor");
    box_.setValue(2.5);
    EXPECT_EQ(accessibleNameOf(tb()), "Factor");
    EXPECT_EQ(accessibleValueOf(tb()), "2,5");
    EXPECT_EQ(accessibleRoleOf(tb()), 42);
}

TEST_F(TextBoxNumericTest, NumberSetBeforeThereIsRoomIsSeenFromItsBeginning) {
    TextBoxNumeric box(holder_.handle(), 8, "txnOther", ".");
    box.setDecimalsMax(3);
    box.setValue(-12.345);
    SetWindowPos(box.handle(), nullptr, 10, 50, 100, 22, SWP_NOZORDER);
    const LRESULT first = SendMessageW(namedChild(box.handle(), "TB"), EM_POSFROMCHAR, 0, 0);
    EXPECT_GE(static_cast<short>(LOWORD(first)), 0);
}

TEST_F(TextBoxNumericTest, GoesWithItsParent) {
    DestroyWindow(holder_.handle());
    EXPECT_EQ(box_.handle(), nullptr);
}

}  // namespace
}  // namespace ormala
