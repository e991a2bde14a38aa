#include "toolkit/PanelDesign.h"

#include "toolkit/SettingControl.h"

namespace ormala {

namespace {

constexpr int commandWidth = 26;
constexpr int commandHeight = 24;
constexpr int barGap = 18;
constexpr int belowCommands = 7;
constexpr int bottomBandHeight = 4;

/// Of the button at that place in a bar.
int cornerStyleAt(std::size_t place, std::size_t count) {
    if (count == 1) {
        return 0;
    }
    if (place == 0) {
        return roundAtLeft;
    }
    return place + 1 == count ? roundAtRight : square;
}

}  // namespace

void PressAction::perform(SettingControl& panel, const Press& press) const {
    if (plain_ != nullptr) {
        (panel.*plain_)();
    } else if (pressed_ != nullptr) {
        (panel.*pressed_)(press);
    }
}

std::string PanelControl::fullName() const {
    return index ? std::string(name) + "(" + std::to_string(*index) + ")" : name;
}

PanelControl header(const char* name, const PixelRect& box, int caption, int tip) {
    return {.name = name, .part = PanelPart::header, .box = box, .caption = caption, .tip = tip};
}

PanelControl value(ControlId id, const char* name, const PixelRect& box, int tip) {
    return {.name = name, .id = id, .part = PanelPart::value, .box = box, .tip = tip};
}

PanelControl button(const char* name, int tip, Picture picture, PressAction press) {
    return button(CommonControl::none, name, tip, picture, press);
}

PanelControl button(ControlId id, const char* name, int tip, Picture picture, PressAction press,
                    PanelPart part) {
    return {.name = name, .id = id, .part = part, .tip = tip, .picture = picture, .press = press};
}

PanelControl step(const char* name, int index, int tip, Picture picture, PressAction press) {
    PanelControl made = button(CommonControl::none, name, tip, picture, press, PanelPart::step);
    made.index = index;
    return made;
}

void appendBar(std::vector<PanelControl>& controls, PixelRect place,
               const std::vector<PanelControl>& buttons) {
    std::size_t number = 0;
    for (PanelControl button : buttons) {
        button.box = place;
        button.cornerStyle = cornerStyleAt(number++, buttons.size());
        controls.push_back(button);
        place = {place.right, place.top, place.right + place.width(), place.bottom};
    }
}

void CommandRow::addBar(const std::vector<PanelControl>& buttons) {
    appendBar(controls_, {left_, top_, left_ + commandWidth, top_ + commandHeight}, buttons);
    left_ += static_cast<int>(buttons.size()) * commandWidth + barGap;
}

int CommandRow::panelHeight(int top) {
    return top + commandHeight + belowCommands;
}

PanelControl bottomBand(int panelHeight) {
    return {.name = "gradBottom",
            .part = PanelPart::bottomBand,
            .box = {0, panelHeight - bottomBandHeight, panelWidth, panelHeight}};
}

std::vector<PanelControl> titleControls(int captionRow, int deleteTip) {
    using enum CommonControl;
    constexpr int bandHeight = 22;
    constexpr int buttonWidth = 22;
    constexpr int firstButton = panelWidth - 4 - 4 * buttonWidth;
    std::vector<PanelControl> controls{{.name = "lblTitle",
                                        .id = lblTitle,
                                        .part = PanelPart::title,
                                        .box = {4, 0, 180, bandHeight},
                                        .caption = captionRow,
                                        .tip = 663}};
    appendBar(controls, {firstButton, 2, firstButton + buttonWidth, 20},
              {button(cmdPause, "cmdPause", 189, Picture::show, &SettingControl::togglePause,
                      PanelPart::toggle),
               button(cmdUndo, "cmdUndo", 207, Picture::undo, &SettingControl::Undo),
               button(cmdRedo, "cmdRedo", 208, Picture::redo, &SettingControl::Redo),
               button("cmdDelete", deleteTip, Picture::remove, &SettingControl::remove)});
    // Behind the others.
    controls.push_back(
        {.name = "gradTitle", .part = PanelPart::titleBand, .box = {0, 0, panelWidth, bandHeight}});
    return controls;
}

}  // namespace ormala
