#include "app/win/shell/AutoSaveStage.h"

#include "dialogs/win/formPlacement.h"
#include "language/MlStringModule.h"
#include "platform/win/mouseButtons.h"

namespace ormala {

AutoSaveStage::AutoSaveStage(const Parts& parts) : parts_(parts) {
    const auto changes = [this](auto& event) {
        subscriptions_.push_back(event.subscribe([this](auto&&...) { autoSave_.changed(); }));
    };
    const auto ends = [this](Event<>& event) {
        subscriptions_.push_back(event.subscribe([this] { autoSave_.saveNow(); }));
    };
    changes(parts_.tools.changed);
    changes(parts_.state.changed);
    changes(parts_.settings.placed);
    changes(parts_.resizer.worksheetPlaced);
    ends(parts_.modes.switched);
    ends(parts_.settings.screenLock().locked);
    ends(parts_.settings.screenLock().suspended);
    subscriptions_.push_back(timer_.due.subscribe([this] { autoSave_.tick(); }));
}

void AutoSaveStage::begin() {
    subscriptions_.push_back(
        parts_.view.lens().lens().placed.subscribe([this] { autoSave_.changed(); }));
    parts_.options.noteAsSaved(keptOptions());
    autoSave_.begin();
}

KeptOptions AutoSaveStage::keptOptions() const {
    KeptOptions kept{parts_.state.options(), {}};
    kept.options.editModeFormHeight = parts_.settings.size().editModeFormHeight();
    for (const auto& [section, window] :
         {std::pair<const char*, HWND>{formSection::control, parts_.settings.handle()},
          {formSection::frame, parts_.resizer.handle()},
          {formSection::lens, parts_.view.lens().lens().handle()}}) {
        kept.places.emplace_back(section, placementOf(window));
    }
    return kept;
}

bool AutoSaveStage::differs() {
    return parts_.tools.automatic().differ() || parts_.options.differ(keptOptions());
}

bool AutoSaveStage::saveChanges() {
    const bool tools = parts_.tools.saveChanges();
    return parts_.options.saveChanges(keptOptions()) && tools;
}

bool AutoSaveStage::isMouseHeld() const {
    return isAnyMouseButtonHeld();
}

void AutoSaveStage::tellFailure() {
    parts_.view.showNote(MlString(644, "The latest changes are not saved yet."));
}

}  // namespace ormala
