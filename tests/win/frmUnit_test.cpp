#include "measure/win/frmUnit.h"

#include <gtest/gtest.h>

#include "language/MlStringModule.h"
#include "measure/ManualMeasures.h"
#include "support/MemoryCodePage.h"
#include "support/OwnToolSettings.h"
#include "support/QuietToolHost.h"
#include "win/EnglishTexts.h"
#include "win/ModalPlayer.h"
#include "win/TestAccessible.h"
#include "win/TestWindow.h"

namespace ormala {
namespace {

class frmUnitTest : public testing::Test {
  protected:
    void give(const MeasureUnits& units) {
        tool_.setAngleMode(units.AngleMode);
        tool_.setLengthMode(units.LengthMode);
        tool_.setLengthFactor(units.LengthFactor);
        tool_.setLengthUnit(units.LengthUnit);
    }
    [[nodiscard]] MeasureUnits given() const {
        return {tool_.AngleMode(), tool_.LengthMode(), tool_.LengthFactor(), tool_.LengthUnit()};
    }
    [[nodiscard]] HWND part(const char* name) const { return namedChild(dialog_.handle(), name); }
    [[nodiscard]] HWND unitField() const { return GetWindow(part("cboUnit"), GW_CHILD); }
    [[nodiscard]] bool isOn(const char* option) const {
        return SendMessageW(part(option), BM_GETCHECK, 0, 0) == BST_CHECKED;
    }
    void click(const char* name) const { SendMessageW(part(name), BM_CLICK, 0, 0); }
    void setText(const char* name, const wchar_t* text) const { SetWindowTextW(part(name), text); }
    void typeUnit(std::wstring_view keys) const {
        for (const wchar_t key : keys) {
            SendMessageW(unitField(), WM_CHAR, key, 1);
        }
    }
    [[nodiscard]] std::string unitText() const { return textOf(part("cboUnit")); }
    [[nodiscard]] bool isDropped() const {
        return SendMessageW(part("cboUnit"), CB_GETDROPPEDSTATE, 0, 0) != FALSE;
    }
    void paste(const wchar_t* text) const {
        SendMessageW(unitField(), EM_SETSEL, 0, -1);
        SendMessageW(unitField(), EM_REPLACESEL, TRUE, reinterpret_cast<LPARAM>(text));
    }
    /// The dialog with the focus on the unit of a tool.
    ModalPlayer& onUnit(const char* unit) {
        give({0, 1, 1, unit});
        return player_.untilActive("frmUnit").then([this] { SetFocus(unitField()); });
    }
    ModalPlayer& untilDropped() {
        return player_.until("the list", [this] { return isDropped(); });
    }
    ModalPlayer& untilClosed() {
        return player_.until("the end of the list", [this] { return !isDropped(); });
    }
    int select() { return dialog_.SelectUnits(owner_.handle(), tool_, defaults_); }

