#include "app/win/shell/OptionsKeeper.h"

#include "app/programFiles.h"
#include "app/version.h"
#include "app/win/shell/timeOfSaving.h"
#include "dialogs/win/formPlacement.h"
#include "storage/modStorage.h"
#include "storage/win/SpecialFolder.h"

namespace ormala {

OptionsKeeper::OptionsKeeper(FileStore& store, const CodePage& codePage)
    : file_(store, codePage, messages_) {
    const std::string path = optionsFilePath(GetSpecialFolder(folderApplicationData));
    CreateFolderForFile(store, path);
    file_.setPath(path);
    file_.CreateFolderPath();
    file_.ShowLastError();
    file_.setCurrentSection(optionsSection);
}

Options OptionsKeeper::read(int localeLanguage) {
    const auto group = file_.group();
    return readOptions(file_, localeLanguage);
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

void OptionsKeeper::save(const Options& options, std::initializer_list<PlacedWindow> windows,
                         bool quietly) {
    const QuietMessages messages(messages_, quietly);
    {
        const auto group = file_.group();
        WriteFileHeader(file_, versionText, timeOfSaving());
        file_.setCurrentSection(optionsSection);
        writeOptions(file_, options);
        for (const PlacedWindow& placed : windows) {
            SaveFormPlacement(placed.window, file_, placed.section);
        }
    }
    file_.ShowLastError();
}

}  // namespace ormala
