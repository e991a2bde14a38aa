#include "app/Documents.h"

#include <array>
#include <string_view>

#include "base/Utf8.h"
#include "language/MlStringModule.h"

namespace ormala {

namespace {

constexpr Color documentColor = dark::quietText;
constexpr Color noDocumentColor = plain::black;

}  // namespace

std::string withToolsFileExtension(std::string name) {
    if (!lowerCase(name).ends_with(".om")) {
        name += ".OM";
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
    return save();
}

void Documents::New() {
    if (!ConfirmDiscard()) {
        return;
    }
    const auto back = wayBack();
    noFileYet_ = false;
    ports_.toolsFile.setPath({});
    UpdatePathLine();
    {
        const BusyScope busy(ports_.busy, MlString(378, "Removing all tools..."), false);
        ports_.tools.RemoveAllTools();
    }
    ports_.removed.noteSet(MlString(642, "All tools removed. Ctrl+Z brings them back."), back);
}

/// To the present document, once its tools are back.
std::function<void()> Documents::wayBack() {
    return [this, path = ports_.toolsFile.Path(), noFileYet = noFileYet_] {
        noFileYet_ = noFileYet;
        ports_.toolsFile.setPath(path);
        ports_.toolsFile.setLastError({});
        UpdatePathLine();
    };
}

/// From here on there is a document, even if its file turns out to be unreadable or can't be
/// written: the closing asks about it.
void Documents::takePath(const std::string& path) {
    noFileYet_ = false;
    ports_.toolsFile.setPath(path);
    UpdatePathLine();
}

void Documents::Load() {
    if (!ConfirmDiscard()) {
        return;
    }
    const std::string path = ports_.view.pickFile(false);
    if (path.empty()) {
        return;
    }
    const auto back = wayBack();
    takePath(path);
    const ToolList::Replacement replacement(ports_.tools);
    if (loadIfReadable()) {
        ports_.removed.noteSet(MlString(643, "Tools replaced. Ctrl+Z brings the former ones back."),
                               back);
    }
}

/// Whether a file may be written that the dialog has not asked about, since it saw another name.
Answer Documents::askToReplace(const std::string& path) {
    const int error = ports_.store.errorOfPath(path);
    if (error == errorFileNotFound || error == errorPathNotFound) {
        return Answer::yes;
    }
    const std::string question = MlString(520, "%0 already exists.%nDo you want to replace it?");
    return ports_.view.ask(MlFormat(question, std::array{path}));
}

/// Empty if the user wants none. After a No the dialog comes up again.
std::string Documents::pickNewFile() {
    for (;;) {
        const std::string picked = ports_.view.pickFile(true);
        std::string path = picked.empty() ? picked : withToolsFileExtension(picked);
        const Answer answer = path == picked ? Answer::yes : askToReplace(path);
        if (answer != Answer::no) {
            return answer == Answer::yes ? path : std::string();
        }
    }
}

bool Documents::saveUnderNewName() {
    const std::string path = pickNewFile();
    if (path.empty()) {
        return false;
    }
    takePath(path);
    // The name is that of the tools that there are now.
    ports_.removed.drop();
    return saveWhateverIsThere();
}

bool Documents::save() {
    if (ports_.toolsFile.Path().empty()) {
        return saveUnderNewName();
    }
    return mayOverwrite() && ports_.file.save();
}

/// Asks if another program has changed the file.
bool Documents::mayOverwrite() {
    const std::string& path = ports_.toolsFile.Path();
    if (!ports_.toolsFile.changedElsewhere()) {
        return true;
    }
    const std::string question =
        MlString(505, "'%0' has been changed by another program. Overwrite it?");
    return ports_.view.ask(MlFormat(question, std::array{path})) == Answer::yes;
}

void Documents::Save() {
    save();
}

void Documents::SaveAs() {
    saveUnderNewName();
}

/// The path has been taken just now.
bool Documents::loadIfReadable() {
    ports_.toolsFile.ShowLastError();
    return ports_.toolsFile.status() != ReadResult::Status::failed && ports_.file.load();
}

/// The path has been taken just now. That its file can't be read is no failure here: it stays
/// beside the new one.
bool Documents::saveWhateverIsThere() {
    ports_.toolsFile.setLastError({});
    return ports_.file.save();
}

}  // namespace ormala
