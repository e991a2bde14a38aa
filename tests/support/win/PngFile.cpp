#include "support/win/PngFile.h"

#include <windows.h>
// Need the system's basic types.
#include <objidl.h>
// Needs the types of COM.
#include <gdiplus.h>

#include <cstddef>
#include <cstdint>
#include <stdexcept>

namespace ormala::test {

namespace {

/// The system's library for pictures, for as long as it lives.
class PictureLibrary {
  public:
    PictureLibrary() {
        const Gdiplus::GdiplusStartupInput input;
        Gdiplus::GdiplusStartup(&token_, &input, nullptr);
    }
    ~PictureLibrary() { Gdiplus::GdiplusShutdown(token_); }
    PictureLibrary(const PictureLibrary&) = delete;
    PictureLibrary& operator=(const PictureLibrary&) = delete;

  private:
    ULONG_PTR token_ = 0;
};

/// The pixels of a bitmap as 0x00RRGGBB.
class LockedPixels {
  public:
    LockedPixels(Gdiplus::Bitmap& bitmap, UINT mode) : bitmap_(bitmap) {
        const Gdiplus::Rect all(0, 0, static_cast<int>(bitmap.GetWidth()),
                                static_cast<int>(bitmap.GetHeight()));
        valid_ = bitmap.GetLastStatus() == Gdiplus::Ok &&
                 bitmap.LockBits(&all, mode, PixelFormat32bppRGB, &data_) == Gdiplus::Ok;
    }
    ~LockedPixels() {
        if (valid_) {
            bitmap_.UnlockBits(&data_);
        }
    }
    LockedPixels(const LockedPixels&) = delete;
    LockedPixels& operator=(const LockedPixels&) = delete;

    [[nodiscard]] bool valid() const { return valid_; }
    [[nodiscard]] std::uint32_t* row(int y) const {
        return reinterpret_cast<std::uint32_t*>(static_cast<BYTE*>(data_.Scan0) +
                                                std::ptrdiff_t{y} * data_.Stride);
    }

  private:
    Gdiplus::Bitmap& bitmap_;
    Gdiplus::BitmapData data_{};
    bool valid_ = false;
};

/// Red and blue change their places.
constexpr Color turned(Color color) {
    return (color & 0xFFU) << 16U | (color & 0xFF00U) | (color >> 16U & 0xFFU);
}

/// The number by which the library knows its writer of PNG files.
constexpr CLSID pngWriter = {
    0x557cf406, 0x1a04, 0x11d3, {0x9a, 0x73, 0x00, 0x00, 0xf8, 0x1e, 0xf3, 0x2e}};

}  // namespace

void savePng(const Picture& picture, const std::filesystem::path& path) {
    const PictureLibrary library;
    const ScreenRect& rect = picture.rect();
    Gdiplus::Bitmap bitmap(rect.width(), rect.height(), PixelFormat32bppRGB);
    {
        const LockedPixels pixels(bitmap, Gdiplus::ImageLockModeWrite);
        for (int y = 0; y < rect.height(); ++y) {
            for (int x = 0; x < rect.width(); ++x) {
                pixels.row(y)[x] = turned(picture.at({rect.left + x, rect.top + y}));
            }
        }
    }
    if (bitmap.Save(path.c_str(), &pngWriter, nullptr) != Gdiplus::Ok) {
        throw std::runtime_error("cannot write the picture " + path.string());
    }
}

Picture loadPng(const std::filesystem::path& path) {
    const PictureLibrary library;
    Gdiplus::Bitmap bitmap(path.c_str());
    const LockedPixels read(bitmap, Gdiplus::ImageLockModeRead);
    if (!read.valid()) {
        throw std::runtime_error("cannot read the picture " + path.string());
    }
    const int width = static_cast<int>(bitmap.GetWidth());
    const int height = static_cast<int>(bitmap.GetHeight());
    std::vector<Color> pixels;
    pixels.reserve(static_cast<std::size_t>(width) * static_cast<std::size_t>(height));
    for (int y = 0; y < height; ++y) {
        for (int x = 0; x < width; ++x) {
            pixels.push_back(turned(read.row(y)[x]));
        }
    }
    return {{0, 0, width, height}, std::move(pixels)};
}

}  // namespace ormala::test
