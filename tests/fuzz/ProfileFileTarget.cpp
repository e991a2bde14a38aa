#include <algorithm>
#include <array>
#include <string>
#include <string_view>
#include <vector>

#include "fuzz/Require.h"
#include "fuzz/Targets.h"
#include "storage/ProfileFile.h"
#include "storage/TextMark.h"
#include "support/MemoryCodePage.h"
#include "support/MemoryFileStore.h"

namespace ormala {

namespace {

constexpr std::size_t valueSize = 255;
const std::string path = "C:\\data\\fuzz.ini";

/// Section, key and value to write, and the contents of the file, each ended by a byte 1.
struct Input {
    std::array<std::string, 3> texts;
    std::string contents;
};

Input split(std::string_view bytes) {
    Input input;
    for (std::string& text : input.texts) {
        const std::size_t end = std::min(bytes.find('\1'), bytes.size());
        text = bytes.substr(0, end);
        bytes.remove_prefix(std::min(end + 1, bytes.size()));
    }
    input.contents = bytes;
    return input;
}

/// The text as a line gives it back.
std::string asRead(std::string text) {
    constexpr std::string_view blanks = " \t";
    text.resize(std::min(text.find_first_of(std::string_view("\r\n\0", 3)), text.size()));
    text.erase(0, std::min(text.find_first_not_of(blanks), text.size()));
    text.resize(std::min(text.size(), valueSize - 1));
    text.erase(text.find_last_not_of(blanks) + 1);
    return text;
}

std::size_t lineBreaksIn(const std::string& bytes) {
    return static_cast<std::size_t>(std::ranges::count(bytes, '\n') +
                                    std::ranges::count(bytes, '\r'));
}

void readEverything(ProfileFile& file) {
    const ProfileFile::Scope scope(
        file, [](const std::string&) { require(false, "reading has nothing to write"); });
    for (const std::string& name : file.sectionNames()) {
        require(file.value(name, "Type", "-1", valueSize).size() < valueSize, "values are cut");
    }
}

}  // namespace

void fuzzProfileFile(const std::uint8_t* data, std::size_t size) {
    const Input input = split({reinterpret_cast<const char*>(data), size});
    const auto& [section, key, value] = input.texts;
    MemoryFileStore store;
    store.files[path] = input.contents;
    const MemoryCodePage codePage;
    const std::string text = codePageText(input.contents, codePage);
    ProfileFile file(store, codePage);
    file.setPath(path);

    readEverything(file);
    require(store.files[path] == input.contents, "reading leaves the file alone");

    const bool written = file.setValue(section, key, value).written;
    require(written || store.files[path] == input.contents, "a refused write changes nothing");
    if (!written) {
        return;
    }
    require(lineBreaksIn(codePageText(store.files[path], codePage)) >= lineBreaksIn(text),
            "lines stay");
    require(file.value(section, key, "other", valueSize) == asRead(value), "a value reads back");
    const std::string once = store.files[path];
    require(file.setValue(section, key, value).written, "a value can be written again");
    require(store.files[path] == once, "writing the same again changes nothing");
    {
        const ProfileFile::Scope scope(
            file, [](const std::string&) { require(false, "a scope can write"); });
        readEverything(file);
        require(file.setValue(section, key, value + "x").written, "a value can be replaced");
        require(file.setValue(section, key, value).written, "a value can be put back");
    }
    // A file with a mark is written without it.
    require(codePageText(store.files[path], codePage) == codePageText(once, codePage),
            "putting a value back gives the same text");
}

}  // namespace ormala
