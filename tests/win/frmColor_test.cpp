#include "dialogs/win/frmColor.h"

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

constexpr Color red = rgb(255, 0, 0);
/// A colour of no field.
constexpr Color odd = rgb(1, 2, 3);

class frmColorTest : public testing::Test {
  protected:
    [[nodiscard]] HWND part(const char* name) const { return namedChild(dialog_.handle(), name); }
    [[nodiscard]] HWND picker() const { return part("ColorPicker"); }
    [[nodiscard]] bool pickerHasFocus() const { return GetFocus() == picker(); }
    /// The middle of a field.
    [[nodiscard]] LPARAM at(int column, int row) const {
        RECT client{};
        GetClientRect(picker(), &client);
        const PixelSize fields = paletteOf(palette::hues).size;
        return MAKELPARAM((2 * column + 1) * client.right / (2 * fields.width),
                          (2 * row + 1) * client.bottom / (2 * fields.height));
    }
    void mouse(UINT message, LPARAM point) const {
        PostMessageW(picker(), message, message == WM_LBUTTONUP ? 0 : MK_LBUTTON, point);
    }
    void click(int column, int row) const {
        mouse(WM_LBUTTONDOWN, at(column, row));
        mouse(WM_LBUTTONUP, at(column, row));
    }
    [[nodiscard]] std::function<bool()> picked(int column, int row) const {
        return [this, expected = told(colorAt(column, row))] {
            return accessibleValueOf(picker()) == expected;
        };
    }
    static std::string told(Color color) {
        ColorPicModel model;
        model.setRGBColor(color);
        return model.valueText();
    }
    static Color colorAt(int column, int row) { return paletteOf(palette::hues).at({column, row}); }
    /// Beneath the palette the present colour is shown beside the picked one.
    [[nodiscard]] std::function<bool()> shows(Color present, Color picked) const {
        return [this, present, picked] {
            const int dpi = static_cast<int>(GetDpiForWindow(dialog_.handle()));
            const test::Picture picture = clientOnScreen(dialog_.handle());
            const auto at = [&](int x, int y) {
                return static_cast<Color>(picture.at({picture.rect().left + scaledLength(x, dpi),
                                                      picture.rect().top + scaledLength(y, dpi)}));
            };
            return at(30, 228) == present && at(90, 228) == picked;
        };
    }
    ModalPlayer& untilReady() {
        return player_.untilActive("frmColor").until("the focus", [this] {
            return pickerHasFocus();
        });
    }
    Color get(Color present) { return dialog_.GetColor(owner_.handle(), present); }

    EnglishTexts english_;
    TestWindow owner_;
    frmColor dialog_;
    ModalPlayer player_;
};

TEST_F(frmColorTest, OpensInFrontWithTheFocusOnThePaletteAndThePresentColorBeneath) {
    untilReady()
        .then([this] {
            EXPECT_EQ(textOf(dialog_.handle()), "Select Color");
            EXPECT_EQ(textOf(part("cmdOK")), "OK");
            EXPECT_NE(GetWindowLongPtrW(dialog_.handle(), GWL_EXSTYLE) & WS_EX_TOPMOST, 0);
            EXPECT_TRUE(dialog_.Cancelled());
            EXPECT_EQ(accessibleValueOf(picker()), "#FF0000");
        })
        .until("the present colour twice", shows(red, red))
        .key(VK_ESCAPE);
    EXPECT_EQ(get(red), red);
}

TEST_F(frmColorTest, EnterGivesThePickedColor) {
    untilReady()
        .then([this] { click(8, 6); })
        .until("the colour", picked(8, 6))
        .until("both colours", shows(red, colorAt(8, 6)))
        .key(VK_RETURN);
    EXPECT_EQ(get(red), colorAt(8, 6));
    EXPECT_FALSE(dialog_.Cancelled());
    EXPECT_FALSE(dialog_.isVisible());
}

TEST_F(frmColorTest, TheOKButtonGivesThePickedColor) {
    untilReady().then([this] { click(8, 6); }).until("the colour", picked(8, 6)).then([this] {
        PostMessageW(part("cmdOK"), BM_CLICK, 0, 0);
    });
    EXPECT_EQ(get(red), colorAt(8, 6));
}

