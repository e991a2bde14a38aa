#include "app/win/shell/CommandBar.h"

#include "app/modes.h"
#include "language/MlStringModule.h"
#include "widgets/lookColors.h"

namespace ormala {

namespace {

/// Above the IDs of the commands.
enum BarId { idGround = 100, idPath, idInfo };

constexpr int pictureSize = 16;

}  // namespace

CommandBar::CommandBar(const Window& parent)
    : gradToolbar_(parent.handle(), idGround, "gradToolbar"),
      growth_(parent),
      lblPath_(parent.handle(), idPath, "lblPath"),
      lblInfo_(parent.handle(), idInfo, "lblInfo") {
    gradToolbar_.setColorTopLeft(dark::toolbarTop);
    gradToolbar_.setColorBottomRight(dark::ground);
    for (const CommandDesign& design : commandDesigns()) {
        makeButton(parent.handle(), design);
    }
    // The first child of a window lies in front of the others.
    SetWindowPos(gradToolbar_.handle(), HWND_BOTTOM, 0, 0, 0, 0,
                 SWP_NOMOVE | SWP_NOSIZE | SWP_NOACTIVATE);
    lblInfo_.setBackColor(dark::ground);
    lblInfo_.setTextColor(dark::text);
    lblInfo_.setVisible(false);
}

void CommandBar::makeButton(HWND parent, const CommandDesign& design) {
    const int id = static_cast<int>(design.command) + 1;
    auto made = std::make_unique<ZelvikButtonXP>(parent, id, design.name);
    made->setPicture(
        [picture = design.picture](PixelSize size) { return drawPicture(picture, size); });
    made->setPictureSize(pictureSize, pictureSize);
    made->setBackColor(dark::off);
    made->setPlaneFace(toolbarCaption.plane);
    made->setForeColor(toolbarCaption.text);
    made->setControlType(controlTypeOf(design.command));
    made->setCornerStyle(design.cornerStyle);
    growth_.add(*made);
    clicks_.push_back(
        made->Click.subscribe([this, command = design.command] { chosen.raise(command); }));
    buttons_.push_back(std::move(made));
}

void CommandBar::layOut(const SettingsLayout& layout, int dpi) {
    growth_.reset(dpi);
    for (const CommandDesign& design : commandDesigns()) {
        button(design.command).setDpi(dpi);
        button(design.command).place(layout.boxOf(design.command));
    }
    for (Label* label : {&lblPath_, &lblInfo_}) {
        label->setDpi(dpi);
    }
    gradToolbar_.place(layout.gradToolbar);
    pathPlace_ = layout.lblPath;
    infoPlace_ = layout.lblInfo;
    lblPath_.place(pathPlace_);
    lblInfo_.place(lblPath_.isVisible() ? infoPlace_ : pathPlace_);
}

void CommandBar::ApplyLanguage() {
    for (const CommandDesign& design : commandDesigns()) {
        if (design.caption != 0) {
            button(design.command).setCaption(MlString(design.caption, {}));
        }
        button(design.command).SetTooltip(MlString(design.tip, {}));
    }
}

void CommandBar::showMode(Mode mode, bool worksheetMaxSized) {
    for (const CommandDesign& design : commandDesigns()) {
        const CommandState state = stateOfCommand(design.command, mode, worksheetMaxSized);
        ZelvikButtonXP& shown = button(design.command);
        shown.setVisible(state.visible);
        shown.setEnabled(state.enabled);
    }
    for (const Mode each : allModes) {
        ZelvikButtonXP& btnMode = *buttons_[static_cast<std::size_t>(each)];
        btnMode.setValue(each == mode);
        btnMode.setBackColor(colorOfToggle(each == mode));
        btnMode.setForeColor(each == mode ? toolbarCaptionOn.text : toolbarCaption.text);
    }
}

void CommandBar::showToggles(const ViewState& state) {
    for (const CommandDesign& design : commandDesigns()) {
        if (const auto on = state.isOn(design.command)) {
            button(design.command).setValue(*on);
            button(design.command).setBackColor(colorOfToggle(*on));
        }
    }
}

void CommandBar::showPathLine(const PathLine& line) {
    lblPath_.setTextColor(line.color);
    lblPath_.setBackColor(groundOfPathLine(line.color));
    lblPath_.setText(line.caption);
    lblPath_.SetTooltip(line.tip);
}

int CommandBar::pathWidth() const {
    constexpr int edges = 2;
    return static_cast<int>(lblPath_.clientRectangle().right) - edges;
}

void CommandBar::showInfo(const std::string& text) {
    lblInfo_.place(infoPlace_);
    lblInfo_.setText(text);
    lblInfo_.setVisible(!text.empty());
    lblPath_.setVisible(true);
}

void CommandBar::showNote(const std::string& text) {
    lblInfo_.place(text.empty() ? infoPlace_ : pathPlace_);
    lblInfo_.setText(text);
    lblPath_.setVisible(text.empty());
    lblInfo_.setVisible(!text.empty());
}

}  // namespace ormala
