#include "app/win/tools/DocumentDialogs.h"

#include "app/version.h"
#include "dialogs/win/FileDialogs.h"
#include "platform/win/InputBarrier.h"
#include "platform/win/handles.h"
#include "platform/win/text.h"

namespace ormala {

Answer DocumentDialogs::ask(const std::string& question) {
    const InputBarrier barrier(owner_);
    const int pressed =
        MessageBoxW(owner_, wide(question).c_str(), wide(applicationTitle).c_str(),
                    MB_YESNOCANCEL | MB_ICONQUESTION | MB_TOPMOST | MB_SETFOREGROUND);
    const Answer refusal = pressed == IDNO ? Answer::no : Answer::cancel;
    return pressed == IDYES ? Answer::yes : refusal;
}

std::string DocumentDialogs::pickFile(bool forSaving) {
    // The dialog itself shuts only its owner.
    const InputBarrier barrier(owner_);
    return PickToolsFile(owner_, forSaving);
}

std::string DocumentDialogs::CompactPathForDisplay(const std::string& path) {
    const WindowContext context(owner_);
    const Selected font(context.get(), bar_.lblPath().font());
    return ormala::CompactPathForDisplay(path, context.get(), bar_.pathWidth());
}

}  // namespace ormala
