#pragma once

#include <string>

#include "app/BusyView.h"
#include "app/RemovedTools.h"
#include "app/ToolFile.h"
#include "app/ToolList.h"
#include "widgets/lookColors.h"

namespace ormala {

enum class Answer { yes, no, cancel };

/// What the path line says.
struct PathLine {
    std::string caption;
    Color color = 0;
    /// Empty for none.
    std::string tip;

    bool operator==(const PathLine&) const = default;
};

/// A ground on which a path line of that colour can be read.
constexpr Color groundOfPathLine(Color text) {
    return text == plain::black ? dark::litPathLine : dark::ground;
}

/// What the documents ask and show.
class DocumentView {
  public:
    virtual ~DocumentView() = default;

    /// Modal, under the program's title.
    virtual Answer ask(const std::string& question) = 0;
    /// The modal dialog for a tool-settings file to load or to save; empty if it was cancelled.
    virtual std::string pickFile(bool forSaving) = 0;
    /// The path, shortened in its middle if need be, so that it fits the path line.
    virtual std::string CompactPathForDisplay(const std::string& path) = 0;
    virtual void showPathLine(const PathLine& line) = 0;
};

/// A picked file's name with the extension of tool-settings files behind it, unless it has that
/// already in any case.
std::string withToolsFileExtension(std::string name);

/// The named set of tools that the user works on: none, a new one without a name, or a file. Having
/// none is the state of a start, in which nothing is asked, since the tools of the last run come
/// back by themselves from an automatic file.
class Documents {
  public:
    struct Ports {
        INIFile& toolsFile;
        FileStore& store;
        ToolFile& file;
        ToolList& tools;
        RemovedTools& removed;
        BusyView& busy;
        DocumentView& view;
    };

    /// The ports must outlive the object.
    explicit Documents(const Ports& ports) : ports_(ports) {}

    /// True until a document has been made, or a file named for it.
    [[nodiscard]] bool NoFileYet() const { return noFileYet_; }
    void UpdatePathLine();

    /// Whether the present tools may be lost, perhaps after a question and a save. A save that
    /// fails says no.
    [[nodiscard]] bool ConfirmDiscard();

    /// Both can be taken back by `RemovedTools`, with the document that there was.
    void New();
    void Load();
    void Save();
    void SaveAs();

  private:
    bool save();
    Answer askToReplace(const std::string& path);
    std::string pickNewFile();
    bool saveUnderNewName();
    [[nodiscard]] bool mayOverwrite();
    void takePath(const std::string& path);
    [[nodiscard]] std::function<void()> wayBack();
    bool loadIfReadable();
    bool saveWhateverIsThere();

    Ports ports_;
    bool noFileYet_ = true;
};

}  // namespace ormala
