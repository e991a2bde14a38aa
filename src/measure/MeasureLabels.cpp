#include "measure/MeasureLabels.h"

#include <array>
#include <cmath>
#include <utility>

#include "measure/LabelAnchors.h"
#include "modAPI/angles.h"
#include "modAPI/constants.h"
#include "modAPI/drawingColors.h"
#include "modAPI/transforms.h"
#include "scene/Grip.h"

namespace ormala {

/// What the labels of one arrangement have in common.
struct MeasureLabels::Task {
    const MeasureState& state;
    const MeasureSigns& signs;
    const TextForm& form;
    const TextMeter& meter;
    bool lengths;
    bool angles;
};

namespace {

/// The circle's diameter at 96 DPI.
constexpr int circleSize = 61;
constexpr Pen circlePen{sheetColor::crossingGrip.pale, 0};

/// A light colour is unreadable on the white halo.
Color readable(Color line) {
    constexpr float light = 0.6F;
    return line >= 0 && Luminance(line) >= light ? plain::black : line;
}

void write(ctlLabel& label, std::string text, bool visible, const TextMeter& meter) {
    label.setCaption(std::move(text));
    label.fit(meter);
    label.setVisible(visible);
}

/// From four arcs, since only strokes can be dotted.
std::array<PixelPoint, 13> circleArcs(const PixelRect& box) {
    // 4 / 3 * (sqrt(2) - 1): the control points' share of the radius in the best quarter circle.
    constexpr double handleShare = 0.5522847498307936;
    const int radius = (box.width() - 1) / 2;
    const int handle = static_cast<int>(std::lround(radius * handleShare));
    const int x = box.left + radius;
    const int y = box.top + radius;
    return {{{x + radius, y},
             {x + radius, y - handle},
             {x + handle, y - radius},
             {x, y - radius},
             {x - handle, y - radius},
             {x - radius, y - handle},
             {x - radius, y},
             {x - radius, y + handle},
             {x - handle, y + radius},
             {x, y + radius},
             {x + handle, y + radius},
             {x + radius, y + handle},
             {x + radius, y}}};
}

}  // namespace

MeasureLabels::MeasureLabels() {
    for (ctlLabel* label : {&lengthA_, &lengthB_, &angle1_, &angle2_}) {
        label->setFontSize(readableFontSize);
    }
}

void MeasureLabels::arrange(const MeasureState& state, const MeasureSigns& signs, bool editMode,
                            const TextForm& form, const TextMeter& meter) {
    const Task task{state,
                    signs,
                    form,
                    meter,
                    editMode && signs.LabelsLengthVisible,
                    editMode && signs.LabelsAngleVisible};
    circle_.reset();
    if (state.Connected) {
        arrangeConnectedAngles(task);
    } else {
        arrangeSeparateAngles(task);
    }
    arrangeLengths(task);
}

void MeasureLabels::placeCircle(const Point& center, int diameter) {
    Grip shape;
    const auto side = static_cast<float>(diameter);
    shape.box = {0, 0, side, side, true};
    shape.place(center);
    const PixelRect box = shape.pixels();
    if (!box.empty()) {
        circle_ = box;
    }
}

void MeasureLabels::arrangeConnectedAngles(const Task& task) {
    const MeasureState& state = task.state;
    const double aToB = AngleAToB(state);
    const double bToA = AngleBToA(state);
    const auto text = [&](double angle) {
        return angleText(angle, task.signs.Number, task.signs.units, task.form);
    };
    // The smaller angle only.
    write(angle1_, text(bToA), task.angles && bToA < aToB, task.meter);
    write(angle2_, text(aToB), task.angles && aToB <= bToA, task.meter);

    const Point center = IntersectPoint(state);
    const int diameter = task.meter.scale().oddPixels(circleSize);
    const double radius = diameter / 2.0;
    if (task.angles) {
        placeCircle(center, diameter);
    }
    const double angleA = AngleOfLine(state.LineA);
    const double angleB = AngleOfLine(state.LineB);
    const double bisector = (angleA + angleB) / 2;
    const auto put = [&](ctlLabel& label, double direction) {
        const Point place{center.x - std::cos(direction) * radius,
                          center.y + std::sin(direction) * radius};
        PlaceLabelByAnchor(label, place, LabelAnchorForAngle(direction), false, task.meter);
    };
    const bool firstOpposite = angleB < angleA;
    put(firstOpposite ? angle1_ : angle2_, bisector);
    put(firstOpposite ? angle2_ : angle1_, bisector + pi);
}

void MeasureLabels::arrangeSeparateAngles(const Task& task) {
    const MeasureState& state = task.state;
    write(angle1_, bothAnglesText(state, task.signs.Number, task.signs.units, task.form),
          task.angles, task.meter);
    const Point between =
        Interpolate(PointOnLine(state.LineB, 0.5), PointOnLine(state.LineA, 0.5), 0.5);
    PlaceLabelByAnchor(angle1_, between, Anchor::centre, false, task.meter);
    angle2_.setVisible(false);
}

void MeasureLabels::arrangeLengths(const Task& task) {
    const MeasureState& state = task.state;
    const MeasureSigns& signs = task.signs;
    write(lengthA_, lengthTextA(state, signs.Number, signs.units, task.form), task.lengths,
          task.meter);
    write(lengthB_, lengthTextB(state, signs.Number, signs.units, task.form), task.lengths,
          task.meter);
    lengthA_.setForeColor(readable(signs.ColorA));
    lengthB_.setForeColor(readable(signs.ColorB));
    const Point a = PointOnLine(state.LineA, 0.5);
    const Point b = PointOnLine(state.LineB, 0.5);
    PlaceLabelByAnchor(lengthA_, a, LabelAnchorForLength(a, SlopeOfLine(state.LineA), b), true,
                       task.meter);
    PlaceLabelByAnchor(lengthB_, b, LabelAnchorForLength(b, SlopeOfLine(state.LineB), a), true,
                       task.meter);
}

void MeasureLabels::draw(Canvas& canvas) const {
    if (circle_ && circle_->meets(canvas.visible())) {
        canvas.bezier(circlePen, circleArcs(*circle_));
    }
    for (const ctlLabel* label : {&angle1_, &angle2_, &lengthA_, &lengthB_}) {
        label->draw(canvas);
    }
}

void MeasureLabels::addTo(DirtyRegion& region) const {
    if (circle_) {
        region.addOutline(*circle_, circlePen.width());
    }
    for (const ctlLabel* label : {&angle1_, &angle2_, &lengthA_, &lengthB_}) {
        label->addTo(region);
    }
}

}  // namespace ormala
