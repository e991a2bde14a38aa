#include <gtest/gtest.h>
#include <windows.h>

#include <commctrl.h>
#include <dwmapi.h>

#include <algorithm>
#include <map>
#include <string>
#include <utility>
#include <vector>

#include "dialogs/win/frmColor.h"
#include "measure/win/frmUnit.h"
#include "storage/win/WindowsCodePage.h"
#include "win/ModalPlayer.h"
#include "win/ModesStage.h"
#include "win/PlayedContrast.h"
#include "win/ReplacedImport.h"

// Frames and standard controls are dark, as the windows of the program are.

namespace ormala {

/// Where the program finds the functions of libraries that are loaded at run time.
extern decltype(&GetProcAddress) importedGetProcAddress __asm__("__imp_GetProcAddress");

namespace {

constexpr DWORD darkMode = 20;

/// Notes what windows ask of the compositor and of the themes.
class NotedLook {
  public:
    NotedLook() {
        attributes().clear();
        themes().clear();
    }

    [[nodiscard]] static bool isOn(HWND window, DWORD attribute) {
        return std::ranges::count(attributes(), std::pair{window, attribute}) == 1;
    }
    [[nodiscard]] static std::wstring themeOf(HWND window) { return themes()[window]; }

  private:
    using Replaced = test::ReplacedImport<importedGetProcAddress>;

    static std::vector<std::pair<HWND, DWORD>>& attributes() {
        static std::vector<std::pair<HWND, DWORD>> noted;
        return noted;
    }
    static std::map<HWND, std::wstring>& themes() {
        static std::map<HWND, std::wstring> noted;
        return noted;
    }
    static HRESULT WINAPI noteAttribute(HWND window, DWORD attribute, LPCVOID value, DWORD size) {
        if (size == sizeof(BOOL)) {
            std::erase(attributes(), std::pair{window, attribute});
            if (*static_cast<const BOOL*>(value) != FALSE) {
                attributes().emplace_back(window, attribute);
            }
        }
        return S_OK;
    }
    static HRESULT WINAPI noteTheme(HWND window, LPCWSTR name, LPCWSTR /*parts*/) {
        themes()[window] = name != nullptr ? name : L"";
        return S_OK;
    }
    static FARPROC WINAPI find(HMODULE library, LPCSTR name) {
        const auto function = [](auto* noting) {
            return reinterpret_cast<FARPROC>(reinterpret_cast<void*>(noting));
        };
        if (std::string_view(name) == "DwmSetWindowAttribute") {
            return function(&noteAttribute);
        }
        return std::string_view(name) == "SetWindowTheme" ? function(&noteTheme)
                                                          : Replaced::system()(library, name);
    }

    Replaced replaced_{&find};
};

class DarkWindows : public ModesStage {
  protected:
    /// Of the thread: those that have a title bar.
    static std::vector<HWND> framedWindows() {
        std::vector<HWND> found;
        EnumThreadWindows(
            GetCurrentThreadId(),
            [](HWND window, LPARAM list) -> BOOL {
                // The system has one for its own messages, wherever objects are handed over.
                const bool own = classNameOf(window) != "OleMainThreadWndClass";
                if (own && (GetWindowLongPtrW(window, GWL_STYLE) & WS_CAPTION) == WS_CAPTION) {
                    reinterpret_cast<std::vector<HWND>*>(list)->push_back(window);
                }
                return TRUE;
            },
            reinterpret_cast<LPARAM>(&found));
        return found;
    }

    NotedLook look_;
};

TEST_F(DarkWindows, EveryTitleBarIsDark) {
    start();
    const frmColor colors;
    const std::vector<HWND> framed = framedWindows();
    // Control window, frame, magnifier and the dialog.
    EXPECT_GE(framed.size(), 4U);
    for (const HWND window : framed) {
        EXPECT_TRUE(NotedLook::isOn(window, darkMode)) << classNameOf(window);
    }
    EXPECT_FALSE(NotedLook::isOn(program_->worksheet().handle(), darkMode));
}

TEST_F(DarkWindows, TheMagnifierComesAndGoesAtOnce) {
    start();
    const HWND lens = program_->view().lens().lens().handle();
    EXPECT_TRUE(NotedLook::isOn(lens, DWMWA_TRANSITIONS_FORCEDISABLED));
    EXPECT_FALSE(NotedLook::isOn(settings_->handle(), DWMWA_TRANSITIONS_FORCEDISABLED));
}

TEST_F(DarkWindows, ListsAndFieldsAreDark) {
    const WindowsCodePage codePage;
    const frmUnit units("Ormala", ".", codePage);
    std::vector<std::string> kinds;
    EnumChildWindows(
        units.handle(),
        [](HWND child, LPARAM list) -> BOOL {
            const std::string kind = classNameOf(child);
            if (kind == "ComboBox" || kind == "Edit" || kind == "ListBox") {
                reinterpret_cast<std::vector<std::string>*>(list)->push_back(kind);
                // The edit field within a combo field is drawn with it.
                const bool isInside = classNameOf(GetParent(child)) == "ComboBox";
                EXPECT_EQ(NotedLook::themeOf(child), isInside             ? L""
                                                     : kind == "ComboBox" ? L"DarkMode_CFD"
                                                                          : L"DarkMode_Explorer")
                    << kind;
                COMBOBOXINFO combo{};
                combo.cbSize = sizeof combo;
                if (kind == "ComboBox" && GetComboBoxInfo(child, &combo) != FALSE) {
                    EXPECT_EQ(NotedLook::themeOf(combo.hwndList), L"DarkMode_Explorer");
                }
            }
            return TRUE;
        },
        reinterpret_cast<LPARAM>(&kinds));
    EXPECT_GE(std::ranges::count(kinds, "ComboBox"), 1);
}

TEST_F(DarkWindows, HighContrastTakesTheDarkAwayAndGivesItBack) {
    start();
    const WindowsCodePage codePage;
    const frmUnit units("Ormala", ".", codePage);
    const HWND combo = FindWindowExW(units.handle(), nullptr, L"ComboBox", nullptr);
    ASSERT_NE(combo, nullptr);
    const PlayedContrast contrast;
    for (const bool on : {true, false}) {
        PlayedContrast::turn(on);
        for (const HWND window : framedWindows()) {
            EXPECT_EQ(NotedLook::isOn(window, darkMode), !on) << classNameOf(window);
        }
        EXPECT_EQ(NotedLook::themeOf(combo), on ? L"" : L"DarkMode_CFD");
    }
    // Made while it is on.
    PlayedContrast::turn(true);
    const frmColor colors;
    EXPECT_FALSE(NotedLook::isOn(colors.handle(), darkMode));
}

}  // namespace
}  // namespace ormala
