#include "platform/win/TipWindow.h"

#include <commctrl.h>
#include <gtest/gtest.h>

#include "language/MlStringModule.h"
#include "platform/win/text.h"
#include "support/stencilGripIndex.h"
#include "win/TestSheet.h"
#include "win/TestWindow.h"

namespace ormala {
namespace {

/// The text of the tip that the worksheet's window owns.
std::string tipOf(HWND owner) {
    struct Search {
        HWND owner;
        HWND found = nullptr;
    } search{owner};
    EnumThreadWindows(
        GetCurrentThreadId(),
        [](HWND window, LPARAM parameter) -> BOOL {
            auto& wanted = *reinterpret_cast<Search*>(parameter);
            wchar_t name[64]{};
            GetClassNameW(window, name, 64);
            if (std::wstring_view(name) == TOOLTIPS_CLASSW &&
                GetWindow(window, GW_OWNER) == wanted.owner) {
                wanted.found = window;
                return FALSE;
            }
            return TRUE;
        },
        reinterpret_cast<LPARAM>(&search));
    TTTOOLINFOW tool{};
    tool.cbSize = sizeof tool;
    tool.hwnd = owner;
    tool.uId = 1;
    wchar_t text[400]{};
    tool.lpszText = text;
    SendMessageW(search.found, TTM_GETTEXTW, 400, reinterpret_cast<LPARAM>(&tool));
    return narrow(text);
}

TEST(TipWindow, SaysWhatTheGripUnderTheMouseDoes) {
    TestSheet sheet({640, 480});
    const ctlRatioGrid& stencil = sheet.addStencil({100, 100, 400, 300}, 0, rgb(255, 0, 0));
    const std::pair<StencilGripKind, const char*> tips[] = {
        {StencilGripKind::move, "Move (Shift key: fixed directions; Ctrl key: align to grid)"},
        {StencilGripKind::rotate, "Rotate (Shift, Ctrl or Alt key: fixed angles)"},
        {StencilGripKind::size,
         "Resize (Shift key: snap to special ratio; Ctrl key: symmetric at center)"},
        {StencilGripKind::sizeCorner, "Resize, preserve ratio (Ctrl key: symmetric at center)"}};
    for (const auto& [kind, text] : tips) {
        const Point at = stencil.grips()[indexOfStencilGrip(kind, 0)].center();
        sheet.mouse(WM_MOUSEMOVE, 0, static_cast<int>(at.x), static_cast<int>(at.y));
        EXPECT_EQ(tipOf(sheet.window().handle()), text);
        sheet.mouse(WM_MOUSEMOVE, 0, 600, 20);
        EXPECT_EQ(tipOf(sheet.window().handle()), "");
    }
}

TEST(TipWindow, HasTheSizeOfTheSystemsTipsOnEachMonitor) {
    TestWindow owner;
    TipWindow tip(owner.handle());
    const auto textHeight = [&tip] {
        LOGFONTW face{};
        GetObjectW(reinterpret_cast<HFONT>(SendMessageW(tip.handle(), WM_GETFONT, 0, 0)),
                   sizeof face, &face);
        return face.lfHeight;
    };
    const auto widest = [&tip] { return SendMessageW(tip.handle(), TTM_GETMAXTIPWIDTH, 0, 0); };
    tip.setDpi(96);
    const LONG height = textHeight();
    EXPECT_NE(height, 0);
    EXPECT_EQ(widest(), 400);
    tip.setDpi(144);
    EXPECT_NEAR(textHeight(), height * 1.5, 1);
    EXPECT_EQ(widest(), 600);
    // A text takes the resolution of the monitor that the owner is on now.
    tip.setText("Move");
    EXPECT_EQ(widest(), MulDiv(400, static_cast<int>(GetDpiForWindow(owner.handle())), 96));
}

TEST(TipWindow, SpeaksGerman) {
    TestSheet sheet({640, 480});
    const ctlRatioGrid& stencil = sheet.addStencil({100, 100, 400, 300}, 0, rgb(255, 0, 0));
    MlSetLanguage(languageGerman, {});
    const Point at = stencil.grips()[0].center();
    sheet.mouse(WM_MOUSEMOVE, 0, static_cast<int>(at.x), static_cast<int>(at.y));
    EXPECT_EQ(tipOf(sheet.window().handle()),
              "Bewegen (Umschalt-Taste: feste Richtungen; Strg-Taste: am Raster ausrichten)");
    MlSetLanguage(languageEnglish, {});
}

TEST(TipWindow, ChangesItsLanguageUnderAMouseThatRests) {
    TestSheet sheet({640, 480});
    const ctlRatioGrid& stencil = sheet.addStencil({100, 100, 400, 300}, 0, rgb(255, 0, 0));
    const Point at = stencil.grips()[0].center();
    sheet.mouse(WM_MOUSEMOVE, 0, static_cast<int>(at.x), static_cast<int>(at.y));
    GetLanguageSupport().ChangeLanguage(languageGerman);
    EXPECT_EQ(tipOf(sheet.window().handle()),
              "Bewegen (Umschalt-Taste: feste Richtungen; Strg-Taste: am Raster ausrichten)");
    sheet.mouse(WM_MOUSEMOVE, 0, 600, 20);
    GetLanguageSupport().ChangeLanguage(languageEnglish);
    EXPECT_EQ(tipOf(sheet.window().handle()), "");
}

}  // namespace
}  // namespace ormala
