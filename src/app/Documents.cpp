#include "app/Documents.h"

#include <algorithm>
#include <string_view>

#include "language/MlStringModule.h"
#include "storage/modStorage.h"

namespace ormala {

namespace {

constexpr Color documentColor = 0xC0FFFF;
constexpr Color noDocumentColor = 0;

constexpr char upperCase(char c) {
    return c >= 'a' && c <= 'z' ? static_cast<char>(c - 'a' + 'A') : c;
}

}  // namespace

std::string withToolsFileExtension(std::string name) {
    constexpr std::string_view extension = ".OM";
    const std::string_view end =
        std::string_view(name).substr(name.size() - std::min(name.size(), extension.size()));
    if (!std::ranges::equal(end, extension, {}, upperCase)) {
        name += extension;
    }
    return name;
}

void Documents::UpdatePathLine() {
    const std::string& path = ports_.toolsFile.Path();
    PathLine line{{}, documentColor, {}};
    if (!path.empty()) {
        line.caption = ports_.view.CompactPathForDisplay(path);
        line.tip = line.caption == path ? std::string() : path;
    } else if (noFileYet_) {
        line.caption = MlString(307, "(No tool settings file opened or created yet)");
        line.color = noDocumentColor;
    } else {
        line.caption = MlString(308, "(New tool settings file)");
    }
    ports_.view.showPathLine(line);
}

bool Documents::ConfirmDiscard() {
    if (noFileYet_ || ports_.file.compare()) {
        return true;
    }
    const Answer answer = ports_.view.ask(MlString(309, "Do you want to save the changes?"));
    if (answer != Answer::yes) {
        return answer == Answer::no;
    }
    const bool saved = ports_.toolsFile.Path().empty() ? saveUnderNewName() : ports_.file.save();
    return saved && !ports_.toolsFile.ShowLastError();
}

void Documents::New() {
    if (!ConfirmDiscard()) {
        return;
    }
    noFileYet_ = false;
    ports_.toolsFile.setPath({});
    UpdatePathLine();
    const BusyScope busy(ports_.busy, MlString(378, "Removing all tools..."), false);
    ports_.tools.RemoveAllTools();
}

bool Documents::takePath(const std::string& path) {
    ports_.toolsFile.setPath(path);
    UpdatePathLine();
    return !ports_.toolsFile.ShowLastError();
}

void Documents::Load() {
    if (!ConfirmDiscard()) {
        return;
    }
    const std::string path = ports_.view.pickFile(false);
    if (!path.empty() && takePath(path)) {
        ports_.file.load();
        noFileYet_ = false;
    }
}

bool Documents::saveUnderNewName() {
    const std::string picked = ports_.view.pickFile(true);
    return !picked.empty() && takePath(withToolsFileExtension(picked)) && ports_.file.save();
}

void Documents::Save() {
    if (ports_.toolsFile.Path().empty()) {
        SaveAs();
    } else {
        ports_.file.save();
    }
}

void Documents::SaveAs() {
    if (saveUnderNewName()) {
        noFileYet_ = false;
    }
}

void Documents::loadAutomatic(const std::string& path) {
    if (!FileExists(ports_.store, path)) {
        ports_.tools.showFirstTools();
        return;
    }
    ports_.toolsFile.setPath(path);
    ports_.file.load();
    ports_.toolsFile.setPath({});
    UpdatePathLine();
}

void Documents::saveAutomatic(const std::string& path) {
    ports_.toolsFile.setPath(path);
    ports_.file.save();
}

void Documents::keepAutomatic(const std::string& path) {
    const std::string document = ports_.toolsFile.Path();
    saveAutomatic(path);
    ports_.toolsFile.setPath(document);
}

}  // namespace ormala
