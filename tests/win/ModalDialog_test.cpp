#include "widgets/win/ModalDialog.h"

#include <commctrl.h>
#include <gtest/gtest.h>

#include <memory>

#include "e2e/support/Keyboard.h"
#include "language/MlStringModule.h"
#include "platform/win/StandardControl.h"
#include "platform/win/regions.h"
#include "win/ModalPlayer.h"
#include "win/TestSheet.h"

namespace ormala {
namespace {

constexpr int textCaption = 133;
constexpr int idFirst = 11;
constexpr int idSecond = 12;

/// A dialog with two edit boxes and three buttons.
class TestDialog : public ModalDialog {
  public:
    explicit TestDialog(bool delayedFocus = false) {
        open({L"TestDialog", {300, 120}, delayedFocus});
    }
    ~TestDialog() override { destroy(); }

    bool ask(HWND owner) { return showModal(owner); }
    using ModalDialog::dpi;

    bool refuses = false;
    int refused = 0;
    std::vector<int> commands;
    StandardControl first;
    StandardControl second;
    StandardControl more;
    StandardControl cmdOK;
    StandardControl cmdCancel;
    std::unique_ptr<ZelvikButtonXP> cmdExtra;

  private:
    void makeControls() override {
        setCaption("Design");
        first.create(handle(), {WC_EDITW, WS_TABSTOP, idFirst, "first", ""});
        second.create(handle(), {WC_EDITW, WS_TABSTOP, idSecond, "second", ""});
        more.create(handle(), {WC_BUTTONW, WS_TABSTOP, 13, "cmdMore", "&More"});
        cmdOK.create(handle(), {WC_BUTTONW, WS_TABSTOP, IDOK, "cmdOK", "OK"});
        cmdCancel.create(handle(), {WC_BUTTONW, WS_TABSTOP, IDCANCEL, "cmdCancel", "Cancel"});
        cmdExtra = makeButton(14, "cmdExtra", "Extra");
    }
    void layOut() override {
        place(first.handle(), {8, 8, 148, 30});
        place(second.handle(), {152, 8, 292, 30});
        place(more.handle(), {8, 88, 88, 112});
        place(cmdOK.handle(), {124, 88, 204, 112});
        place(cmdCancel.handle(), {212, 88, 292, 112});
        place(*cmdExtra, {212, 40, 292, 64});
    }
    void ApplyLanguage() override { label(handle(), textCaption); }
    [[nodiscard]] HWND firstFocus() const override { return second.handle(); }
    void confirm() override {
        refused += refuses ? 1 : 0;
        if (!refuses) {
            accept();
        }
    }
    void command(int id, int /*notification*/) override { commands.push_back(id); }
};

/// A visible window of the thread.
class Bystander : public Window {
  public:
    explicit Bystander(RECT place) {
        WindowDesign design;
        design.className = L"Bystander";
        design.style = WS_POPUP | WS_CAPTION | WS_VISIBLE;
        design.place = place;
        create(design);
    }
    ~Bystander() override { destroy(); }

  private:
    std::optional<LRESULT> onMessage(UINT, WPARAM, LPARAM) override { return std::nullopt; }
};

bool isEnabled(const Window& window) {
    return IsWindowEnabled(window.handle()) != FALSE;
}

class ModalDialogTest : public testing::Test {
  protected:
    ModalDialogTest() {
        MlSetLanguage(languageEnglish, {});
        SetForegroundWindow(owner_.handle());
        restsAt(place_);
    }
    ~ModalDialogTest() override { MlSetLanguage(languageEnglish, {}); }

    /// A window manager may move the owner for a moment after it is shown or placed.
    void restsAt(const RECT& place) {
        constexpr test::milliseconds rest{40};
        const auto stands = [&] {
            const RECT now = owner_.rectangle();
            return EqualRect(&now, &place) != FALSE;
        };
        EXPECT_TRUE(test::waitUntil([&] {
            const bool stood = stands();
            test::pause(rest);
            return stood && stands();
        }));
    }

