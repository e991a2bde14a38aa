#include <gtest/gtest.h>

#include "dialogs/win/frmColor.h"
#include "platform/win/controlDpi.h"
#include "win/ModalPlayer.h"
#include "win/ModesStage.h"

// The size of text that the user has chosen for all programs.

namespace ormala {
namespace {

/// The user's setting in per cent, for the object's lifetime.
class StoredTextSize {
  public:
    explicit StoredTextSize(DWORD percent) { set(percent); }
    StoredTextSize(const StoredTextSize&) = delete;
    StoredTextSize& operator=(const StoredTextSize&) = delete;
    ~StoredTextSize() {
        RegDeleteKeyValueW(HKEY_CURRENT_USER, key, value);
        readTextSize();
    }

    static void set(DWORD percent) {
        RegSetKeyValueW(HKEY_CURRENT_USER, key, value, REG_DWORD, &percent, sizeof percent);
    }

  private:
    static constexpr const wchar_t* key = L"Software\\Microsoft\\Accessibility";
    static constexpr const wchar_t* value = L"TextScaleFactor";
};

LONG textHeight(HWND window) {
    LOGFONTW face{};
    GetObjectW(reinterpret_cast<HFONT>(SendMessageW(window, WM_GETFONT, 0, 0)), sizeof face, &face);
    return face.lfHeight;
}

class TextSize : public ModesStage {
  protected:
    void tellOfAnother(DWORD percent) {
        StoredTextSize::set(percent);
        SendMessageW(settings_->handle(), WM_SETTINGCHANGE, 0, 0);
    }
    [[nodiscard]] int clientWidth() const {
        return static_cast<int>(settings_->clientRectangle().right);
    }
    [[nodiscard]] HWND shownNumber() const {
        return namedChild(settings_->handle(), "lblPositionLeft");
    }

    StoredTextSize stored_{100};
};

TEST_F(TextSize, TheControlWindowFollowsItAtOnce) {
    start();
    const int width = clientWidth();
    const LONG text = textHeight(shownNumber());
    const int height = heightOf(settings_->rectangle());
    tellOfAnother(150);
    EXPECT_NEAR(clientWidth(), width * 1.5, 2);
    EXPECT_NEAR(textHeight(shownNumber()), text * 1.5, 1);
    EXPECT_GT(heightOf(settings_->rectangle()), height);
    tellOfAnother(100);
    EXPECT_EQ(clientWidth(), width);
    EXPECT_EQ(textHeight(shownNumber()), text);
    EXPECT_NEAR(heightOf(settings_->rectangle()), height, 1);
}

TEST_F(TextSize, ItIsThereFromTheStartOn) {
    const int width = [this] {
        start();
        const int normal = clientWidth();
        end();
        return normal;
    }();
    StoredTextSize::set(125);
    readTextSize();
    start();
    EXPECT_NEAR(clientWidth(), width * 1.25, 2);
}

TEST_F(TextSize, LayoutsFollowItUpToHalfAsMuchAgain) {
    start();
    tellOfAnother(150);
    const int width = clientWidth();
    tellOfAnother(225);
    EXPECT_EQ(clientWidth(), width);
}

TEST_F(TextSize, ADialogTakesItWhenItIsShownAndWhileItIs) {
    start();
    frmColor shownBefore;
    // Made before the change as well. It is another one because a display still tells of the place
    // of a window that it has just hidden, and Wine takes that for the next place.
    frmColor dialog;
    ModalPlayer player;
    LONG normal = 0;
    player.untilActive("frmColor")
        .then([&] { normal = shownBefore.clientRectangle().right; })
        .key(VK_ESCAPE);
    EXPECT_EQ(shownBefore.GetColor(settings_->handle(), 0), 0U);
    ASSERT_GT(normal, 0);
    StoredTextSize::set(125);
    readTextSize();
    player.untilActive("frmColor")
        .then([&] {
            EXPECT_NEAR(dialog.clientRectangle().right, normal * 1.25, 2);
            StoredTextSize::set(150);
            SendMessageW(dialog.handle(), WM_SETTINGCHANGE, 0, 0);
            EXPECT_NEAR(dialog.clientRectangle().right, normal * 1.5, 2);
        })
        .key(VK_ESCAPE);
    EXPECT_EQ(dialog.GetColor(settings_->handle(), 0), 0U);
}

TEST_F(TextSize, WhatLiesOnTheScreenKeepsItsOwn) {
    start();
    const RECT frame = program_->resizer().rectangle();
    const RECT lens = program_->view().lens().lens().rectangle();
    tellOfAnother(150);
    const RECT frameNow = program_->resizer().rectangle();
    const RECT lensNow = program_->view().lens().lens().rectangle();
    EXPECT_TRUE(EqualRect(&frame, &frameNow));
    EXPECT_TRUE(EqualRect(&lens, &lensNow));
}

}  // namespace
}  // namespace ormala
