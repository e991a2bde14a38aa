#include <algorithm>
#include <array>
#include <utility>

#include "dialogs/optionsLayout.h"
#include "language/MlStringModule.h"
#include "platform/win/handles.h"
#include "platform/win/text.h"
#include "scene/dpi.h"
#include "win/OptionsStage.h"
#include "win/TestAccessible.h"

namespace ormala {
namespace {

/// A control and the number of its text.
struct Labelled {
    const char* control;
    int textId;
};

constexpr std::array labelled{
    Labelled{"btnTab(0)", 228},
    Labelled{"btnTab(1)", 229},
    Labelled{"btnTab(2)", 64},
    Labelled{"chkBottomRightVisible", 65},
    Labelled{"chkCursorVisible", 93},
    Labelled{"chkHotSpotVisible", 65},
    Labelled{"chkLensGridVisible", 65},
    Labelled{"chkLogicalPixels", 645},
    Labelled{"chkSameGridOffsetXY", 90},
    Labelled{"chkSameGridSizeXY", 90},
    Labelled{"chkStick", 94},
    Labelled{"chkTemplateWithBorder", 86},
    Labelled{"chkTopLeftVisible", 65},
    Labelled{"cmdAbout", 348},
    Labelled{"cmdCancel", 227},
    Labelled{"cmdHotSpotDrawColor", 6},
    Labelled{"cmdLensGridColor", 6},
    Labelled{"cmdOK", 210},
    Labelled{"lblBottomRightRef", 98},
    Labelled{"lblGridColor", 91},
    Labelled{"lblGridLine", 92},
    Labelled{"fraHotSpot", 114},
    Labelled{"lblHotSpotDrawMode", 110},
    Labelled{"lblHotSpotStyle", 107},
    Labelled{"fraLensGrid", 113},
    Labelled{"lblLensGridDrawMode", 110},
    Labelled{"fraScaleBottomRight", 111},
    Labelled{"fraScaleTopLeft", 112},
    Labelled{"lblTopLeftRef", 98},
    Labelled{"optTopLeftRef(0)", 96},
    Labelled{"optTopLeftRef(1)", 64},
    Labelled{"optTopLeftRef(2)", 97},
    Labelled{"optTopLeftRef(3)", 95},
    Labelled{"optGridMode(1)", 88},
    Labelled{"optGridMode(2)", 89},
    Labelled{"optHotSpotDrawMode(0)", 109},
    Labelled{"optHotSpotDrawMode(1)", 108},
    Labelled{"optHotSpotDrawMode(2)", 91},
    Labelled{"optLensGridDrawMode(0)", 109},
    Labelled{"optLensGridDrawMode(1)", 108},
    Labelled{"optLensGridDrawMode(2)", 91},
    Labelled{"optBottomRightRef(0)", 96},
    Labelled{"optBottomRightRef(1)", 64},
    Labelled{"optBottomRightRef(2)", 97},
    Labelled{"optBottomRightRef(3)", 95},
};

constexpr std::array sliders{Labelled{"sldMagnification", 66}, Labelled{"sldGridSizeX", 223},
                             Labelled{"sldGridSizeY", 224}, Labelled{"sldGridOffsetX", 225},
                             Labelled{"sldGridOffsetY", 226}};

class OptionsTexts : public OptionsStage, public testing::WithParamInterface<int> {
  protected:
    OptionsTexts() { GetLanguageSupport().ChangeLanguage(GetParam()); }
};

TEST_P(OptionsTexts, AreThoseOfTheLanguage) {
    for (const Labelled& each : labelled) {
        EXPECT_EQ(text(each.control), MlString(each.textId, {})) << each.control;
        EXPECT_NE(text(each.control), "") << each.control;
    }
    EXPECT_EQ(textOf(dialog_.handle()), "Ormala" + MlString(260, {}));
    EXPECT_EQ(accessibleNameOf(part("colpicGrid")), MlString(6, {}));
}

TEST_P(OptionsTexts, NameTheSlidersWithTheirValues) {
    for (const Labelled& each : sliders) {
        EXPECT_TRUE(text(each.control).starts_with(MlString(each.textId, {}) + ": "))
            << each.control;
    }
}

TEST_P(OptionsTexts, OfTheLanguagesAndTheStylesAreTheSameInEveryLanguage) {
    EXPECT_EQ(text("optLanguage(0)"), "English / Englisch");
    EXPECT_EQ(text("optLanguage(1)"), "German / Deutsch");
    EXPECT_EQ(text("fraLanguage"), " Language / Sprache ");
    for (int style = 0; style < 8; ++style) {
        const std::string number = std::to_string(style);
        EXPECT_EQ(text("optHotSpotStyle(" + number + ")"), std::to_string(style + 1));
    }
}

TEST_P(OptionsTexts, HaveRoomAtEveryResolution) {
    for (const int dpi : {96, 120, 144, 192}) {
        RECT suggested{20, 20, 900, 700};
        SendMessageW(dialog_.handle(), WM_DPICHANGED, MAKEWPARAM(dpi, dpi),
                     reinterpret_cast<LPARAM>(&suggested));
        const FontHandle font = controlFont(dpi, FontLook::normal);
        const ContextHandle context(CreateCompatibleDC(nullptr));
        const Selected selected(context.get(), font.get());
        for (const Labelled& each : labelled) {
            if (std::string_view(each.control).ends_with("Color")) {
                continue;
            }
            const std::wstring shown = wide(text(each.control));
            SIZE needed{};
            GetTextExtentPoint32W(context.get(), shown.c_str(), static_cast<int>(shown.size()),
                                  &needed);
            RECT client{};
            GetClientRect(part(each.control), &client);
            const bool isButton = std::string_view(each.control).find("lbl") != 0;
            EXPECT_LE(needed.cx + (isButton ? scaledLength(8, dpi) : 0), client.right)
                << each.control << " at " << dpi;
            EXPECT_LE(needed.cy, client.bottom) << each.control << " at " << dpi;
        }
    }
}

INSTANTIATE_TEST_SUITE_P(Languages, OptionsTexts, testing::Values(languageEnglish, languageGerman));

using OptionsPlaces = OptionsStage;

TEST_F(OptionsPlaces, AreThoseOfTheDesign) {
    RECT suggested{20, 20, 900, 700};
    SendMessageW(dialog_.handle(), WM_DPICHANGED, MAKEWPARAM(96, 96),
                 reinterpret_cast<LPARAM>(&suggested));
    for (int page = 0; page < 3; ++page) {
        const HWND window = part("picTab(" + std::to_string(page) + ")");
        for (const ControlPlace& place : optionPagePlaces(page)) {
            const HWND control = part(std::string(place.name));
            if (place.name.starts_with("pic")) {
                EXPECT_EQ(control, nullptr) << place.name << " is painted";
                continue;
            }
            RECT found{};
            GetWindowRect(control, &found);
            MapWindowPoints(nullptr, window, reinterpret_cast<POINT*>(&found), 2);
            const PixelRect box{found.left, found.top, found.right, found.bottom};
            EXPECT_EQ(box, place.box) << place.name;
            EXPECT_EQ(GetParent(control), window) << place.name;
        }
    }
}

TEST_F(OptionsPlaces, OfAllPagesAreTheSame) {
    RECT first{};
    GetWindowRect(part("picTab(0)"), &first);
    for (const char* const name : {"picTab(1)", "picTab(2)"}) {
        RECT other{};
        GetWindowRect(part(name), &other);
        EXPECT_TRUE(EqualRect(&first, &other)) << name;
    }
}

}  // namespace
}  // namespace ormala
