#include "toolkit/PanelCore.h"

namespace ormala {

ButtonLook colorButtonLook(Color color) {
    constexpr float dim = 0.2F;
    return {color, false, Luminance(color) >= dim ? plain::black : plain::white};
}

PanelCore::PanelCore(OverlayItem& item, ToolEvents& events, HistoryHelper& history,
                     const PanelPorts& ports)
    : item_(item),
      history_(history),
      ports_(ports),
      change_(events.change.subscribe([this] { ShowAllProps(false); })),
      mouseUp_(events.mouseUp.subscribe([this](const MouseInput& input) {
          if (input.button == mouseButton::right) {
              view().showMenu(removeText());
          }
      })),
      keyDown_(events.keyDownFiltered.subscribe(
          [this](int key, int shift) { keyDownFiltered(key, shift); })) {}

void PanelCore::setHidden(bool hidden) {
    if (hidden) {
        letGo();
    }
    hidden_ = hidden;
}

void PanelCore::setPause(bool pause) {
    if (pause) {
        letGo();
    }
    pause_ = pause;
    showPause();
    ports_.visibility.setVisible(item_, !pause);
    SetUndoButtons();
}

/// The eye is open as long as the tool is shown.
void PanelCore::showPause() {
    ButtonLook look = pauseLook();
    look.picture = pause_ ? Picture::hide : Picture::show;
    view().showButton("cmdPause", look);
}

void PanelCore::ShowAllProps(bool force) {
    const float now = ports_.clock.secondsSinceMidnight();
    const bool later = throttle_.ask(now, force, repeating_) == ThrottledRefresh::Step::startTimer;
    view().runRefreshTimer(later);
    if (later) {
        return;
    }
    showSelection();
    view().showTexts(texts());
    showState();
    SetUndoButtons();
}

void PanelCore::showSelection() {
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

void PanelCore::SetUndoButtons() {
    view().enable({!pause_, !pause_ || !pauseDimsLabels(), !pause_ && history_.UndoPossible(),
                   !pause_ && history_.RedoPossible()});
}

void PanelCore::InitializeFinished() {
    history_.discard();
    history_.Add(true);
    showPause();
    SetUndoButtons();
}

void PanelCore::AddHistoryStep() {
    history_.Add(false);
    SetUndoButtons();
}

void PanelCore::Undo() {
    if (pause_) {
        return;
    }
    letGo();
    history_.Undo();
    SetUndoButtons();
    stateReplaced();
    ShowAllProps(false);
}

void PanelCore::Redo() {
    if (pause_) {
        return;
    }
    letGo();
    history_.Redo();
    SetUndoButtons();
    stateReplaced();
    ShowAllProps(false);
}

void PanelCore::setDefaultPlace() {
    placeByDefault();
    AddHistoryStep();
    ShowAllProps(false);
}

void PanelCore::keyDownFiltered(int key, int shift) {
    if (shift != 0) {
        return;
    }
    if (key == key::remove) {
        remove();
    } else {
        otherKeyDown(key);
    }
}

}  // namespace ormala
