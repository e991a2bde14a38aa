#include <windows.h>

#include <exception>
#include <optional>
#include <string_view>

#include "e2e/backdrop/BackdropWindow.h"
#include "support/win/Screen.h"
#include "support/win/WideText.h"

// The picture under everything, for the end-to-end tests.
//   backdrop LOOK [--tip TEXT] [--question TEXT]

namespace {

using namespace ormala::test;

constexpr int wrongUsage = 2;

/// The texts behind the options; none if there is an unknown option or one without its text.
std::optional<BackdropExtras> readExtras(int count, wchar_t** arguments) {
    BackdropExtras extras;
    for (int i = 2; i < count; i += 2) {
        const std::wstring_view option = arguments[i];
        if (i + 1 == count || (option != L"--tip" && option != L"--question")) {
            return std::nullopt;
        }
        (option == L"--tip" ? extras.tip : extras.question) = arguments[i + 1];
    }
    return extras;
}

int run(const BackdropLook& look, const BackdropExtras& extras) {
    screen::usePhysicalPixels();
    BackdropWindow backdrop(look, extras);
    backdrop.show();
    MSG message{};
    while (GetMessageW(&message, nullptr, 0, 0) > 0) {
        TranslateMessage(&message);
        DispatchMessageW(&message);
    }
    return static_cast<int>(message.wParam);
}

}  // namespace

int WINAPI wWinMain(HINSTANCE, HINSTANCE, wchar_t*, int) {
    const auto look = __argc > 1 ? lookFromText(narrow(__wargv[1])) : std::nullopt;
    const auto extras = readExtras(__argc, __wargv);
    if (!look || !extras) {
        return wrongUsage;
    }
    try {
        return run(*look, *extras);
    } catch (const std::exception&) {
        return 1;
    }
}
