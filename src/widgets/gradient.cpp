#include "widgets/gradient.h"

#include "scene/pixelImages.h"

namespace ormala {

PixelImage gradientImage(const GradientDesign& design, PixelSize size,
                         SystemColorLookup systemColor) {
    PixelImage image = filledImage(size, 0);
    const bool falling = design.Orientation == 1;
    const int count = falling ? size.height : size.width;
    for (int i = 0; i < count; ++i) {
        const Color color = GradientColor(i, count, design.ColorTopLeft, design.ColorBottomRight,
                                          design.Reduce, systemColor);
        const PixelRect line =
            falling ? PixelRect{0, i, size.width, i + 1} : PixelRect{i, 0, i + 1, size.height};
        fillBox(image, line, opaquePixel(color));
    }
    return image;
}

}  // namespace ormala
