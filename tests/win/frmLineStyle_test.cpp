#include "dialogs/win/frmLineStyle.h"

#include <gtest/gtest.h>

#include "language/MlStringModule.h"
#include "platform/win/StandardControl.h"
#include "scene/dpi.h"
#include "support/win/Golden.h"
#include "win/DialogPicture.h"
#include "win/EnglishTexts.h"
#include "win/ModalPlayer.h"
#include "win/TestAccessible.h"
#include "win/TestWindow.h"

namespace ormala {
namespace {

class frmLineStyleTest : public testing::Test {
  protected:
    [[nodiscard]] HWND part(const char* name) const { return namedChild(dialog_.handle(), name); }
    [[nodiscard]] HWND list() const { return part("LineSelect"); }
    [[nodiscard]] std::function<bool()> chosen(int row) const {
        return [this, row] { return accessibleValueOf(list()) == std::to_string(row + 1) + "/5"; };
    }
    void mouse(UINT message, int row) const {
        RECT client{};
        GetClientRect(list(), &client);
        PostMessageW(list(), message, message == WM_LBUTTONUP ? 0 : MK_LBUTTON,
                     MAKELPARAM(client.right / 2, (2 * row + 1) * client.bottom / 10));
    }
    void click(int row) const {
        mouse(WM_LBUTTONDOWN, row);
        mouse(WM_LBUTTONUP, row);
    }
    ModalPlayer& untilReady() {
        return player_.untilActive("frmLineStyle").until("the focus", [this] {
            return GetFocus() == list();
        });
    }
    int get(int present) { return dialog_.GetLineStyle(owner_.handle(), present); }

    EnglishTexts english_;
    TestWindow owner_;
    frmLineStyle dialog_;
    ModalPlayer player_;
};

TEST_F(frmLineStyleTest, OpensInFrontWithTheFocusOnThePresentRow) {
    untilReady()
        .then([this] {
            EXPECT_EQ(textOf(dialog_.handle()), "Select Line Style");
            EXPECT_NE(GetWindowLongPtrW(dialog_.handle(), GWL_EXSTYLE) & WS_EX_TOPMOST, 0);
            EXPECT_TRUE(dialog_.Cancelled());
            EXPECT_EQ(accessibleValueOf(list()), "2/5");
        })
        .key(VK_ESCAPE);
    EXPECT_EQ(get(1), 1);
}

TEST_F(frmLineStyleTest, EnterOnTheControlEndsTheDialogAsOKDoes) {
    untilReady().key(VK_DOWN).until("the next row", chosen(3)).key(VK_RETURN);
    EXPECT_EQ(get(2), 3);
    EXPECT_FALSE(dialog_.Cancelled());
    EXPECT_FALSE(dialog_.isVisible());
}

TEST_F(frmLineStyleTest, TheOKButtonGivesTheChosenRow) {
    untilReady().then([this] { click(0); }).until("the row", chosen(0)).then([this] {
        PostMessageW(part("cmdOK"), BM_CLICK, 0, 0);
    });
    EXPECT_EQ(get(2), 0);
}

TEST_F(frmLineStyleTest, ADoubleClickChoosesTheRowAndEndsTheDialog) {
    untilReady().then([this] {
        click(4);
        mouse(WM_LBUTTONDBLCLK, 4);
        mouse(WM_LBUTTONUP, 4);
    });
    EXPECT_EQ(get(2), 4);
    EXPECT_FALSE(dialog_.Cancelled());
}

TEST_F(frmLineStyleTest, EscapeLeavesTheCallersValueAsItWas) {
    untilReady().then([this] { click(4); }).until("the row", chosen(4)).key(VK_ESCAPE);
    EXPECT_EQ(get(1), 1);
    EXPECT_TRUE(dialog_.Cancelled());
}

TEST_F(frmLineStyleTest, AValueBeyondTheRowsComesBackByEscapeAndIsCutByOK) {
    untilReady().key(VK_ESCAPE);
    EXPECT_EQ(get(9), 9);
    untilReady().key(VK_RETURN);
    EXPECT_EQ(get(9), 4);
}

TEST_F(frmLineStyleTest, TabReachesTheButton) {
    untilReady()
        .key(VK_TAB)
        .until("the button", [this] { return GetFocus() == part("cmdOK"); })
        .key(VK_SPACE);
    EXPECT_EQ(get(3), 3);
}

TEST_F(frmLineStyleTest, SpeaksBothLanguages) {
    EXPECT_EQ(accessibleNameOf(list()), "Select line width and style");
    EXPECT_EQ(accessibleNameOf(part("cmdOK")), "OK");
    GetLanguageSupport().ChangeLanguage(languageGerman);
    EXPECT_EQ(textOf(dialog_.handle()), "Linienstil auswählen");
    EXPECT_EQ(accessibleNameOf(list()), "Linienbreite und -stil auswählen");
    GetLanguageSupport().ChangeLanguage(languageEnglish);
    EXPECT_EQ(textOf(dialog_.handle()), "Select Line Style");
}

struct LineStyleLook {
    int language;
    int dpi;
};

class LineStyleGolden : public frmLineStyleTest,
                        public testing::WithParamInterface<LineStyleLook> {};

TEST_P(LineStyleGolden, LooksTheSameInBothLanguages) {
    GetLanguageSupport().ChangeLanguage(GetParam().language);
    const int dpi = GetParam().dpi;
    StillPicture look({scaledLength(272, dpi), scaledLength(220, dpi)});
    SetCursorPos(20, 20);
    untilReady()
        .then([&] { moveToDpi(dialog_.handle(), dpi); })
        .until("a still picture", [&] { return look.isStill(dialog_.handle()); })
        .then([&] {
            EXPECT_EQ(test::goldenComplaint(look.picture(), "frmLineStyle_" + std::to_string(dpi)),
                      "");
        })
        .key(VK_ESCAPE);
    EXPECT_EQ(get(3), 3);
}

INSTANTIATE_TEST_SUITE_P(Looks, LineStyleGolden,
                         testing::Values(LineStyleLook{languageEnglish, 96},
                                         LineStyleLook{languageEnglish, 192},
                                         LineStyleLook{languageGerman, 96},
                                         LineStyleLook{languageGerman, 192}));

}  // namespace
}  // namespace ormala
