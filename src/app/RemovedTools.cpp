#include "app/RemovedTools.h"

#include <utility>

namespace ormala {

std::string RemovedTools::present() const {
    std::string text;
    for (const ToolList::Entry& entry : tools_.GetPanelsInVisualOrder()) {
        const SettingControl& panel = entry.listed.panel();
        const HistoryHelper& history = panel.history();
        for (const int number : {history.oldest(), history.newest(), history.current(),
                                 static_cast<int>(panel.Selected())}) {
            text.append(std::to_string(number)).append(" ");
        }
    }
    return text + tools_.keysText();
}

void RemovedTools::remove(SettingControl& panel) {
    const std::string note = panel.removedText();
    tools_.RemovePanel(panel);
    noteSet(note, {});
}

void RemovedTools::noteSet(const std::string& note, std::function<void()> alsoBack) {
    alsoBack_ = std::move(alsoBack);
    left_ = present();
    if (tools_.hasRemoved()) {
        tell_(note);
    }
}

void RemovedTools::drop() {
    tools_.dropRemoved();
    alsoBack_ = {};
}

bool RemovedTools::canBringBack() {
    if (tools_.hasRemoved() && present() != left_) {
        drop();
    }
    return tools_.hasRemoved();
}

void RemovedTools::bringBack() {
    if (!canBringBack()) {
        return;
    }
    bringingBack.raise();
    tools_.bringBack();
    tell_({});
    if (const auto alsoBack = std::exchange(alsoBack_, {})) {
        alsoBack();
    }
}

void RemovedTools::undo(const OverlayItem* tool) {
    if (canBringBack()) {
        bringBack();
    } else {
        step(tool, &SettingControl::Undo);
    }
}

void RemovedTools::redo(const OverlayItem* tool) {
    step(tool, &SettingControl::Redo);
}

void RemovedTools::step(const OverlayItem* tool, void (SettingControl::*neighbour)()) {
    SettingControl* const panel = tools_.panelOf(tool);
    if (panel != nullptr) {
        // Steps of the keys are in no record yet: without this they would be lost.
        panel->AddHistoryStep();
        (panel->*neighbour)();
    }
}

}  // namespace ormala
