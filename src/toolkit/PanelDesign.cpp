#include "toolkit/PanelDesign.h"

namespace ormala {

namespace {

constexpr int commandWidth = 26;
constexpr int commandHeight = 24;
constexpr int groupGap = 18;
constexpr int belowCommands = 7;
constexpr int bottomBandHeight = 4;

}  // namespace

void CommandRow::add(const char* name, int tip, std::optional<Picture> picture, int cornerStyle) {
    const PixelRect box{left_, top_, left_ + commandWidth, top_ + commandHeight};
    controls_.push_back({name, PanelPart::button, box, 0, tip, picture, cornerStyle});
    left_ += commandWidth;
}

void CommandRow::endGroup() {
    left_ += groupGap;
}

int CommandRow::panelHeight(int top) {
    return top + commandHeight + belowCommands;
}

PanelControl bottomBand(int panelHeight) {
    return {"gradBottom",
            PanelPart::bottomBand,
            {0, panelHeight - bottomBandHeight, panelWidth, panelHeight}};
}

std::vector<PanelControl> titleControls(int captionRow, int deleteTip) {
    constexpr int bandHeight = 22;
    constexpr int buttonTop = 2;
    constexpr int buttonBottom = 20;
    const auto button = [](int index) {
        constexpr int width = 22;
        constexpr int margin = 4;
        const int left = panelWidth - margin - (4 - index) * width;
        return PixelRect{left, buttonTop, left + width, buttonBottom};
    };
    return {
        {"lblTitle", PanelPart::title, {4, 0, 180, bandHeight}, captionRow},
        {"cmdPause", PanelPart::button, button(0), 0, 189, Picture::show, roundAtLeft},
        {"cmdUndo", PanelPart::button, button(1), 0, 207, Picture::undo, square},
        {"cmdRedo", PanelPart::button, button(2), 0, 208, Picture::redo, square},
        {"cmdDelete", PanelPart::button, button(3), 0, deleteTip, Picture::remove, roundAtRight},
        // Behind the others.
        {"gradTitle", PanelPart::titleBand, {0, 0, panelWidth, bandHeight}},
    };
}

}  // namespace ormala
