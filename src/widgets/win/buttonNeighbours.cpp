#include "widgets/win/buttonNeighbours.h"

#include <array>
#include <string_view>
#include <vector>

#include "platform/win/regions.h"
#include "widgets/buttonRows.h"

namespace ormala {

namespace {

bool isButton(HWND window) {
    std::array<wchar_t, 32> name{};
    const int length = GetClassNameW(window, name.data(), static_cast<int>(name.size()));
    return std::wstring_view(name.data(), static_cast<std::size_t>(length)) == L"ZelvikButtonXP";
}

bool canBePressed(HWND window) {
    return isButton(window) && IsWindowVisible(window) != FALSE && IsWindowEnabled(window) != FALSE;
}

PixelRect placeOfButton(HWND window) {
    RECT place{};
    GetWindowRect(window, &place);
    return fromRect(place);
}

}  // namespace

HWND neighbourOfButton(HWND focus, int key) {
    if (focus == nullptr || !isButton(focus)) {
        return nullptr;
    }
    std::vector<HWND> buttons{focus};
    std::vector<PixelRect> places{placeOfButton(focus)};
    for (HWND each = GetWindow(focus, GW_HWNDFIRST); each != nullptr;
         each = GetWindow(each, GW_HWNDNEXT)) {
        if (each != focus && canBePressed(each)) {
            buttons.push_back(each);
            places.push_back(placeOfButton(each));
        }
    }
    const auto next = buttonBeside(places, 0, key);
    return next ? buttons[*next] : nullptr;
}

}  // namespace ormala
