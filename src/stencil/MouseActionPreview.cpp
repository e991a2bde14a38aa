#include "stencil/MouseActionPreview.h"

#include "modAPI/angles.h"
#include "modAPI/constants.h"
#include "modAPI/drawingColors.h"
#include "modAPI/rectangles.h"
#include "modAPI/transforms.h"
#include "scene/strokes.h"

namespace ormala {

namespace {

constexpr double arrowLength = 20;
constexpr double arrowAngle = pi / 8;
/// Two pixels wide.
constexpr int arrowLineCode = 3;

// The steps at which the picture of the mouse changes.
constexpr int pressAfter = 6;
constexpr int moveFrom = 10;
constexpr int standFrom = 22;
constexpr int releaseAfter = 26;
constexpr int endAt = 33;
/// The divisor of the first move; it falls by one at each, so that the picture speeds up.
constexpr double slowest = 18.5;

using pictureInk::ink;
using pictureInk::paper;

void drawMouse(Canvas& canvas, PixelPoint at, bool buttonDown) {
    const PixelRect body{at.x + 2, at.y + 2, at.x + 32, at.y + 42};
    const int split = at.y + 18;
    const int middle = at.x + 17;
    canvas.shape({ShapeKind::roundedRectangle, body, ink, 2, paper});
    if (buttonDown) {
        canvas.shape({ShapeKind::roundedRectangle,
                      {body.left, body.top, middle + 1, split + 1},
                      ink,
                      2,
                      sheetColor::pressedMouseButton});
    }
    const Pen pen{ink, arrowLineCode};
    canvas.line(pen, {body.left + 2, split}, {body.right - 2, split});
    canvas.line(pen, {middle, body.top + 2}, {middle, split});
    canvas.shape(
        {ShapeKind::roundedRectangle, {middle - 3, at.y + 8, middle + 3, at.y + 15}, ink, 1, ink});
}

}  // namespace

void MouseActionPreview::arrange(const Rect& rectBound, bool show) {
    const Point end{rectBound.right, rectBound.bottom};
    lines_[0] = {rectBound.left, rectBound.top, end.x, end.y};
    const double back = AngleOf(end.x, end.y, rectBound.left, rectBound.top);
    const auto barb = [&](double angle) {
        const Point tip = RotatePoint(end.x, end.y, end.x + arrowLength, end.y, angle);
        return Line{end.x, end.y, tip.x, tip.y};
    };
    lines_[1] = barb(back - arrowAngle);
    lines_[2] = barb(back + arrowAngle);
    linesVisible_ = show;
}

void MouseActionPreview::start(const Rect& rectBound) {
    arrange(rectBound, true);
    picture_ = {rectBound.left - pictureSize.width, rectBound.top - pictureSize.height};
    mouseVisible_ = true;
    buttonDown_ = false;
    step_ = 0;
    running_ = true;
}

void MouseActionPreview::tick(const Rect& rectBound) {
    ++step_;
    if (step_ >= endAt) {
        running_ = false;
        mouseVisible_ = false;
        linesVisible_ = false;
    } else if (step_ < moveFrom) {
        buttonDown_ = buttonDown_ || step_ > pressAfter;
    } else if (step_ < standFrom) {
        const double q = slowest - (step_ - (moveFrom - 1));
        picture_.x += (pictureSize.width + RectWidth(rectBound)) / q;
        picture_.y += (pictureSize.height + RectHeight(rectBound)) / q;
    } else if (step_ > releaseAfter) {
        buttonDown_ = false;
    }
}

void MouseActionPreview::draw(Canvas& canvas, Color color) const {
    if (linesVisible_) {
        const Pen pen{color, arrowLineCode};
        for (const Line& line : lines_) {
            DrawSegment(canvas, pen, {line.x1, line.y1}, {line.x2, line.y2});
        }
    }
    if (mouseVisible_) {
        const PixelRect area = canvas.visible().grown(pictureSize.height);
        const PixelRect at = pixelsOf({picture_.x, picture_.y, picture_.x, picture_.y}, area);
        if (!at.empty()) {
            drawMouse(canvas, {at.left, at.top}, buttonDown_);
        }
    }
}

void MouseActionPreview::addTo(DirtyRegion& region, const PixelRect& area) const {
    if (linesVisible_) {
        for (const Line& line : lines_) {
            region.addStroke({0, arrowLineCode}, {line.x1, line.y1}, {line.x2, line.y2}, area);
        }
    }
    if (mouseVisible_) {
        region.add(pixelsOf({picture_.x, picture_.y, picture_.x + pictureSize.width,
                             picture_.y + pictureSize.height},
                            area));
    }
}

}  // namespace ormala
