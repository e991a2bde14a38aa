#include "app/OptionsFile.h"

#include "storage/modStorage.h"

namespace ormala {

bool OptionsFile::save(const KeptOptions& kept, const std::string& version,
                       const std::string& time) {
    const WriteResult others = others_.keep(file_);
    if (!others) {
        file_.tellFailedSave(others.description);
        return false;
    }
    file_.setLastError({});
    {
        const auto group = file_.group();
        WriteFileHeader(file_, version, time);
        file_.setCurrentSection(optionsSection);
        writeOptions(file_, kept.options);
        for (const auto& [section, place] : kept.places) {
            storePlacement(file_, section, place);
        }
    }
    const bool saved = file_.LastError().empty();
    file_.ShowLastError();
    if (saved) {
        saved_ = kept;
    }
    return saved;
}

}  // namespace ormala
