#include "platform/win/clipboard.h"

#include <cstring>

#include "platform/win/monitors.h"
#include "platform/win/text.h"

namespace ormala {

namespace {

/// 24 bits a pixel: programs differ in what they make of a fourth byte.
BITMAPINFOHEADER headerOf(SIZE size) {
    constexpr WORD bits = 24;
    BITMAPINFOHEADER header{};
    header.biSize = sizeof header;
    header.biWidth = size.cx;
    header.biHeight = size.cy;
    header.biPlanes = 1;
    header.biBitCount = bits;
    header.biCompression = BI_RGB;
    const LONG rowBytes = (size.cx * bits + 31) / 32 * 4;
    header.biSizeImage = static_cast<DWORD>(rowBytes * size.cy);
    return header;
}

/// The form of a picture that every program knows, and that the system makes the others from.
GlobalMemory packedPicture(HDC screen, HBITMAP bitmap, SIZE size) {
    const BITMAPINFOHEADER header = headerOf(size);
    GlobalMemory memory(GlobalAlloc(GMEM_MOVEABLE, sizeof header + header.biSizeImage));
    auto* packed = static_cast<BYTE*>(memory ? GlobalLock(memory.get()) : nullptr);
    if (packed == nullptr) {
        return {};
    }
    auto* info = reinterpret_cast<BITMAPINFO*>(packed);
    info->bmiHeader = header;
    const int rows = GetDIBits(screen, bitmap, 0, static_cast<UINT>(size.cy),
                               packed + sizeof header, info, DIB_RGB_COLORS);
    GlobalUnlock(memory.get());
    return rows == size.cy ? std::move(memory) : GlobalMemory();
}

/// A copy from beyond the screens can fail as a whole, so only the part on them is asked for.
void copyScreen(HDC target, HDC screen, const RECT& area) {
    PatBlt(target, 0, 0, area.right - area.left, area.bottom - area.top, BLACKNESS);
    const RECT screens = virtualScreen();
    RECT part{};
    if (IntersectRect(&part, &area, &screens) != FALSE) {
        BitBlt(target, part.left - area.left, part.top - area.top, part.right - part.left,
               part.bottom - part.top, screen, part.left, part.top, SRCCOPY | CAPTUREBLT);
    }
}

GlobalMemory pictureOfScreen(const RECT& area) {
    const SIZE size{area.right - area.left, area.bottom - area.top};
    const WindowContext screen(nullptr);
    const BitmapHandle bitmap(CreateCompatibleBitmap(screen.get(), size.cx, size.cy));
    const ContextHandle memory(CreateCompatibleDC(screen.get()));
    if (!bitmap || !memory) {
        return {};
    }
    {
        const Selected target(memory.get(), bitmap.get());
        copyScreen(memory.get(), screen.get(), area);
    }
    return packedPicture(screen.get(), bitmap.get(), size);
}

/// In the system's own form, with its end.
GlobalMemory memoryOf(const std::wstring& text) {
    const std::size_t bytes = (text.size() + 1) * sizeof(wchar_t);
    GlobalMemory memory(GlobalAlloc(GMEM_MOVEABLE, bytes));
    void* const place = memory ? GlobalLock(memory.get()) : nullptr;
    if (place == nullptr) {
        return {};
    }
    std::memcpy(place, text.c_str(), bytes);
    GlobalUnlock(memory.get());
    return memory;
}

ClipboardAnswer putOnClipboard(HWND owner, UINT format, GlobalMemory& memory) {
    if (!memory) {
        return ClipboardAnswer::refused;
    }
    const Clipboard clipboard(owner);
    if (!clipboard.isOpen()) {
        return ClipboardAnswer::held;
    }
    return clipboard.put(format, memory) ? ClipboardAnswer::taken : ClipboardAnswer::refused;
}

}  // namespace

Clipboard::~Clipboard() {
    if (isOpen_) {
        CloseClipboard();
    }
}

bool Clipboard::put(UINT format, GlobalMemory& memory) const {
    if (!isOpen_ || EmptyClipboard() == FALSE ||
        SetClipboardData(format, memory.get()) == nullptr) {
        return false;
    }
    static_cast<void>(memory.release());
    return true;
}

ScreenPicture::ScreenPicture(const RECT& area)
    : size_{static_cast<int>(area.right - area.left), static_cast<int>(area.bottom - area.top)},
      memory_(pictureOfScreen(area)) {}

ClipboardAnswer ScreenPicture::putOnClipboard(HWND owner) {
    return ormala::putOnClipboard(owner, CF_DIB, memory_);
}

ClipboardAnswer putTextOnClipboard(HWND owner, std::string_view text) {
    GlobalMemory memory = memoryOf(wide(text));
    return putOnClipboard(owner, CF_UNICODETEXT, memory);
}

}  // namespace ormala
