#include "platform/win/BackBuffer.h"

#include <cstddef>

namespace ormala {

namespace {

bool fits(PixelSize size, PixelSize room) {
    constexpr int spare = 64;
    return size.width <= room.width && size.height <= room.height &&
           size.width > room.width - spare && size.height > room.height - spare;
}

}  // namespace

bool BackBuffer::resize(PixelSize size) {
    if (size == size_ || (context_ && fits(size, room_))) {
        size_ = size;
        return true;
    }
    context_.reset();
    bitmap_.reset();
    pixels_ = nullptr;
    size_ = {};
    if (size.width <= 0 || size.height <= 0) {
        return true;
    }
    BITMAPINFO info{};
    info.bmiHeader.biSize = sizeof info.bmiHeader;
    info.bmiHeader.biWidth = size.width;
    info.bmiHeader.biHeight = -size.height;
    info.bmiHeader.biPlanes = 1;
    info.bmiHeader.biBitCount = 32;
    info.bmiHeader.biCompression = BI_RGB;
    void* bits = nullptr;
    bitmap_.reset(CreateDIBSection(nullptr, &info, DIB_RGB_COLORS, &bits, nullptr, 0));
    if (!bitmap_) {
        return false;
    }
    pixels_ = static_cast<std::uint32_t*>(bits);
    context_.reset(CreateCompatibleDC(nullptr));
    SelectObject(context_.get(), bitmap_.get());
    size_ = size;
    room_ = size;
    return true;
}

PixelView BackBuffer::view() const {
    GdiFlush();
    return {pixels_, room_.width, pixels_ != nullptr ? size_ : PixelSize{}};
}

}  // namespace ormala
