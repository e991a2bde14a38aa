#include "storage/fileVersions.h"

#include "storage/FileReplacement.h"

namespace ormala {

namespace {

/// "2024-05-17" of "2024-05-17 08:30:12".
std::string_view dayOf(std::string_view time) {
    constexpr std::size_t length = 10;
    return time.substr(0, length);
}

bool holdsSomething(const ReadResult& result) {
    return result.status == ReadResult::Status::ok && !result.bytes.empty();
}

}  // namespace

void keepPrevious(FileStore& store, const std::string& path, std::string_view today) {
    const std::string previous = versionName(path, "previous");
    if (dayOf(store.timeOf(previous)) == dayOf(today)) {
        return;
    }
    const ReadResult last = store.readAtOnce(path);
    if (holdsSomething(last)) {
        store.replace(previous, last.bytes);
    }
}

WriteResult OtherVersions::keep(const INIFile& file) {
    const ReadResult now = store_.readAtOnce(file.Path());
    // What could not be read before is kept with the time in its name.
    if (!holdsSomething(now) || file.keepsOld() || now.bytes == file.knownContents()) {
        return {true, {}};
    }
    return keepBeside(file, now.bytes);
}

bool OtherVersions::mayReplace(const INIFile& file, const ReadResult& there) const {
    return there.status == ReadResult::Status::notFound ||
           (holdsSomething(there) && (there.bytes == kept_ || there.bytes == file.knownContents()));
}

WriteResult OtherVersions::keepBeside(const INIFile& file, const std::string& bytes) {
    constexpr int most = 99;
    for (int number = 1; number <= most; ++number) {
        const std::string name = versionName(file.Path(), "other", number);
        const ReadResult there = store_.readAtOnce(name);
        const bool isThere = there.status == ReadResult::Status::ok && there.bytes == bytes;
        if (isThere || mayReplace(file, there)) {
            kept_ = bytes;
            return isThere ? WriteResult{true, {}} : store_.replace(name, bytes);
        }
    }
    return {};
}

}  // namespace ormala
