#include "pictures/pictures.h"

#include <algorithm>
#include <cmath>
#include <cstddef>

#include "modAPI/drawingColors.h"
#include "pictures/PictureRaster.h"
#include "pictures/pictureTable.h"
#include "scene/pixelImages.h"

namespace ormala {

namespace {

std::uint32_t halfOpaque(Color color) {
    constexpr std::uint32_t upperHalf = 0x7F000000U;
    return opaquePixel(color) & ~upperHalf;
}

std::uint32_t argbOf(Ink ink) {
    switch (ink) {
        case Ink::ink:
            return opaquePixel(pictureInk::ink);
        case Ink::paper:
            return opaquePixel(pictureInk::paper);
        case Ink::shade:
            return opaquePixel(pictureInk::shade);
        case Ink::veil:
            return halfOpaque(pictureInk::paper);
        case Ink::accent:
            return opaquePixel(pictureInk::accent);
        case Ink::red:
            return opaquePixel(pictureInk::red);
        case Ink::plate:
            return opaquePixel(pictureInk::plate);
        case Ink::frame:
            return opaquePixel(pictureInk::frame);
        case Ink::quiet:
            return opaquePixel(pictureInk::quiet);
        case Ink::hole:
            break;
    }
    return 0;
}

/// Outlines never grow wide at the cost of what they surround.
int outlinePixels(double length) {
    return std::max(1, static_cast<int>(std::floor(length)));
}

/// A free line has the parity of the side, so that it can lie right in the middle.
int freeLinePixels(double length, int side) {
    constexpr double missing = 0.25;
    const int least = std::max(1, static_cast<int>(std::ceil(length - missing)));
    return least + (side - least) % 2;
}

/// Draws the layers of one picture on a square of the raster.
class PicturePainter {
  public:
    PicturePainter(PictureRaster& raster, int side, PixelPoint corner, Turn turn)
        : raster_(raster), side_(side), corner_(corner), turn_(turn) {}

    void paint(const Layer& layer) const {
        if (layer.stroke == Stroke::edged) {
            paintEdged(layer);
            return;
        }
        const int width = outlinePixels(scaled(layer.width));
        const std::vector<Contour> contours = placed(layer, width);
        switch (layer.stroke) {
            case Stroke::fill:
                raster_.fill(contours, argbOf(layer.ink));
                break;
            case Stroke::line:
                raster_.stroke(contours, width, argbOf(layer.ink));
                break;
            case Stroke::body:
                raster_.fill(contours, argbOf(layer.ink));
                raster_.stroke(contours, width, argbOf(Ink::ink));
                break;
            case Stroke::edged:
                break;
        }
    }

  private:
    [[nodiscard]] double scaled(double length) const { return length * side_ / GridFit::field; }

    /// Fitted to lines of that width, or with a width of 0 to the borders of pixels.
    [[nodiscard]] std::vector<Contour> placed(const Layer& layer, int width) const {
        std::vector<Contour> contours = readOutlines(layer.path, turn_, GridFit(side_, width));
        for (Contour& contour : contours) {
            for (Point& point : contour.points) {
                point = {point.x + corner_.x, point.y + corner_.y};
            }
        }
        return contours;
    }

    void paintEdged(const Layer& layer) const {
        const int width = freeLinePixels(scaled(layer.width), side_);
        std::vector<Contour> lines = placed(layer, width);
        std::vector<Contour> shapes = placed(layer, 0);
        std::erase_if(lines, [](const Contour& contour) { return contour.closed; });
        std::erase_if(shapes, [](const Contour& contour) { return !contour.closed; });
        const int edge = std::max(1, static_cast<int>(std::lround(scaled(1))));
        raster_.stroke(shapes, 2 * edge, argbOf(Ink::ink));
        raster_.stroke(lines, width + 2 * edge, argbOf(Ink::ink));
        raster_.fill(shapes, argbOf(layer.ink));
        raster_.stroke(lines, width, argbOf(layer.ink));
    }

    PictureRaster& raster_;
    int side_;
    PixelPoint corner_;
    Turn turn_;
};

}  // namespace

PixelImage drawPicture(Picture picture, PixelSize size) {
    PictureRaster raster(size);
    const int side = std::min(size.width, size.height);
    const PixelPoint corner{(size.width - side) / 2, (size.height - side) / 2};
    const Drawing drawing = drawingOf(picture);
    const PicturePainter painter(raster, side, corner, drawing.turn);
    for (const Layer& layer : drawing.layers) {
        painter.paint(layer);
    }
    return raster.reduced();
}

}  // namespace ormala
