#include "pictures/linePicture.h"

#include <algorithm>

#include "modAPI/drawingColors.h"
#include "scene/Canvas.h"
#include "scene/pixelImages.h"

namespace ormala {

namespace {

/// Pixels drawn and pixels left out, short enough to be told apart in a narrow picture.
struct Rhythm {
    int on;
    int off;
};

Rhythm rhythmOf(int lineCode) {
    if (lineCode <= 0) {
        return {2, 2};
    }
    return lineCode == 1 ? Rhythm{5, 3} : Rhythm{1, 0};
}

}  // namespace

PixelImage drawLinePicture(int lineCode, PixelSize size) {
    if (size.width < 1 || size.height < 1) {
        return {};
    }
    PixelImage image = filledImage(size, opaquePixel(plain::white));
    const int lineWidth = std::min(Pen{0, lineCode}.width(), size.height);
    const int top = (size.height - lineWidth) / 2;
    const int margin = size.width / 8;
    const Rhythm rhythm = rhythmOf(lineCode);
    for (int y = top; y < top + lineWidth; ++y) {
        for (int x = margin; x < size.width - margin; ++x) {
            if ((x - margin) % (rhythm.on + rhythm.off) < rhythm.on) {
                fillBox(image, {x, y, x + 1, y + 1}, opaquePixel(plain::black));
            }
        }
    }
    return image;
}

}  // namespace ormala
