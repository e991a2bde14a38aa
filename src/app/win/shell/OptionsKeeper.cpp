#include "app/win/shell/OptionsKeeper.h"

#include "app/programFiles.h"
#include "app/version.h"
#include "dialogs/win/formPlacement.h"
#include "storage/modStorage.h"
#include "storage/win/SpecialFolder.h"
#include "storage/win/timeText.h"

namespace ormala {

OptionsKeeper::OptionsKeeper(FileStore& store, const CodePage& codePage)
    : file_(store, codePage, messages_), contents_(file_, store) {
    const std::string path = optionsFilePath(GetSpecialFolder(folderApplicationData));
    CreateFolderForFile(store, path);
    keepPrevious(store, path, presentTime());
    file_.setPath(path);
    file_.CreateFolderPath();
    file_.ShowLastError();
    file_.setCurrentSection(optionsSection);
}

Options OptionsKeeper::read(int localeLanguage) {
    const auto group = file_.group();
    const Options options = readOptions(file_, localeLanguage);
    file_.noteAsRead();
    return options;
}

void OptionsKeeper::restorePlace(HWND window, PlaceAcrossDpi& place, const char* section,
                                 bool cascade) {
    const auto group = file_.group();
    RestoreFormPlacement(window, place, file_, section, cascade);
}

RestoredPlacement OptionsKeeper::place(HWND window, const char* section) {
    const auto group = file_.group();
    return storedPlacement(window, file_, section, false);
}

bool OptionsKeeper::save(const KeptOptions& kept, bool quietly) {
    const QuietMessages messages(messages_, quietly);
    return contents_.save(kept, versionText, presentTime());
}

}  // namespace ormala
