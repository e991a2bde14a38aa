#include "platform/win/clipboard.h"

#include "platform/win/monitors.h"

namespace ormala {

namespace {

using GlobalMemory = Handle<HGLOBAL, &GlobalFree>;

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
    const MemoryContext memory(CreateCompatibleDC(screen.get()));
    if (!bitmap || !memory) {
        return {};
    }
    {
        const Selected target(memory.get(), bitmap.get());
        copyScreen(memory.get(), screen.get(), area);
    }
    return packedPicture(screen.get(), bitmap.get(), size);
}

}  // namespace

ScreenPicture::ScreenPicture(const RECT& area)
    : size_{static_cast<int>(area.right - area.left), static_cast<int>(area.bottom - area.top)},
      memory_(pictureOfScreen(area)) {}

ScreenPicture::Answer ScreenPicture::putOnClipboard(HWND owner) {
    if (OpenClipboard(owner) == FALSE) {
        return Answer::held;
    }
    EmptyClipboard();
    const bool taken = SetClipboardData(CF_DIB, memory_.get()) != nullptr;
    if (taken) {
        // The system owns it from now on.
        static_cast<void>(memory_.release());
    }
    CloseClipboard();
    return taken ? Answer::taken : Answer::refused;
}

}  // namespace ormala
