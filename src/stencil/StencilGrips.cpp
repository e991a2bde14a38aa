#include "stencil/StencilGrips.h"

#include "modAPI/drawingColors.h"
#include "modAPI/transforms.h"

namespace ormala {

namespace {

/// (1 - cos(pi / 4)) / 2: the rotate grips lie on the circle about the centre whose radius is that
/// share of half the diagonal which is left.
constexpr double rotateGripShare = 0.14644660940672624;

Grip makeGrip(int size, ShapeKind kind, const GripColors& colors) {
    Grip grip;
    const auto side = static_cast<float>(size);
    grip.box = {0, 0, side, side, kind == ShapeKind::oval};
    grip.size = size;
    grip.kind = kind;
    grip.color = colors.pale;
    grip.pressedColor = colors.strong;
    grip.borderColor = sheetColor::stencilGripEdge;
    grip.focusBorder = plain::black;
    grip.selectedBorder = colors.strong;
    return grip;
}

/// Between which corners a grip lies, and how far along.
struct GripPlace {
    int from;
    int to;
    double share;
};

constexpr GripPlace movePlace{0, 3, 0.5};
constexpr GripPlace rotatePlaces[] = {{1, 2, rotateGripShare},
                                      {3, 0, rotateGripShare},
                                      {2, 1, rotateGripShare},
                                      {0, 3, rotateGripShare}};
constexpr GripPlace sizePlaces[] = {{0, 1, 0.5}, {1, 3, 0.5}, {2, 3, 0.5}, {2, 0, 0.5}};
constexpr GripPlace cornerPlaces[] = {{1, 1, 0}, {3, 3, 0}, {2, 2, 0}, {0, 0, 0}};

const GripPlace& placeOf(StencilGrip grip) {
    switch (grip.kind) {
        case StencilGripKind::rotate:
            return rotatePlaces[grip.number];
        case StencilGripKind::size:
            return sizePlaces[grip.number];
        case StencilGripKind::sizeCorner:
            return cornerPlaces[grip.number];
        case StencilGripKind::move:
            break;
    }
    return movePlace;
}

}  // namespace

StencilGrip stencilGrip(int index) {
    if (index == 0) {
        return {StencilGripKind::move, 0};
    }
    constexpr StencilGripKind kinds[] = {StencilGripKind::size, StencilGripKind::sizeCorner,
                                         StencilGripKind::rotate};
    return {kinds[(index - 1) / 4], (index - 1) % 4};
}

std::vector<Grip> makeStencilGrips() {
    constexpr int moveSize = 13;
    constexpr int sideSize = 9;
    std::vector<Grip> grips;
    grips.reserve(stencilGripCount);
    using namespace sheetColor;
    grips.push_back(makeGrip(moveSize, ShapeKind::roundedRectangle, moveGrip));
    for (int side = 0; side < 4; ++side) {
        const bool right = side == 1;
        grips.push_back(makeGrip(sideSize, ShapeKind::rectangle, right ? rightGrip : sideGrip));
    }
    for (int corner = 0; corner < 4; ++corner) {
        grips.push_back(makeGrip(sideSize, ShapeKind::rectangle, cornerGrip));
    }
    for (int corner = 0; corner < 4; ++corner) {
        grips.push_back(makeGrip(sideSize, ShapeKind::oval, rotateGrip));
    }
    return grips;
}

Point stencilGripPoint(StencilGrip grip, const StencilCorners& corners) {
    const GripPlace& place = placeOf(grip);
    return Interpolate(corners[static_cast<std::size_t>(place.from)],
                       corners[static_cast<std::size_t>(place.to)], place.share);
}

TipId stencilGripTip(StencilGripKind kind) {
    switch (kind) {
        case StencilGripKind::rotate:
            return 321;
        case StencilGripKind::size:
            return 322;
        case StencilGripKind::sizeCorner:
            return 323;
        case StencilGripKind::move:
            break;
    }
    return 320;
}

}  // namespace ormala