TEST_F(frmColorTest, ADoubleClickChoosesTheCellAndEndsTheDialogAsOKDoes) {
    untilReady().then([this] {
        click(8, 6);
        mouse(WM_LBUTTONDBLCLK, at(8, 6));
        mouse(WM_LBUTTONUP, at(8, 6));
    });
    EXPECT_EQ(get(red), colorAt(8, 6));
    EXPECT_FALSE(dialog_.Cancelled());
}

TEST_F(frmColorTest, EscapeLeavesTheCallersColorAfterClicksOnOtherCells) {
    untilReady()
        .then([this] { click(8, 6); })
        .until("the colour", picked(8, 6))
        .then([this] { click(20, 3); })
        .until("the other colour", picked(20, 3))
        .key(VK_ESCAPE);
    EXPECT_EQ(get(odd), odd);
    EXPECT_TRUE(dialog_.Cancelled());
}

TEST_F(frmColorTest, ClosingTheWindowLeavesTheCallersColor) {
    untilReady().then([this] { click(8, 6); }).until("the colour", picked(8, 6)).then([this] {
        PostMessageW(dialog_.handle(), WM_CLOSE, 0, 0);
    });
    EXPECT_EQ(get(odd), odd);
}

TEST_F(frmColorTest, ADragOutOfThePaletteGivesTheNearestCell) {
    untilReady()
        .then([this] {
            mouse(WM_LBUTTONDOWN, at(8, 6));
            mouse(WM_MOUSEMOVE, MAKELPARAM(-500, -500));
            mouse(WM_LBUTTONUP, MAKELPARAM(-500, -500));
        })
        .until("the nearest cell", picked(0, 0))
        .key(VK_RETURN);
    EXPECT_EQ(get(red), colorAt(0, 0));
}

TEST_F(frmColorTest, AColorThatIsInNoCellComesBackByOK) {
    untilReady().key(VK_RETURN);
    EXPECT_EQ(get(odd), odd);
}

TEST_F(frmColorTest, ArrowsPickFromTheFieldOfThePresentColor) {
    untilReady()
        .key(VK_RIGHT)
        .until("the next field", picked(9, 6))
        .key(VK_UP)
        .until("the field above", picked(9, 5))
        .key(VK_RETURN);
    EXPECT_EQ(get(colorAt(8, 6)), colorAt(9, 5));
}

TEST_F(frmColorTest, TabReachesThePalettesAndTheButtonAndComesBack) {
    untilReady()
        .key(VK_TAB)
        .until("the palettes", [this] { return GetFocus() == part("btnPalette(0)"); })
        .key(VK_TAB)
        .until("the button", [this] { return GetFocus() == part("cmdOK"); })
        .key(VK_TAB)
        .until("the palette", [this] { return pickerHasFocus(); })
        .key(VK_ESCAPE);
    EXPECT_EQ(get(red), red);
}

TEST_F(frmColorTest, TheNextUseBeginsWithItsOwnColor) {
    untilReady().then([this] { click(8, 6); }).until("the colour", picked(8, 6)).key(VK_ESCAPE);
    EXPECT_EQ(get(red), red);
    untilReady().key(VK_RETURN);
    EXPECT_EQ(get(0), 0);
}

TEST_F(frmColorTest, PageDownAndPageUpGoThroughThePalettesAndKeepTheColor) {
    const auto shows = [this](int index) {
        return [this, index] {
            const std::string name = "btnPalette(" + std::to_string(index) + ")";
            return SendMessageW(part(name.c_str()), BM_GETCHECK, 0, 0) == BST_CHECKED;
        };
    };
    untilReady()
        .until("the hues", shows(0))
        .key(VK_PRIOR)
        .key(VK_NEXT)
        .until("the pure colours", shows(1))
        .key(VK_NEXT)
        .until("the subdued ones", shows(2))
        .key(VK_NEXT)
        .key(VK_PRIOR)
        .until("the pure colours again", shows(1))
        .then([this] { SetFocus(part("cmdOK")); })
        .key(VK_PRIOR)
        .until("the hues again", shows(0))
        .key(VK_RETURN);
    EXPECT_EQ(get(red), red);
}

