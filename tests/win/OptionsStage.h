#pragma once

#include <gtest/gtest.h>

#include <string>

#include "dialogs/win/frmOptions.h"
#include "platform/win/StandardControl.h"
#include "win/EnglishTexts.h"
#include "win/ModalPlayer.h"
#include "win/NotedOptions.h"
#include "win/TestWindow.h"

namespace ormala {

/// The options dialog over settings of a test, and who uses it.
class OptionsStage : public testing::Test {
  protected:
    [[nodiscard]] HWND part(const std::string& name) const {
        return namedChild(dialog_.handle(), name);
    }
    [[nodiscard]] bool isOn(const std::string& name) const {
        return SendMessageW(part(name), BM_GETCHECK, 0, 0) == BST_CHECKED;
    }
    [[nodiscard]] std::string text(const std::string& name) const { return textOf(part(name)); }
    [[nodiscard]] bool hasFocus(const std::string& name) const { return GetFocus() == part(name); }
    void click(const std::string& name) const { SendMessageW(part(name), BM_CLICK, 0, 0); }
    void step(const std::string& slider, int key) const {
        SendMessageW(part(slider), WM_KEYDOWN, static_cast<WPARAM>(key), 1);
    }
    /// Only the open page is visible, and its tab is on.
    void expectPage(int page) const {
        for (int each = 0; each < 3; ++each) {
            const std::string number = "(" + std::to_string(each) + ")";
            EXPECT_EQ(IsWindowVisible(part("picTab" + number)) != FALSE, each == page) << each;
            EXPECT_EQ(isOn("btnTab" + number), each == page) << each;
        }
    }
    ModalPlayer& untilReady() { return player_.untilActive("frmOptions"); }
    ModalPlayer& pressOK() {
        return player_.then([this] { PostMessageW(part("cmdOK"), BM_CLICK, 0, 0); });
    }
    void show(int page) { dialog_.ShowForm(owner_.handle(), page); }

    EnglishTexts english_;
    TestWindow owner_;
    NotedOptions port_;
    frmOptions dialog_{port_, {"Ormala", "1.2.3", {}, {}}};
    ModalPlayer player_;
};

}  // namespace ormala
