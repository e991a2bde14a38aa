#include "dialogs/win/GridPage.h"

#include "language/MlStringModule.h"
#include "platform/win/fills.h"
#include "platform/win/regions.h"
#include "scene/dpi.h"
#include "widgets/lookColors.h"
#include "widgets/win/labeling.h"

namespace ormala {

namespace {

enum GridId {
    idGridMode = 11,
    idSizeX = 21,
    idSizeY,
    idSameSize,
    idOffsetX,
    idOffsetY,
    idSameOffset,
    idLineLabel,
    idLineSelect,
    idColorLabel,
    idColor
};

}  // namespace

GridPage::GridPage(HWND parent, int id, BackgroundGrid& grid)
    : OptionsPage(parent, id, 1),
      grid_(grid),
      size_{{grid.steps.stepX, grid.steps.stepY}, {}, {}, {}},
      offset_{{grid.steps.originX, grid.steps.originY}, {}, {}, {}} {
    make(optGridMode_, {idGridMode, "optGridMode", gridStyleChoices, 1}, grid.style);
    size_.x = makeSlider(idSizeX, "sldGridSizeX", gridSizeRange);
    size_.y = makeSlider(idSizeY, "sldGridSizeY", gridSizeRange);
    size_.same = makeCheck(idSameSize, "chkSameGridSizeXY");
    offset_.x = makeSlider(idOffsetX, "sldGridOffsetX", gridOffsetRange);
    offset_.y = makeSlider(idOffsetY, "sldGridOffsetY", gridOffsetRange);
    offset_.same = makeCheck(idSameOffset, "chkSameGridOffsetXY");
    bind(size_);
    bind(offset_);
    makeLook();
}

void GridPage::makeLook() {
    makeLabel(lblGridLine_, idLineLabel, "lblGridLine");
    GridLineSelect_ = std::make_unique<ctlLineSelect>(handle(), idLineSelect, "GridLineSelect");
    GridLineSelect_->setTakesEnter(false);
    add("GridLineSelect", [this](const PixelRect& box, int dpi) {
        GridLineSelect_->setDpi(dpi);
        GridLineSelect_->place(box);
    });
    whenShown([this] { GridLineSelect_->setLineIndex(grid_.lineWidth); });
    whenChanged(GridLineSelect_->Change,
                [this] { grid_.lineWidth = GridLineSelect_->LineIndex(); });
    makeLabel(lblGridColor_, idColorLabel, "lblGridColor");
    colpicGrid_ = std::make_unique<ColorPic>(handle(), idColor, "colpicGrid");
    colpicGrid_->setPictureIndex(palette::hues);
    add("colpicGrid", [this](const PixelRect& box, int) { colpicGrid_->place(box); });
    whenShown([this] { colpicGrid_->setRGBColor(grid_.color); });
    whenChanged(colpicGrid_->RGBChanged, [this] {
        grid_.color = colpicGrid_->RGBColor();
        showColor();
    });
}

void GridPage::bind(Pair& pair) {
    whenShown([&pair] {
        pair.values.begin();
        pair.same->setChecked(pair.values.coupled());
        pair.show();
    });
    whenChanged(pair.x->Change, [&pair] {
        pair.values.setX(wholeValue(pair.x->Value()));
        pair.showCopy(*pair.y, pair.values.y());
    });
    whenChanged(pair.y->Change, [&pair] {
        pair.values.setY(wholeValue(pair.y->Value()));
        pair.showCopy(*pair.x, pair.values.x());
    });
    whenChanged(pair.same->Change, [&pair] {
        pair.values.couple(pair.same->checked());
        pair.showCopy(*pair.y, pair.values.y());
    });
}

void GridPage::Pair::show() const {
    x->setValue(static_cast<float>(values.x()));
    y->setValue(static_cast<float>(values.y()));
}

/// The handle that the user holds stays where it is between two whole numbers.
void GridPage::Pair::showCopy(ctlSlider& slider, int value) const {
    if (values.coupled()) {
        slider.setValue(static_cast<float>(value));
    }
}

void GridPage::ApplyLanguage() {
    const std::string selectColor = MlString(6, "Select color");
    label(*offset_.same, 90);
    label(*size_.same, 90);
    colpicGrid_->SetTooltip(selectColor);
    label(lblGridColor_.handle(), 91);
    label(lblGridLine_.handle(), 92);
    GridLineSelect_->SetTooltip(MlString(43, "Select line width and style"));
    label(optGridMode_[0], 88);
    label(optGridMode_[1], 89);
    label(*size_.x, 223);
    label(*size_.y, 224);
    label(*offset_.x, 225);
    label(*offset_.y, 226);
}

void GridPage::showColor() const {
    const RECT area = toRect(placeOf("picGridColor"));
    InvalidateRect(handle(), &area, FALSE);
}

/// The palette in a frame, and beneath it the colour, which need not be one of the palette.
void GridPage::paint(HDC context) {
    const int line = lineWidthAt(dpi());
    frameRect(context, placeOf("colpicGrid").grown(line), line, dark::outline);
    const PixelRect shown = placeOf("picGridColor");
    fillRect(context, toRect(shown), grid_.color);
    frameRect(context, shown.grown(line), line, dark::outline);
}

}  // namespace ormala