TEST_F(frmColorTest, AColorOfAnotherPaletteIsPickedThere) {
    const Palette& muted = paletteOf(palette::muted);
    const Color wanted = muted.at({12, 5});
    untilReady()
        .then([this] { PostMessageW(part("btnPalette(2)"), BM_CLICK, 0, 0); })
        .until("the palette",
               [this] {
                   return SendMessageW(part("btnPalette(2)"), BM_GETCHECK, 0, 0) == BST_CHECKED;
               })
        .then([&] {
            RECT client{};
            GetClientRect(picker(), &client);
            const LPARAM point =
                MAKELPARAM(client.right - 4, (2 * 5 + 1) * client.bottom / (2 * muted.size.height));
            mouse(WM_LBUTTONDOWN, point);
            mouse(WM_LBUTTONUP, point);
        })
        .until("the colour", [&] { return accessibleValueOf(picker()) == told(wanted); })
        .key(VK_RETURN);
    EXPECT_EQ(get(red), wanted);
    untilReady()
        .then([this] {
            EXPECT_EQ(SendMessageW(part("btnPalette(2)"), BM_GETCHECK, 0, 0), BST_CHECKED);
        })
        .key(VK_ESCAPE);
    EXPECT_EQ(get(wanted), wanted);
}

TEST_F(frmColorTest, EachPaletteFillsTheSameRoom) {
    RECT first{};
    GetClientRect(picker(), &first);
    untilReady()
        .key(VK_NEXT)
        .then([&] {
            RECT second{};
            GetClientRect(picker(), &second);
            EXPECT_EQ(second.right, first.right);
            EXPECT_EQ(second.bottom, first.bottom);
        })
        .key(VK_ESCAPE);
    EXPECT_EQ(get(red), red);
}

TEST_F(frmColorTest, SpeaksBothLanguages) {
    EXPECT_EQ(accessibleNameOf(picker()), "Select color");
    EXPECT_EQ(accessibleNameOf(part("cmdOK")), "OK");
    GetLanguageSupport().ChangeLanguage(languageGerman);
    EXPECT_EQ(textOf(dialog_.handle()), "Farbe auswählen");
    EXPECT_EQ(accessibleNameOf(picker()), "Farbe auswählen");
    EXPECT_EQ(textOf(part("cmdOK")), "OK");
    GetLanguageSupport().ChangeLanguage(languageEnglish);
    EXPECT_EQ(textOf(dialog_.handle()), "Select Color");
}

struct ColorLook {
    int language;
    int dpi;
};

class ColorGolden : public frmColorTest, public testing::WithParamInterface<ColorLook> {};

TEST_P(ColorGolden, LooksTheSameInBothLanguages) {
    GetLanguageSupport().ChangeLanguage(GetParam().language);
    const int dpi = GetParam().dpi;
    StillPicture look({scaledLength(424, dpi), scaledLength(252, dpi)});
    SetCursorPos(20, 20);
    untilReady()
        .then([&] {
            moveToDpi(dialog_.handle(), dpi);
            SendMessageW(picker(), WM_KEYDOWN, VK_DOWN, 1);
            // The mark of a palette without the focus stands still.
            SetFocus(part("cmdOK"));
        })
        .until("a still picture", [&] { return look.isStill(dialog_.handle()); })
        .then([&] {
            EXPECT_EQ(test::goldenComplaint(look.picture(), "frmColor_" + std::to_string(dpi)), "");
        })
        .key(VK_ESCAPE);
    EXPECT_EQ(get(colorAt(8, 6)), colorAt(8, 6));
}

INSTANTIATE_TEST_SUITE_P(Looks, ColorGolden,
                         testing::Values(ColorLook{languageEnglish, 96},
                                         ColorLook{languageEnglish, 192},
                                         ColorLook{languageGerman, 96},
                                         ColorLook{languageGerman, 192}));

}  // namespace
}  // namespace ormala
