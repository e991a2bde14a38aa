// Draws every picture of the buttons at the usual sizes on three grounds: a plain grey, the face of
// a button, and that face in grey only. Writes a portable pixmap to the standard output:
//
//     cmake --build --preset native --target contact_sheet
//     build/native/tests/widgets/contact_sheet > build/pictures.ppm
//     build/native/tests/widgets/contact_sheet 16 4 > build/pictures.ppm
//
// With two numbers it draws that one size, enlarged that many times.

#include <algorithm>
#include <array>
#include <cstdint>
#include <cstdlib>
#include <iostream>
#include <string>
#include <vector>

#include "pictures/pictures.h"

namespace {

using namespace ormala;

enum class Ground { plain, face, grey };

struct Pixel {
    int red;
    int green;
    int blue;
};

class Sheet {
  public:
    explicit Sheet(PixelSize size)
        : size_(size),
          pixels_(static_cast<std::size_t>(size.width) * static_cast<std::size_t>(size.height),
                  Pixel{0x60, 0x60, 0x60}) {}

    /// Each pixel of the picture becomes a square of `zoom`.
    void place(const PixelImage& image, PixelPoint at, Ground ground, int zoom) {
        for (int y = 0; y < image.size.height * zoom; ++y) {
            for (int x = 0; x < image.size.width * zoom; ++x) {
                const int index = y / zoom * image.size.width + x / zoom;
                at_({at.x + x, at.y + y}) =
                    blended(image.argb[static_cast<std::size_t>(index)],
                            groundAt(y / zoom, image.size.height, ground), ground);
            }
        }
    }

    void write(std::ostream& out) const {
        out << "P6 " << size_.width << ' ' << size_.height << " 255\n";
        for (const Pixel& pixel : pixels_) {
            for (const int part : {pixel.red, pixel.green, pixel.blue}) {
                out.put(static_cast<char>(part));
            }
        }
    }

  private:
    Pixel& at_(PixelPoint at) {
        return pixels_[static_cast<std::size_t>(at.y * size_.width + at.x)];
    }

    static Pixel groundAt(int row, int height, Ground ground) {
        const int level = ground == Ground::plain ? 0x70 : 0xA0 - 72 * row / height;
        return {level, level, level};
    }

    static Pixel blended(std::uint32_t argb, Pixel under, Ground ground) {
        const int alpha = static_cast<int>(argb >> 24);
        const auto mix = [&](int shift, int below) {
            const int over = static_cast<int>((argb >> shift) & 0xFFU);
            return (over * alpha + below * (255 - alpha)) / 255;
        };
        const Pixel mixed{mix(16, under.red), mix(8, under.green), mix(0, under.blue)};
        const int grey = (mixed.red * 54 + mixed.green * 183 + mixed.blue * 19) / 256;
        return ground == Ground::grey ? Pixel{grey, grey, grey} : mixed;
    }

    PixelSize size_;
    std::vector<Pixel> pixels_;
};

constexpr int gap = 6;
constexpr int columns = 15;
constexpr int rows = (pictureCount + columns - 1) / columns;

int blockHeight(int side) {
    return rows * (side + gap) + gap;
}

void placeAll(Sheet& sheet, int side, int zoom, int top, Ground ground) {
    for (int index = 0; index < pictureCount; ++index) {
        const int cell = side * zoom + gap;
        sheet.place(drawPicture(static_cast<Picture>(index), {side, side}),
                    {gap + index % columns * cell, top + gap + index / columns * cell}, ground,
                    zoom);
    }
}

void writeOneSize(int side, int zoom) {
    Sheet sheet({columns * (side * zoom + gap) + gap, blockHeight(side * zoom)});
    placeAll(sheet, side, zoom, 0, Ground::face);
    sheet.write(std::cout);
}

void writeAllSizes() {
    constexpr std::array sizes = {16, 20, 22, 24, 32, 48, 64};
    constexpr std::array grounds = {Ground::plain, Ground::face, Ground::grey};
    int height = 0;
    for (const int side : sizes) {
        height += 3 * blockHeight(side);
    }
    Sheet sheet({columns * (sizes.back() + gap) + gap, height});
    int top = 0;
    for (const int side : sizes) {
        for (const Ground ground : grounds) {
            placeAll(sheet, side, 1, top, ground);
            top += blockHeight(side);
        }
    }
    sheet.write(std::cout);
}

}  // namespace

int main(int count, char** arguments) {
    if (count == 3) {
        writeOneSize(std::max(1, std::stoi(arguments[1])), std::max(1, std::stoi(arguments[2])));
    } else {
        writeAllSizes();
    }
    return std::cout.flush() ? EXIT_SUCCESS : EXIT_FAILURE;
}
