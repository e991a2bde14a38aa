#include "app/ToolFile.h"

#include <algorithm>
#include <string_view>

#include "base/Utf8.h"
#include "language/MlStringModule.h"
#include "storage/modStorage.h"

namespace ormala {

namespace {

std::string sectionOfTool(int number) {
    return "Tool " + std::to_string(number);
}

bool isToolSection(std::string_view name) {
    return lowerCase(std::string(name)).starts_with("tool");
}

}  // namespace

bool ToolFile::save() {
    INIFile& file = ports_.file;
    if (file.Path().empty()) {
        return false;
    }
    std::string before;
    {
        const auto group = file.group();
        file.CreateFolderPath();
        file.Delete();
        before = file.LastError();
        file.setLastError({});
        store();
    }
    const std::string failure = file.LastError();
    // Takes a new list of the sections.
    file.setPath(std::string(file.Path()));
    if (!before.empty() || !failure.empty()) {
        file.setLastError(failure.empty() ? before : failure);
    }
    file.ShowLastError();
    return failure.empty();
}

void ToolFile::store() {
    INIFile& file = ports_.file;
    WriteFileHeader(file, header_.version, header_.timeOfSaving());
    int number = 0;
    for (const ToolList::Entry& entry : ports_.tools.GetPanelsInVisualOrder()) {
        file.setCurrentSection(sectionOfTool(++number));
        file.setLongValue("Type", static_cast<int>(entry.kind));
        entry.listed.panel().StoreToFile(file);
    }
}

bool ToolFile::load() {
    INIFile& file = ports_.file;
    if (file.Path().empty()) {
        return false;
    }
    const BusyScope busy(ports_.busy, MlString(377, "Loading..."), true);
    const auto group = file.group();
    file.setPath(std::string(file.Path()));
    file.ShowLastError();
    if (file.status() == ReadResult::Status::failed) {
        return false;
    }
    ports_.tools.RemoveAllTools();
    ports_.busy.refreshWorksheet();
    ports_.busy.refreshControlWindow();
    loadTools();
    file.noteAsRead();
    return true;
}

void ToolFile::loadTools() {
    INIFile& file = ports_.file;
    SettingControl* first = nullptr;
    for (std::int32_t index = 0; index <= file.SectionMax(); ++index) {
        const std::string section = file.SectionName(index);
        SettingControl* panel = isToolSection(section) ? loadTool(section) : nullptr;
        if (first == nullptr) {
            first = panel;
        }
    }
    file.ShowLastError();
    if (first != nullptr) {
        first->setSelected(true);
    }
}

/// Null if the section's tool is of no kind that there is, or one too many.
SettingControl* ToolFile::loadTool(const std::string& section) {
    INIFile& file = ports_.file;
    file.setCurrentSection(section);
    const int kind = file.LongValue("Type", 0);
    SettingControl* panel = ports_.tools.AddNewControl(kind, [&file](SettingControl& made) {
        made.LoadFromFile(file);
        made.setSelected(false);
    });
    if (panel != nullptr) {
        ports_.busy.refreshControlWindow();
    }
    return panel;
}

bool ToolFile::compare() {
    INIFile& file = ports_.file;
    if (file.Path().empty() || !FileExists(ports_.store, file.Path())) {
        return false;
    }
    const auto group = file.group();
    if (file.check() == ReadResult::Status::failed) {
        file.ShowLastError();
        return false;
    }
    int number = 0;
    const auto entries = ports_.tools.GetPanelsInVisualOrder();
    const bool equal = std::ranges::all_of(entries, [&](const ToolList::Entry& entry) {
        constexpr int none = -1;
        file.setCurrentSection(sectionOfTool(++number));
        return file.LongValue("Type", none) == static_cast<int>(entry.kind) &&
               entry.listed.panel().EqualsFile(file);
    });
    file.ShowLastError();
    return equal;
}

}  // namespace ormala
