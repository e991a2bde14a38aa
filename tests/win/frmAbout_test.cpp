#include "dialogs/win/frmAbout.h"

#include <gtest/gtest.h>
#include <oleacc.h>

#include <string>
#include <vector>

#include "language/MlStringModule.h"
#include "platform/win/StandardControl.h"
#include "win/AccessibleReader.h"
#include "win/EnglishTexts.h"
#include "win/ModalPlayer.h"
#include "win/TestAccessible.h"
#include "win/TestWindow.h"

namespace ormala {
namespace {

class frmAboutTest : public testing::Test {
  protected:
    [[nodiscard]] HWND part(const char* name) const { return namedChild(dialog_.handle(), name); }
    [[nodiscard]] std::string text(const char* name) const { return textOf(part(name)); }
    [[nodiscard]] static bool isShown(HWND window) {
        return (GetWindowLongPtrW(window, GWL_STYLE) & WS_VISIBLE) != 0;
    }
    /// The button lies beneath all that is shown.
    [[nodiscard]] static LONG topOfClose(const frmAbout& dialog) {
        RECT place{};
        GetWindowRect(namedChild(dialog.handle(), "cmdClose"), &place);
        MapWindowPoints(nullptr, dialog.handle(), reinterpret_cast<POINT*>(&place), 2);
        return place.top;
    }
    ModalPlayer& untilReady() { return player_.untilActive("frmAbout"); }
    void show() { dialog_.ShowAbout(owner_.handle()); }

    EnglishTexts english_;
    TestWindow owner_;
    std::vector<std::string> opened_;
    LinkOpener noting_ = [this](const std::string& link) { opened_.push_back(link); };
    frmAbout dialog_{{"Ormala", "1.2.3", "https://example.org/ormala", "author@example.org"},
                     noting_};
    ModalPlayer player_;
};

const std::string mailTarget = "mailto:author@example.org?subject=Ormala%201.2.3";

TEST_F(frmAboutTest, TellsTitleVersionAndAddresses) {
    EXPECT_EQ(textOf(dialog_.handle()), "About Ormala");
    EXPECT_EQ(text("lblTitle(0)"), "Ormala");
    EXPECT_EQ(text("lblVersion"), "Version:");
    EXPECT_EQ(text("lblVersionInfo"), "1.2.3");
    EXPECT_EQ(text("lblHomepage"), "Check for new versions at:");
    EXPECT_EQ(text("lblLink"), "https://example.org/ormala");
    EXPECT_EQ(text("lblMail"), "E-Mail to the author:");
    EXPECT_EQ(text("lblMailLink"), "author@example.org");
    EXPECT_EQ(text("cmdClose"), "Close");
}

TEST_F(frmAboutTest, SpeaksGermanAfterAChangeOfLanguage) {
    GetLanguageSupport().ChangeLanguage(languageGerman);
    EXPECT_EQ(textOf(dialog_.handle()), "Info über Ormala");
    EXPECT_EQ(text("lblHomepage"), "Nach neuen Versionen schauen:");
    EXPECT_EQ(text("lblMail"), "E-Mail an den Autor:");
    EXPECT_EQ(text("cmdClose"), "Schließen");
    EXPECT_EQ(text("lblTitle(0)"), "Ormala");
}

TEST_F(frmAboutTest, AClickOnALinkOpensIt) {
    untilReady()
        .then([this] {
            const LPARAM inside = MAKELPARAM(5, 5);
            for (const char* const link : {"lblLink", "lblMailLink"}) {
                SendMessageW(part(link), WM_LBUTTONDOWN, MK_LBUTTON, inside);
                SendMessageW(part(link), WM_LBUTTONUP, 0, inside);
            }
        })
        .key(VK_ESCAPE);
    show();
    EXPECT_EQ(opened_, (std::vector<std::string>{"https://example.org/ormala", mailTarget}));
}

TEST_F(frmAboutTest, APressThatEndsElsewhereOpensNothing) {
    untilReady()
        .then([this] {
            SendMessageW(part("lblLink"), WM_LBUTTONDOWN, MK_LBUTTON, MAKELPARAM(5, 5));
            SendMessageW(part("lblLink"), WM_LBUTTONUP, 0, MAKELPARAM(5, 500));
            SendMessageW(part("lblLink"), WM_LBUTTONUP, 0, MAKELPARAM(5, 5));
        })
        .key(VK_ESCAPE);
    show();
    EXPECT_TRUE(opened_.empty());
}

TEST_F(frmAboutTest, TheKeyboardReachesAndOpensTheLinks) {
    untilReady()
        .until("the button", [this] { return GetFocus() == part("cmdClose"); })
        .key(VK_TAB)
        .until("the first link", [this] { return GetFocus() == part("lblLink"); })
        .key(VK_SPACE)
        .until("the page", [this] { return opened_.size() == 1; })
        .key(VK_TAB)
        .until("the second link", [this] { return GetFocus() == part("lblMailLink"); })
        .key(VK_RETURN)
        .until("the mail", [this] { return opened_.size() == 2; })
        .then([this] { EXPECT_TRUE(dialog_.isVisible()); })
        .key(VK_TAB)
        .until("the button again", [this] { return GetFocus() == part("cmdClose"); })
        .key(VK_RETURN);
    show();
    EXPECT_EQ(opened_, (std::vector<std::string>{"https://example.org/ormala", mailTarget}));
}

TEST_F(frmAboutTest, CloseHidesTheWindow) {
    untilReady().then([this] { PostMessageW(part("cmdClose"), BM_CLICK, 0, 0); });
    show();
    EXPECT_FALSE(dialog_.isVisible());
}

TEST_F(frmAboutTest, AHandShowsWhereALinkIs) {
    SendMessageW(part("lblLink"), WM_SETCURSOR, reinterpret_cast<WPARAM>(part("lblLink")),
                 MAKELPARAM(HTCLIENT, WM_MOUSEMOVE));
    EXPECT_EQ(GetCursor(), LoadCursorW(nullptr, IDC_HAND));
}

TEST_F(frmAboutTest, AScreenReaderHearsOfLinks) {
    EXPECT_EQ(accessibleNameOf(part("lblLink")), "https://example.org/ormala");
    EXPECT_EQ(accessibleRoleOf(part("lblLink")), ROLE_SYSTEM_LINK);
    EXPECT_EQ(accessibleRoleOf(part("lblTitle(0)")), ROLE_SYSTEM_STATICTEXT);
    EXPECT_EQ(accessibleNameOf(part("lblTitle(0)")), "Ormala");
}

TEST_F(frmAboutTest, ShowsOnlyTheAddressesThatThereAre) {
    const frmAbout silent({"Ormala", "1.2.3", {}, {}}, noting_);
    for (const char* const name : {"lblHomepage", "lblLink", "lblMail", "lblMailLink"}) {
        EXPECT_FALSE(isShown(namedChild(silent.handle(), name))) << name;
        EXPECT_TRUE(isShown(part(name))) << name;
    }
    const frmAbout mailOnly({"Ormala", "1.2.3", {}, "author@example.org"}, noting_);
    EXPECT_FALSE(isShown(namedChild(mailOnly.handle(), "lblLink")));
    EXPECT_TRUE(isShown(namedChild(mailOnly.handle(), "lblMailLink")));
    EXPECT_LT(topOfClose(silent), topOfClose(mailOnly));
    EXPECT_LT(topOfClose(mailOnly), topOfClose(dialog_));
}

}  // namespace
}  // namespace ormala