    const RECT place_{300, 200, 700, 500};
    Bystander owner_{place_};
    TestDialog dialog_;
    ModalPlayer player_;
};

TEST_F(ModalDialogTest, EnterIsOKAndEscapeIsCancel) {
    player_.untilActive("TestDialog").key(VK_RETURN).untilActive("Bystander");
    EXPECT_TRUE(dialog_.ask(owner_.handle()));
    EXPECT_FALSE(dialog_.Cancelled());
    EXPECT_FALSE(dialog_.isVisible());
    test::waitUntil([this] { return player_.done(); });
    player_.untilActive("TestDialog").key(VK_ESCAPE).untilActive("Bystander");
    EXPECT_FALSE(dialog_.ask(owner_.handle()));
    EXPECT_TRUE(dialog_.Cancelled());
    test::waitUntil([this] { return player_.done(); });
}

TEST_F(ModalDialogTest, ClosingTheFrameIsCancel) {
    player_.untilActive("TestDialog").then([this] {
        SendMessageW(dialog_.handle(), WM_SYSCOMMAND, SC_CLOSE, 0);
    });
    EXPECT_FALSE(dialog_.ask(owner_.handle()));
    EXPECT_FALSE(dialog_.isVisible());
}

TEST_F(ModalDialogTest, OtherWindowsTakeNoInputAndComeBackAsTheyWere) {
    const Bystander other{{800, 200, 1000, 300}};
    const Bystander disabled{{800, 400, 1000, 500}};
    EnableWindow(disabled.handle(), FALSE);
    TestSheet sheet({200, 150});
    ShowWindow(sheet.window().handle(), SW_SHOWNA);
    bool ownerAtTheEnd = false;
    player_.untilActive("TestDialog")
        .then([&] {
            EXPECT_FALSE(isEnabled(owner_));
            EXPECT_FALSE(isEnabled(other));
            EXPECT_FALSE(isEnabled(disabled));
            EXPECT_FALSE(isEnabled(sheet.window()));
            EXPECT_TRUE(isEnabled(dialog_));
        })
        .key(VK_ESCAPE);
    dialog_.ask(owner_.handle());
    ownerAtTheEnd = GetActiveWindow() == owner_.handle();
    EXPECT_TRUE(ownerAtTheEnd);
    EXPECT_TRUE(isEnabled(owner_));
    EXPECT_TRUE(isEnabled(other));
    EXPECT_FALSE(isEnabled(disabled));
    EXPECT_TRUE(isEnabled(sheet.window()));
}

TEST_F(ModalDialogTest, FocusGoesBackToWhereItWas) {
    StandardControl edit;
    edit.create(owner_.handle(), {WC_EDITW, 0, 5, "edit", ""});
    SetFocus(edit.handle());
    player_.untilActive("TestDialog").key(VK_ESCAPE);
    dialog_.ask(owner_.handle());
    EXPECT_EQ(GetFocus(), edit.handle());
}

TEST_F(ModalDialogTest, StandsTopmostInTheMiddleOfItsOwner) {
    player_.untilActive("TestDialog")
        .then([this] {
            const RECT place = dialog_.rectangle();
            EXPECT_NEAR((place.left + place.right) / 2.0, 500, 1);
            EXPECT_NEAR((place.top + place.bottom) / 2.0, 350, 1);
            EXPECT_NE(GetWindowLongW(dialog_.handle(), GWL_EXSTYLE) & WS_EX_TOPMOST, 0);
            EXPECT_EQ(GetWindow(dialog_.handle(), GW_OWNER), owner_.handle());
        })
        .key(VK_ESCAPE);
    dialog_.ask(owner_.handle());
}

TEST_F(ModalDialogTest, StaysInTheWorkAreaBesideAnOwnerAtTheEdge) {
    SetWindowPos(owner_.handle(), nullptr, -150, -100, 200, 150, SWP_NOZORDER);
    restsAt({-150, -100, 50, 50});
    player_.untilActive("TestDialog")
        .then([this] {
            EXPECT_EQ(dialog_.rectangle().left, 0);
            EXPECT_EQ(dialog_.rectangle().top, 0);
        })
        .key(VK_ESCAPE);
    dialog_.ask(owner_.handle());
}

TEST_F(ModalDialogTest, KeepsItsSizeWhateverPlacesIt) {
    player_.untilActive("TestDialog")
        .then([this] {
            const RECT place = dialog_.rectangle();
            SetWindowPos(dialog_.handle(), nullptr, place.left + 10, place.top, 1, 1,
                         SWP_NOZORDER | SWP_NOACTIVATE);
            const RECT now = dialog_.rectangle();
            EXPECT_EQ(now.left, place.left + 10);
            EXPECT_EQ(sizeOf(now), sizeOf(place));
        })
        .key(VK_ESCAPE);
    EXPECT_FALSE(dialog_.ask(owner_.handle()));
}

TEST_F(ModalDialogTest, FirstFocusIsWhereTheWorkIs) {
    player_.until("the first focus", [this] { return GetFocus() == dialog_.second.handle(); })
        .key(VK_ESCAPE);
    dialog_.ask(owner_.handle());
}

TEST_F(ModalDialogTest, DelayedFirstFocusComesWhenTheWindowHasSettled) {
    TestDialog dialog(true);
    player_.untilActive("TestDialog")
        .then([&] { EXPECT_NE(GetFocus(), dialog.second.handle()); })
        .until("the first focus", [&] { return GetFocus() == dialog.second.handle(); })
        .key(VK_ESCAPE);
    dialog.ask(owner_.handle());
}

TEST_F(ModalDialogTest, TabWalksThroughTheControlsBothWays) {
    const auto focusOn = [this](StandardControl& control) {
        player_.until("the focus", [&] { return GetFocus() == control.handle(); });
    };
    focusOn(dialog_.second);
    player_.key(VK_TAB);
    focusOn(dialog_.more);
    player_.key(VK_TAB);
    focusOn(dialog_.cmdOK);
    player_.key(VK_TAB).key(VK_TAB).key(VK_TAB);
    focusOn(dialog_.first);
    player_.then([] { test::keyboard::press(VK_TAB, test::Modifiers::Shift); });
    player_.until("the last button", [this] { return GetFocus() == dialog_.cmdExtra->handle(); });
    player_.key(VK_ESCAPE);
    dialog_.ask(owner_.handle());
}

TEST_F(ModalDialogTest, EnterPressesTheButtonWithTheFocus) {
    player_.untilActive("TestDialog")
        .then([this] { SetFocus(dialog_.cmdCancel.handle()); })
        .key(VK_RETURN);
    EXPECT_FALSE(dialog_.ask(owner_.handle()));
}

TEST_F(ModalDialogTest, EnterPressesTheButtonOfTheProgramWithTheFocus) {
    int clicks = 0;
    const Subscription counting = dialog_.cmdExtra->Click.subscribe([&] { ++clicks; });
    player_.untilActive("TestDialog")
        .then([this] { SetFocus(dialog_.cmdExtra->handle()); })
        .key(VK_RETURN)
        .until("the click", [&] { return clicks == 1; })
        .then([this] { EXPECT_TRUE(dialog_.isVisible()); })
        .key(VK_ESCAPE);
    EXPECT_FALSE(dialog_.ask(owner_.handle()));
    EXPECT_EQ(clicks, 1);
}

TEST_F(ModalDialogTest, AccessKeyPressesItsButton) {
    player_.untilActive("TestDialog")
        .then([this] { PostMessageW(dialog_.second.handle(), WM_SYSCHAR, 'm', 1L << 29); })
        .until("the press", [this] { return !dialog_.commands.empty(); })
        .key(VK_ESCAPE);
    dialog_.ask(owner_.handle());
    EXPECT_EQ(dialog_.commands.back(), 13);
}

TEST_F(ModalDialogTest, DisabledOKButtonRefusesEnter) {
    EnableWindow(dialog_.cmdOK.handle(), FALSE);
    player_.untilActive("TestDialog")
        .key(VK_RETURN)
        .then([this] { EXPECT_TRUE(dialog_.isVisible()); })
        .key(VK_ESCAPE);
    EXPECT_FALSE(dialog_.ask(owner_.handle()));
}

TEST_F(ModalDialogTest, StaysOpenWhenItRefusesWhatWasEntered) {
    dialog_.refuses = true;
    player_.untilActive("TestDialog")
        .key(VK_RETURN)
        .until("the refusal", [this] { return dialog_.refused == 1; })
        .then([this] { EXPECT_TRUE(dialog_.isVisible()); })
        .key(VK_ESCAPE);
    EXPECT_FALSE(dialog_.ask(owner_.handle()));
}

TEST_F(ModalDialogTest, MessageBoxAboveItWorksAndLeavesItOpen) {
    int answer = 0;
    player_.untilActive("TestDialog")
        .then([&] {
            answer = MessageBoxW(dialog_.handle(), L"Text", L"Caption", MB_OKCANCEL | MB_TOPMOST);
        })
        .untilActive("#32770")
        .then([this] {
            EXPECT_FALSE(isEnabled(dialog_));
            EXPECT_FALSE(isEnabled(owner_));
        })
        .key(VK_RETURN)
        .untilActive("TestDialog")
        .then([this] {
            EXPECT_TRUE(isEnabled(dialog_));
            EXPECT_FALSE(isEnabled(owner_));
            EXPECT_EQ(GetFocus(), dialog_.second.handle());
        })
        .key(VK_ESCAPE);
    dialog_.ask(owner_.handle());
    EXPECT_EQ(answer, IDOK);
    EXPECT_TRUE(isEnabled(owner_));
}

TEST_F(ModalDialogTest, DialogAboveADialogGivesItTheInputBack) {
    TestDialog inner;
    bool innerResult = false;
    player_.untilActive("TestDialog")
        .then([&] { innerResult = inner.ask(dialog_.handle()); })
        .until("the inner dialog", [&] { return GetActiveWindow() == inner.handle(); })
        .then([&] {
            EXPECT_FALSE(isEnabled(dialog_));
            EXPECT_FALSE(isEnabled(owner_));
        })
        .key(VK_RETURN)
        .until("the outer dialog", [&] { return GetActiveWindow() == dialog_.handle(); })
        .then([&] {
            EXPECT_TRUE(isEnabled(dialog_));
            EXPECT_FALSE(isEnabled(owner_));
        })
        .key(VK_ESCAPE);
    EXPECT_FALSE(dialog_.ask(owner_.handle()));
    EXPECT_TRUE(innerResult);
    EXPECT_TRUE(isEnabled(owner_));
}

TEST_F(ModalDialogTest, EndOfTheProgramCancelsItAndIsPassedOn) {
    player_.untilActive("TestDialog").then([] { PostQuitMessage(7); });
    EXPECT_FALSE(dialog_.ask(owner_.handle()));
    EXPECT_TRUE(isEnabled(owner_));
    MSG message{};
    while (PeekMessageW(&message, nullptr, 0, 0, PM_REMOVE) != FALSE &&
           message.message != WM_QUIT) {
        DispatchMessageW(&message);
    }
    EXPECT_EQ(message.message, static_cast<UINT>(WM_QUIT));
    EXPECT_EQ(message.wParam, 7U);
}

TEST_F(ModalDialogTest, EndOfItsWindowEndsTheLoop) {
    player_.untilActive("TestDialog").then([this] { DestroyWindow(dialog_.handle()); });
    EXPECT_FALSE(dialog_.ask(owner_.handle()));
    EXPECT_TRUE(isEnabled(owner_));
}

TEST_F(ModalDialogTest, TextsFollowTheLanguageAndStayWhereThereIsNone) {
    EXPECT_EQ(textOf(dialog_.handle()), "Select Units");
    GetLanguageSupport().ChangeLanguage(languageGerman);
    EXPECT_EQ(textOf(dialog_.handle()), "Einheiten auswählen");
    CurrentLanguage() = 0;
    const TestDialog untranslated;
    EXPECT_EQ(textOf(untranslated.handle()), "Design");
}

TEST_F(ModalDialogTest, FollowsTheResolutionOfItsMonitorWhileItShows) {
    player_.untilActive("TestDialog")
        .then([this] {
            const int designed = dialog_.dpi();
            const RECT suggested{100, 120, 900, 600};
            SendMessageW(dialog_.handle(), WM_DPICHANGED, MAKEWPARAM(2 * designed, 2 * designed),
                         reinterpret_cast<LPARAM>(&suggested));
            EXPECT_EQ(dialog_.dpi(), 2 * designed);
            EXPECT_EQ(dialog_.rectangle().left, 100);
            EXPECT_EQ(dialog_.rectangle().top, 120);
            EXPECT_EQ(dialog_.clientRectangle().right, 600 * designed / 96);
            EXPECT_GE(dialog_.clientRectangle().bottom, 240 * designed / 96);
            RECT second{};
            GetWindowRect(dialog_.second.handle(), &second);
            EXPECT_EQ(second.right - second.left, 280 * designed / 96);
        })
        .key(VK_ESCAPE);
    dialog_.ask(owner_.handle());
}

TEST_F(ModalDialogTest, GroundAndFieldsAreDark) {
    player_.untilActive("TestDialog")
        .then([this] {
            UpdateWindow(dialog_.handle());
            UpdateWindow(dialog_.second.handle());
            EXPECT_EQ(readClient(dialog_.handle()).at(4, 60), 0x606060U);
            EXPECT_EQ(readClient(dialog_.second.handle()).at(60, 12), 0x4A4A4AU);
        })
        .key(VK_ESCAPE);
    dialog_.ask(owner_.handle());
}

}  // namespace
}  // namespace ormala
