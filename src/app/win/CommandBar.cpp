#include "app/win/CommandBar.h"

#include "app/modes.h"
#include "language/MlStringModule.h"
#include "widgets/PanelView.h"
#include "widgets/pictures.h"

namespace ormala {

namespace {

/// Above the IDs of the commands.
enum LabelId { idPath = 100, idInfo };

constexpr Color ground = 0x606060;
constexpr Color infoColor = rgb(255, 230, 0);
constexpr Color captionColor = rgb(255, 255, 192);
constexpr Color litCaptionColor = rgb(31, 31, 31);

constexpr int pictureSize = 16;

Picture pictureOf(Command command) {
    switch (command) {
        case Command::editMode:
            return Picture::modeEdit;
        case Command::templateMode:
            return Picture::modeTemplate;
        case Command::pauseMode:
            return Picture::modePause;
        case Command::templateAndMinimise:
            return Picture::templateAndMinimize;
        case Command::pauseAndMinimise:
            return Picture::pauseAndMinimize;
        case Command::addStencil:
            return Picture::addStencil;
        case Command::addMeasure:
            return Picture::addMeasure;
        case Command::newTools:
            return Picture::newTools;
        case Command::load:
            return Picture::loadTools;
        case Command::save:
            return Picture::saveTools;
        case Command::saveAs:
            return Picture::saveToolsAs;
        case Command::worksheetNormal:
            return Picture::worksheetWindow;
    }
    return Picture::modeEdit;
}

}  // namespace

CommandBar::CommandBar(HWND parent)
    : lblPath_(parent, idPath, "lblPath"), lblInfo_(parent, idInfo, "lblInfo") {
    for (const CommandDesign& design : commandDesigns()) {
        makeButton(parent, design);
    }
    lblPath_.setBackColor(ground);
    lblInfo_.setBackColor(ground);
    lblInfo_.setTextColor(infoColor);
    lblInfo_.setVisible(false);
}

void CommandBar::makeButton(HWND parent, const CommandDesign& design) {
    const int id = static_cast<int>(design.command) + 1;
    auto made = std::make_unique<ZelvikButtonXP>(parent, id, design.name);
    made->setPicture([picture = pictureOf(design.command)](PixelSize size) {
        return drawPicture(picture, size);
    });
    made->setPictureSize(pictureSize, pictureSize);
    made->setBackColor(offColor);
    made->setForeColor(captionColor);
    if (design.command <= Command::pauseMode) {
        constexpr int oneOfSeveral = 2;
        made->setControlType(oneOfSeveral);
    }
    made->setCornerStyle(design.cornerStyle);
    clicks_.push_back(
        made->Click.subscribe([this, command = design.command] { chosen.raise(command); }));
    buttons_.push_back(std::move(made));
}

void CommandBar::layOut(const SettingsLayout& layout, int dpi) {
    for (const CommandDesign& design : commandDesigns()) {
        button(design.command).setDpi(dpi);
        button(design.command).place(layout.boxOf(design.command));
    }
    for (Label* label : {&lblPath_, &lblInfo_}) {
        label->setDpi(dpi);
    }
    lblPath_.place(layout.lblPath);
    lblInfo_.place(layout.lblInfo);
}

void CommandBar::ApplyLanguage() {
    for (const CommandDesign& design : commandDesigns()) {
        if (design.caption != 0) {
            button(design.command).setCaption(MlString(design.caption, {}));
        }
        button(design.command).SetTooltip(MlString(design.tip, {}));
    }
}

void CommandBar::showMode(int mode, bool worksheetMaxSized) {
    for (const CommandDesign& design : commandDesigns()) {
        const CommandState state = stateOfCommand(design.command, mode, worksheetMaxSized);
        ZelvikButtonXP& shown = button(design.command);
        shown.setVisible(state.visible);
        shown.setEnabled(state.enabled);
    }
    for (int i = 0; i < mode::count; ++i) {
        ZelvikButtonXP& btnMode = *buttons_[static_cast<std::size_t>(i)];
        btnMode.setValue(i == mode);
        btnMode.setBackColor(colorOfMode(i, mode));
        btnMode.setForeColor(i == mode ? litCaptionColor : captionColor);
    }
}

void CommandBar::showPathLine(const PathLine& line) {
    lblPath_.setTextColor(line.color);
    lblPath_.setText(line.caption);
    lblPath_.SetTooltip(line.tip);
}

int CommandBar::pathWidth() const {
    constexpr int edges = 2;
    return static_cast<int>(lblPath_.clientRectangle().right) - edges;
}

void CommandBar::showInfo(const std::string& text) {
    lblInfo_.setText(text);
    lblInfo_.setVisible(!text.empty());
}

}  // namespace ormala
