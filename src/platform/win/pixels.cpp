#include "platform/win/pixels.h"

namespace ormala {

namespace {

/// Rows of 32 bits a pixel, from the top.
void copyRows(HDC context, PixelPoint to, PixelSize size, const std::uint32_t* pixels) {
    if (size.width <= 0 || size.height <= 0) {
        return;
    }
    BITMAPINFO info{};
    info.bmiHeader.biSize = sizeof info.bmiHeader;
    info.bmiHeader.biWidth = size.width;
    info.bmiHeader.biHeight = -size.height;
    info.bmiHeader.biPlanes = 1;
    info.bmiHeader.biBitCount = 32;
    info.bmiHeader.biCompression = BI_RGB;
    SetDIBitsToDevice(context, to.x, to.y, static_cast<DWORD>(size.width),
                      static_cast<DWORD>(size.height), 0, 0, 0, static_cast<UINT>(size.height),
                      pixels, &info, DIB_RGB_COLORS);
}

}  // namespace

void copyPixels(HDC context, const PixelImage& image) {
    copyRows(context, {0, 0}, image.size, image.argb.data());
}

void copyRow(HDC context, PixelPoint left, std::span<const std::uint32_t> pixels) {
    copyRows(context, left, {static_cast<int>(pixels.size()), 1}, pixels.data());
}

}  // namespace ormala
