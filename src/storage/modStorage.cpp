#include "storage/modStorage.h"

#include <algorithm>

#include "storage/INIFile.h"

namespace ormala {

bool FileExists(FileStore& store, const std::string& path) {
    return store.errorOfPath(path) != errorFileNotFound;
}

bool CreateFolderForFile(FileStore& store, const std::string& path) {
    return store.createFolders(path);
}

void CutAtNull(std::string& text) {
    text.resize(std::min(text.find('\0'), text.size()));
}

void WriteFileHeader(INIFile& file, std::string_view version, std::string_view time) {
    file.setCurrentSection("General");
    file.setStringValue("Software", "Ormala");
    file.setStringValue("Version", version);
    file.setStringValue("Time", time);
}

}  // namespace ormala
