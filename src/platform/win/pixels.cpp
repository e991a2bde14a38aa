#include "platform/win/pixels.h"

namespace ormala {

void copyPixels(HDC context, const PixelImage& image) {
    const auto [width, height] = image.size;
    if (width <= 0 || height <= 0) {
        return;
    }
    BITMAPINFO info{};
    info.bmiHeader.biSize = sizeof info.bmiHeader;
    info.bmiHeader.biWidth = width;
    info.bmiHeader.biHeight = -height;
    info.bmiHeader.biPlanes = 1;
    info.bmiHeader.biBitCount = 32;
    info.bmiHeader.biCompression = BI_RGB;
    SetDIBitsToDevice(context, 0, 0, static_cast<DWORD>(width), static_cast<DWORD>(height), 0, 0, 0,
                      static_cast<UINT>(height), image.argb.data(), &info, DIB_RGB_COLORS);
}

}  // namespace ormala