    EnglishTexts english_;
    TestWindow owner_;
    QuietToolHost host_;
    OwnToolSettings settings_;
    ManualMeasures others_;
    ctlMeasure tool_{host_, settings_, others_};
    MeasureUnits defaults_;
    MemoryCodePage codePage_;
    frmUnit dialog_{"Ormala", ".", codePage_};
    ModalPlayer player_;
};

TEST_F(frmUnitTest, ShowsTheUnitsOfTheTool) {
    give({1, 2, 2.5, "km"});
    player_.untilActive("frmUnit")
        .then([this] {
            EXPECT_EQ(textOf(dialog_.handle()), "Select Units");
            EXPECT_TRUE(isOn("optAngleUnit(1)"));
            EXPECT_TRUE(isOn("optLengthUnit(2)"));
            EXPECT_FALSE(isOn("optLengthUnit(0)"));
            EXPECT_EQ(textOf(part("txnFactor")), "2.5");
            EXPECT_EQ(textOf(part("cboUnit")), "km");
            EXPECT_FALSE(isOn("chkDefault"));
            EXPECT_EQ(GetFocus(), namedChild(part("txnFactor"), "TB"));
        })
        .key(VK_ESCAPE);
    EXPECT_EQ(select(), frmUnit::cancelled);
    EXPECT_EQ(given(), (MeasureUnits{1, 2, 2.5, "km"}));
}

TEST_F(frmUnitTest, OKGivesTheToolWhatWasEntered) {
    player_.untilActive("frmUnit")
        .then([this] {
            click("optAngleUnit(1)");
            click("optLengthUnit(1)");
            setText("txnFactor", L"0.25");
            setText("cboUnit", L"sea mile  ");
        })
        .key(VK_RETURN);
    EXPECT_EQ(select(), frmUnit::changed);
    EXPECT_EQ(given(), (MeasureUnits{1, 1, 0.25, "sea mile"}));
    EXPECT_EQ(defaults_, MeasureUnits{});
}

TEST_F(frmUnitTest, PixelsDisableFactorAndUnitAndStoreAFactorOfZero) {
    give({0, 1, 1, "m"});
    player_.untilActive("frmUnit")
        .then([this] {
            EXPECT_TRUE(IsWindowEnabled(part("txnFactor")));
            setText("txnFactor", L"0");
            click("optLengthUnit(0)");
            EXPECT_FALSE(IsWindowEnabled(part("txnFactor")));
            EXPECT_FALSE(IsWindowEnabled(part("cboUnit")));
        })
        .then([this] { PostMessageW(part("cmdOK"), BM_CLICK, 0, 0); });
    EXPECT_EQ(select(), frmUnit::changed);
    EXPECT_EQ(given(), (MeasureUnits{0, 0, 0, "m"}));
}

TEST_F(frmUnitTest, FactorOfZeroIsRefusedWithAMessage) {
    give({0, 1, 1, "m"});
    player_.untilActive("frmUnit")
        .then([this] { setText("txnFactor", L"0"); })
        .key(VK_RETURN)
        .untilActive("#32770")
        .then([] {
            EXPECT_EQ(textOf(GetActiveWindow()), "Ormala");
            EXPECT_EQ(textOf(GetDlgItem(GetActiveWindow(), 65535)),
                      "Please enter a unit conversion factor greater than zero.");
        })
        .key(VK_RETURN)
        .untilActive("frmUnit")
        .then([this] { setText("txnFactor", L"3"); })
        .key(VK_RETURN);
    EXPECT_EQ(select(), frmUnit::changed);
    EXPECT_EQ(given(), (MeasureUnits{0, 1, 3, "m"}));
}

TEST_F(frmUnitTest, AnotherNameLeavesTheNumber) {
    give({0, 1, 7, "m"});
    player_.untilActive("frmUnit")
        .then([this] {
            EXPECT_EQ(SendMessageW(part("cboUnit"), CB_GETCOUNT, 0, 0), 15);
            SendMessageW(part("cboUnit"), CB_SETCURSEL, 6, 0);
            EXPECT_EQ(textOf(part("cboUnit")), "km");
            EXPECT_EQ(textOf(part("txnFactor")), "7");
        })
        .key(VK_RETURN);
    select();
    EXPECT_EQ(given(), (MeasureUnits{0, 1, 7, "km"}));
}

TEST_F(frmUnitTest, SixteenthCharacterHasNoEffectAndLongerTextIsCut) {
    give({0, 1, 1, ""});
    player_.untilActive("frmUnit")
        .then([this] {
            typeUnit(L"1234567890123456");
            EXPECT_EQ(textOf(part("cboUnit")), "123456789012345");
            typeUnit(L"\b");
            EXPECT_EQ(textOf(part("cboUnit")), "123456789012345");
            SendMessageW(unitField(), EM_SETSEL, 0, -1);
            SendMessageW(unitField(), EM_REPLACESEL, TRUE,
                         reinterpret_cast<LPARAM>(L"abcdefghijklmnopqrst"));
            EXPECT_EQ(textOf(part("cboUnit")), "abcdefghijklmno");
        })
        .key(VK_RETURN);
    select();
    EXPECT_EQ(tool_.LengthUnit(), "abcdefghijklmno");
}

TEST_F(frmUnitTest, TheListComesUpAndGoesWithoutChangingTheText) {
    struct Opening {
        UINT message;
        WPARAM wParam;
        bool inField;
    };
    onUnit("m");
    for (const Opening& opening : {Opening{CB_SHOWDROPDOWN, TRUE, false},
                                   {WM_KEYDOWN, VK_F4, true},
                                   {WM_KEYDOWN, VK_DOWN, true},
                                   {WM_KEYDOWN, VK_UP, true},
                                   {WM_KEYDOWN, VK_PRIOR, true},
                                   {WM_SYSKEYDOWN, VK_DOWN, true}}) {
        player_.then([this, opening] {
            const HWND target = opening.inField ? unitField() : part("cboUnit");
            SendMessageW(target, opening.message, opening.wParam, 1);
            EXPECT_EQ(unitText(), "m") << opening.message << ", " << opening.wParam;
        });
        untilDropped().key(VK_ESCAPE);
        untilClosed().then([this, opening] {
            EXPECT_EQ(unitText(), "m") << opening.message << ", " << opening.wParam;
        });
    }
    player_.key(VK_RETURN);
    EXPECT_EQ(select(), frmUnit::changed);
    EXPECT_EQ(tool_.LengthUnit(), "m");
}

TEST_F(frmUnitTest, EscapeInTheListTakesBackTheRowsGoneTo) {
    onUnit("m").key(VK_F4);
    untilDropped().key(VK_DOWN).key(VK_DOWN).key(VK_ESCAPE);
    untilClosed()
        .then([this] {
            EXPECT_EQ(unitText(), "m");
            EXPECT_TRUE(IsWindowVisible(dialog_.handle()));
        })
        .key(VK_RETURN);
    select();
    EXPECT_EQ(tool_.LengthUnit(), "m");
}

TEST_F(frmUnitTest, ARowTakenByEnterBecomesTheText) {
    onUnit("m").key(VK_F4);
    untilDropped().key(VK_DOWN).key(VK_RETURN);
    untilClosed()
        .then([this] {
            EXPECT_EQ(unitText(), "km");
            EXPECT_TRUE(IsWindowVisible(dialog_.handle()));
        })
        .key(VK_RETURN);
    select();
    EXPECT_EQ(tool_.LengthUnit(), "km");
}

TEST_F(frmUnitTest, EnterInAListThatWasOnlyOpenedKeepsTheText) {
    onUnit("k").key(VK_F4);
    untilDropped().key(VK_RETURN);
    untilClosed().then([this] { EXPECT_EQ(unitText(), "k"); }).key(VK_RETURN);
    select();
    EXPECT_EQ(tool_.LengthUnit(), "k");
}

TEST_F(frmUnitTest, WhatIsTypedAboveTheOpenListStays) {
    onUnit("m").key(VK_F4);
    untilDropped()
        .then([this] {
            SendMessageW(unitField(), EM_SETSEL, 1, 1);
            typeUnit(L"y");
        })
        .key(VK_RETURN);
    untilClosed().then([this] { EXPECT_EQ(unitText(), "my"); }).key(VK_RETURN);
    select();
    EXPECT_EQ(tool_.LengthUnit(), "my");
}

TEST_F(frmUnitTest, GoingElsewhereLeavesTheListWithoutARow) {
    onUnit("m").key(VK_F4);
    untilDropped().key(VK_DOWN).then([this] { SetFocus(part("cmdOK")); });
    untilClosed().then([this] { EXPECT_EQ(unitText(), "m"); }).key(VK_RETURN);
    select();
    EXPECT_EQ(tool_.LengthUnit(), "m");
}

TEST_F(frmUnitTest, TheWheelOverTheClosedFieldKeepsTheText) {
    onUnit("m")
        .then([this] {
            for (const HWND window : {unitField(), part("cboUnit")}) {
                SendMessageW(window, WM_MOUSEWHEEL, MAKEWPARAM(0, -WHEEL_DELTA), 0);
                EXPECT_EQ(unitText(), "m");
            }
        })
        .key(VK_RETURN);
    select();
    EXPECT_EQ(tool_.LengthUnit(), "m");
}

TEST_F(frmUnitTest, NothingIsTypedThatAFileWouldLose) {
    onUnit("")
        .then([this] {
            typeUnit(L"  \u03a9s\u6f22ea mile");
            EXPECT_EQ(unitText(), "sea mile");
            SendMessageW(unitField(), EM_SETSEL, 0, 0);
            typeUnit(L" \u03a9");
            EXPECT_EQ(unitText(), "sea mile");
            DWORD caret = 1;
            SendMessageW(unitField(), EM_GETSEL, reinterpret_cast<WPARAM>(&caret), 0);
            EXPECT_EQ(caret, 0U);
            SendMessageW(unitField(), EM_SETSEL, 0, 3);
            typeUnit(L"\b");
            EXPECT_EQ(unitText(), "mile");
        })
        .key(VK_RETURN);
    select();
    EXPECT_EQ(tool_.LengthUnit(), "mile");
}

TEST_F(frmUnitTest, NothingIsPastedThatAFileWouldLose) {
    onUnit("km")
        .then([this] {
            paste(L"k\u03a9");
            EXPECT_EQ(unitText(), "km");
            paste(L"   \u00b5m");
            EXPECT_EQ(unitText(), "\u00b5m");
            paste(L"\u6f22");
            EXPECT_EQ(unitText(), "\u00b5m");
        })
        .key(VK_RETURN);
    select();
    EXPECT_EQ(tool_.LengthUnit(), "\u00b5m");
}

TEST_F(frmUnitTest, DefaultIsTakenOverByOKOnly) {
    give({1, 2, 4, "cm"});
    player_.untilActive("frmUnit")
        .then([this] {
            click("chkDefault");
            EXPECT_TRUE(isOn("chkDefault"));
        })
        .key(VK_ESCAPE);
    select();
    EXPECT_EQ(defaults_, MeasureUnits{});
    test::waitUntil([this] { return player_.done(); });
    player_.untilActive("frmUnit")
        .then([this] {
            EXPECT_FALSE(isOn("chkDefault"));
            click("chkDefault");
        })
        .key(VK_RETURN);
    select();
    EXPECT_EQ(defaults_, (MeasureUnits{1, 2, 4, "cm"}));
}

TEST_F(frmUnitTest, KeyboardReachesEverything) {
    player_.untilActive("frmUnit")
        .until("the first focus", [this] { return GetFocus() == part("optLengthUnit(0)"); })
        .key(VK_DOWN)
        .until("the next option", [this] { return isOn("optLengthUnit(1)"); })
        .key(VK_TAB)
        .until("the factor", [this] { return GetFocus() == namedChild(part("txnFactor"), "TB"); })
        .then([] { PostMessageW(GetFocus(), WM_CHAR, L'9', 1); })
        .key(VK_TAB)
        .until("the unit", [this] { return GetFocus() == unitField(); })
        .key(VK_TAB)
        .until("the angles", [this] { return GetFocus() == part("optAngleUnit(0)"); })
        .key(VK_TAB)
        .until("the default", [this] { return GetFocus() == part("chkDefault"); })
        .key(VK_TAB)
        .until("OK", [this] { return GetFocus() == part("cmdOK"); })
        .key(VK_SPACE);
    EXPECT_EQ(select(), frmUnit::changed);
    EXPECT_EQ(given(), (MeasureUnits{0, 1, 9, "m"}));
}

TEST_F(frmUnitTest, SpeaksGermanAfterAChangeOfLanguage) {
    GetLanguageSupport().ChangeLanguage(languageGerman);
    EXPECT_EQ(textOf(dialog_.handle()), "Einheiten auswählen");
    EXPECT_EQ(textOf(part("optLengthUnit(0)")), "Pixel (keine reale Längeneinheit)");
    EXPECT_EQ(textOf(part("optLengthUnit(1)")), "1 Pixel");
    EXPECT_EQ(textOf(part("optLengthUnit(2)")), "Länge a");
    EXPECT_EQ(textOf(part("fraLength")), " Einheit der Streckenlänge ");
    EXPECT_EQ(textOf(part("fraAngle")), " Einheit des Winkels ");
    EXPECT_EQ(textOf(part("optAngleUnit(0)")), "Grad (°)");
    EXPECT_EQ(textOf(part("optAngleUnit(1)")), "Bogenmaß (rad)");
    EXPECT_EQ(textOf(part("chkDefault")), "Als Standard für neue Messwerkzeuge verwenden");
    EXPECT_EQ(textOf(part("cmdCancel")), "Abbrechen");
}

TEST_F(frmUnitTest, ScreenReaderHearsWhatTheFieldsAreFor) {
    EXPECT_EQ(accessibleNameOf(namedChild(part("txnFactor"), "TB")), "Unit of line length");
    EXPECT_EQ(accessibleNameOf(unitField()), "Real world unit");
}

}  // namespace
}  // namespace ormala
