#include "e2e/support/Clipboard.h"

#include <windows.h>

#include "e2e/support/StageFailure.h"
#include "support/win/WideText.h"

namespace ormala::test::clipboard {

namespace {

/// The clipboard, open; another program may hold it for a moment.
using OpenClipboardScope = Held;

/// Asks the system for the pixels, as a program does that pastes the picture as a bitmap.
std::vector<Color> pixelsOf(HBITMAP bitmap, int width, int height) {
    BITMAPINFO info{};
    info.bmiHeader.biSize = sizeof info.bmiHeader;
    info.bmiHeader.biWidth = width;
    info.bmiHeader.biHeight = -height;
    info.bmiHeader.biPlanes = 1;
    info.bmiHeader.biBitCount = 32;
    std::vector<Color> pixels(static_cast<std::size_t>(width) * static_cast<std::size_t>(height));
    const HDC screen = GetDC(nullptr);
    GetDIBits(screen, bitmap, 0, static_cast<UINT>(height), pixels.data(), &info, DIB_RGB_COLORS);
    ReleaseDC(nullptr, screen);
    for (Color& pixel : pixels) {
        pixel = (pixel & 0xFFU) << 16U | (pixel & 0xFF00U) | (pixel >> 16U & 0xFFU);
    }
    return pixels;
}

}  // namespace

Held::Held() {
    requireSoon("clipboard", [] { return OpenClipboard(nullptr) != FALSE; });
}

Held::~Held() {
    CloseClipboard();
}

void clear() {
    const OpenClipboardScope open;
    EmptyClipboard();
}

std::string text() {
    const OpenClipboardScope open;
    auto* const memory = GetClipboardData(CF_UNICODETEXT);
    const auto* const text =
        static_cast<const wchar_t*>(memory != nullptr ? GlobalLock(memory) : nullptr);
    if (text == nullptr) {
        return {};
    }
    const std::string copied = narrow(text);
    GlobalUnlock(memory);
    return copied;
}

std::optional<Picture> picture(ScreenPoint origin) {
    const OpenClipboardScope open;
    auto* const bitmap = static_cast<HBITMAP>(GetClipboardData(CF_BITMAP));
    BITMAP facts{};
    if (bitmap == nullptr || GetObjectW(bitmap, sizeof facts, &facts) == 0) {
        return std::nullopt;
    }
    const int width = static_cast<int>(facts.bmWidth);
    const int height = static_cast<int>(facts.bmHeight);
    return Picture({origin.x, origin.y, origin.x + width, origin.y + height},
                   pixelsOf(bitmap, width, height));
}

}  // namespace ormala::test::clipboard
