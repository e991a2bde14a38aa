#include "toolkit/SettingControl.h"

#include <array>

#include "language/MlStringModule.h"
#include "pictures/linePicture.h"
#include "toolkit/readOutLines.h"
#include "widgets/lookColors.h"

namespace ormala {

ButtonLook colorButtonLook(Color color) {
    constexpr float dim = 0.2F;
    return {color, false, Luminance(color) >= dim ? plain::black : plain::white};
}

ButtonLook switchLook(bool on) {
    return {on ? dark::on : dark::off, on};
}

SettingControl::SettingControl(GripTool& tool, const PanelDesign& design, const PanelPorts& ports)
    : tool_(tool),
      design_(design),
      ports_(ports),
      change_(tool.events().change.subscribe([this] { ShowAllProps(false); })),
      mouseUp_(tool.events().mouseUp.subscribe([this](const MouseInput& input) {
          if (input.button == mouseButton::right) {
              view().showMenu(textOfTool(design_.removeText));
          }
      })),
      keyDown_(tool.events().keyDownFiltered.subscribe(
          [this](int key, int shift) { keyDownFiltered(key, shift); })),
      repeat_(ports.tmrFast, [this] { AddHistoryStep(); }) {}

void SettingControl::setHidden(bool hidden) {
    if (hidden) {
        letGo();
    }
    hidden_ = hidden;
}

void SettingControl::setPause(bool pause) {
    if (pause) {
        letGo();
    }
    pause_ = pause;
    ports_.changed();
    showPause();
    ports_.setVisible(tool_, !pause);
    SetUndoButtons();
}

/// The eye is open as long as the tool is shown.
void SettingControl::showPause() {
    ButtonLook look = switchLook(pause_ == design_.litByPause);
    look.down = pause_;
    look.picture = pause_ ? Picture::hide : Picture::show;
    view().showButton(CommonControl::cmdPause, look);
}

void SettingControl::setLineWidth(int lineCode) {
    tool_.setLineWidth(lineCode);
    view().showPicture(CommonControl::cmdLineStyle,
                       [lineCode](PixelSize size) { return drawLinePicture(lineCode, size); });
}

void SettingControl::LoadFromFile(INIFile& file) {
    const ToolChanges changes(tool_);
    readKeys(file);
    setPause(flagValue(file, "Hide", false));
    finish();
}

void SettingControl::StoreToFile(INIFile& file) const {
    ToolKeyWriter writer(file);
    visitKeys(writer);
    writer.flag("Hide", pause_);
}

bool SettingControl::EqualsFile(INIFile& file) const {
    ToolKeyComparer comparer(file);
    return visitKeys(comparer) && comparer.flag("Hide", pause_);
}

std::string SettingControl::keysText() const {
    ToolKeyText keys;
    visitKeys(keys);
    keys.flag("Hide", pause_);
    return keys.text();
}

void SettingControl::setDefaultLook(ToolColors& colors) {
    const ToolChanges changes(tool_);
    setDefaultColors(colors);
    setLineWidth(ToolHabits{}.LineWidth);
}

void SettingControl::InitializeFinished() {
    tool_.History().discard();
    tool_.History().Add(true);
    showPause();
    SetUndoButtons();
}

void SettingControl::finish() {
    InitializeFinished();
    ShowAllProps(false);
}

void SettingControl::showTextsAnew() {
    // Its end lays the tool out.
    { const ToolChanges changes(tool_); }
    ShowAllProps(true);
}

void SettingControl::timerTicked(PanelTimer timer) {
    if (timer == PanelTimer::tmrShowProps) {
        ShowAllProps(true);
    }
}

void SettingControl::ShowAllProps(bool force) {
    ports_.changed();
    const float now = ports_.secondsSinceMidnight();
    const bool later =
        throttle_.ask(now, force, repeat_.heldByMouse()) == ThrottledRefresh::Step::startTimer;
    view().runTimer(PanelTimer::tmrShowProps, later ? ThrottledRefresh::timerMilliseconds : 0);
    if (later) {
        return;
    }
    showSelection();
    view().showTexts(texts());
    showState();
    SetUndoButtons();
}

std::string SettingControl::readOuts() const {
    return readOutLines(design_, texts());
}

void SettingControl::showSelection() {
    const bool selected = Selected();
    if (shownAsSelected_ == selected) {
        return;
    }
    shownAsSelected_ = selected;
    view().showLook(selected ? selectedLook : unselectedLook);
    if (selected) {
        view().toolBecameSelected();
    }
}

void SettingControl::SetUndoButtons() {
    const HistoryHelper& history = tool_.History();
    view().enable({!pause_, !pause_ || !design_.pauseDimsLabels, !pause_ && history.UndoPossible(),
                   !pause_ && history.RedoPossible()});
}

void SettingControl::press(const PanelControl& step, int shift) {
    repeat_.press(shift, [this, &step, shift] { takeStep(step, shift, true); });
}

void SettingControl::pressKey(const PanelControl& step, int shift) {
    repeat_.pressKey([this, &step, shift] { takeStep(step, shift, false); });
}

void SettingControl::takeStep(const PanelControl& step, int shift, bool byMouse) {
    step.press.perform(*this, {step.index.value_or(0), shift, byMouse});
    ShowAllProps(false);
}

void SettingControl::AddHistoryStep() {
    tool_.History().Add(false);
    ports_.changed();
    SetUndoButtons();
}

void SettingControl::Undo() {
    goTo(&HistoryHelper::Undo);
}

void SettingControl::Redo() {
    goTo(&HistoryHelper::Redo);
}

void SettingControl::goTo(void (HistoryHelper::*neighbour)()) {
    // The next move of a drag would take the rest of what was held back.
    if (pause_ || tool_.grips().active()) {
        return;
    }
    letGo();
    (tool_.History().*neighbour)();
    SetUndoButtons();
    ShowAllProps(false);
}

void SettingControl::setDefaultPlace() {
    placeByDefault();
    changed();
}

void SettingControl::changed() {
    AddHistoryStep();
    ShowAllProps(false);
}

void SettingControl::clickLineStyle() {
    setLineWidth(dialogs().SelectLineStyle(LineWidth()));
    AddHistoryStep();
}

void SettingControl::keyDownFiltered(int key, int shift) {
    if (shift != 0) {
        return;
    }
    if (key == key::remove) {
        remove({});
    } else if (key == key::end) {
        setDefaultPlace();
    }
}

/// With the tool's number for "%0".
std::string SettingControl::textOfTool(int row) const {
    const std::array<std::string, 1> arguments{std::to_string(number_)};
    return MlFormat(MlString(row, {}), arguments);
}

}  // namespace ormala
