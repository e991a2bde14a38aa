#include "app/AutomaticTools.h"

namespace ormala {

void AutomaticTools::load(const std::string& now) {
    keepPrevious(ports_.store, path_, now);
    if (!loadIfReadable()) {
        ports_.tools.showFirstTools();
    }
    // Those of a first start, which nobody has seen.
    ports_.tools.dropRemoved();
    saved_ = ports_.tools.keysText();
}

bool AutomaticTools::loadIfReadable() {
    ports_.file.setPath(path_);
    ports_.file.ShowLastError();
    return ports_.file.status() == ReadResult::Status::ok && ports_.toolFile.load();
}

bool AutomaticTools::save() {
    const WriteResult kept = others_.keep(ports_.file);
    if (!kept) {
        ports_.file.tellFailedSave(kept.description);
        return false;
    }
    // That the old file can't be read is no failure here: it stays beside the new one.
    ports_.file.setPath(path_);
    ports_.file.setLastError({});
    const std::string tools = ports_.tools.keysText();
    const bool saved = ports_.toolFile.save();
    if (saved) {
        saved_ = tools;
    }
    return saved;
}

}  // namespace ormala
