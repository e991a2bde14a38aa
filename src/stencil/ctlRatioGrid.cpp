#include "stencil/ctlRatioGrid.h"

#include <cmath>

#include "modAPI/constants.h"
#include "modAPI/rectangles.h"
#include "stencil/PatternTable.h"
#include "stencil/StencilPainter.h"

namespace ormala {

namespace {

constexpr int sectionDoubleId = 6;

}  // namespace

ctlRatioGrid::ctlRatioGrid(ToolHost& host, const ToolSettings& settings,
                           const SpecialRatios& ratios)
    : GripTool(host, GripSet(makeStencilGrips())),
      settings_(settings),
      ratios_(ratios),
      history_(state_, [this](const StencilState& state) { load(state); }) {
    setDefaultState();
    gripSet().setBorderColors(HasFocus(), Selected());
}

ctlRatioGrid::~ctlRatioGrid() {
    if (mouseAction_.running()) {
        host().runTimer(mouseActionTicking_, MouseActionPreview::interval, false);
    }
}

void ctlRatioGrid::setDefaultState() {
    state_.RotationAngle = 0;
    state_.PatternList = {};
    state_.PatternList[0].Pattern = PatternIndexFromId(sectionDoubleId);
}

void ctlRatioGrid::SetDefaultProperties() {
    setDefaultState();
    refresh();
}

void ctlRatioGrid::setColor(ormala::Color color) {
    color_ = color;
    refresh();
}

void ctlRatioGrid::setPatternList(const ormala::PatternList& patterns) {
    state_.PatternList = patterns;
    refresh();
}

void ctlRatioGrid::setRectBound(const Rect& rect) {
    state_.RectBound = rect;
    PositionAll();
}

void ctlRatioGrid::setRotationAngle(double angle) {
    state_.RotationAngle = angle;
    PositionAll();
}

void ctlRatioGrid::PositionAll() {
    if (changing()) {
        return;
    }
    PositionGrips();
    if (mouseAction_.linesVisible()) {
        mouseAction_.arrange(state_.RectBound, true);
    }
    refresh();
}

void ctlRatioGrid::PositionGrips() {
    const StencilCorners corners = ComputeCorners(state_);
    for (int i = 0; i < grips().count(); ++i) {
        gripSet().place(i, stencilGripPoint(stencilGrip(i), corners));
    }
    if (const auto active = grips().active()) {
        aids_.update(state_, stencilGripPoint(stencilGrip(*active), corners), host().textMeter());
    }
}

void ctlRatioGrid::addItemsTo(DirtyRegion& region, const PixelRect& area) const {
    addPatternsTo(region, state_, pen(), turned(), area);
    aids_.addTo(region, area);
    mouseAction_.addTo(region, area);
}

bool ctlRatioGrid::turned() const {
    return !mouseAction_.running() && !previewMouseAction_;
}

void ctlRatioGrid::draw(Canvas& canvas) const {
    drawPatterns(canvas, state_, pen(), turned());
    aids_.drawBelowGrips(canvas);
    grips().draw(canvas);
    mouseAction_.draw(canvas, color_);
    aids_.drawAboveGrips(canvas);
}

void ctlRatioGrid::resize(PixelSize size) {
    aids_.resize(size);
    GripTool::resize(size);
}

void ctlRatioGrid::CenterToScreen(bool alignToGrid, double offset, bool fitWorksheet,
                                  bool defaultSize) {
    const double width = sheet().width;
    const double height = sheet().height;
    if (defaultSize) {
        const PatternRecord* first = patternOfSlot(state_.PatternList[0]);
        const double ratio = first != nullptr && first->DefaultRatio != 0 ? first->DefaultRatio : 1;
        state_.RectBound = defaultRectBound(height, ratio);
    }
    if (fitWorksheet) {
        state_.RectBound = {0, 0, width - 1, height - 1};
    } else {
        Point target{std::floor(width / 2) + offset, std::floor(height / 2) + offset};
        if (alignToGrid) {
            SnapToGrid(target.x, target.y, settings_.grid);
        }
        CenterRectOn(state_.RectBound, target);
    }
    PositionAll();
}

void ctlRatioGrid::ModifyAngle(bool negative, AngleStep stepKind) {
    setRotationAngle(modifiedAngle(state_.RotationAngle, negative, stepKind));
}

void ctlRatioGrid::gotFocus() {
    skipNextMove_ = true;
    GripTool::gotFocus();
}

void ctlRatioGrid::setPreviewMouseAction(bool preview) {
    if (previewMouseAction_ == preview) {
        return;
    }
    previewMouseAction_ = preview;
    if (!mouseAction_.running()) {
        mouseAction_.arrange(state_.RectBound, preview);
    }
    refresh();
}

void ctlRatioGrid::ShowMouseAction() {
    mouseAction_.start(state_.RectBound);
    host().runTimer(mouseActionTicking_, MouseActionPreview::interval, true);
    refresh();
}

void ctlRatioGrid::playMouseAction() {
    mouseAction_.tick(state_.RectBound);
    if (!mouseAction_.running()) {
        host().runTimer(mouseActionTicking_, MouseActionPreview::interval, false);
    }
    refresh();
}

void ctlRatioGrid::load(const StencilState& state) {
    state_ = state;
    PositionAll();
    events().change.raise();
}

}  // namespace ormala
