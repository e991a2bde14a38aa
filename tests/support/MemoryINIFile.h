#pragma once

#include <string>

#include "storage/INIFile.h"
#include "support/MemoryCodePage.h"
#include "support/MemoryFileStore.h"
#include "support/MemoryMessagePresenter.h"

namespace ormala {

/// A settings file in memory with all that it stands on. It is attached to a missing file in a
/// folder that is there, at the section S.
struct MemoryINIFile {
    static constexpr const char* path = "C:\\data\\settings.ini";

    MemoryINIFile() {
        file.setPath(path);
        file.setCurrentSection("S");
    }

    std::string& bytes() { return store.files[path]; }

    MemoryFileStore store;
    MemoryCodePage codePage;
    MemoryMessagePresenter presenter;
    INIFile file{store, codePage, presenter};
};

}  // namespace ormala
