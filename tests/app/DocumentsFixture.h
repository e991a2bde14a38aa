#pragma once

#include <string>
#include <vector>

#include "app/AutomaticTools.h"
#include "app/Documents.h"
#include "app/ToolFileFixture.h"
#include "support/exampleToolFile.h"

namespace ormala {

/// A user who gives the prepared answers.
class FakeDocumentView : public DocumentView {
  public:
    Answer answer = Answer::cancel;
    std::string picked;
    /// What is picked after that, once each.
    std::vector<std::string> pickedNext;
    /// For questions about other programs.
    Answer overwrite = Answer::cancel;
    std::vector<std::string> questions;
    std::vector<bool> picks;
    PathLine line;
    std::size_t lineWidth = 60;

    Answer ask(const std::string& question) override {
        questions.push_back(question);
        return question.find("another program") == std::string::npos ? answer : overwrite;
    }
    std::string pickFile(bool forSaving) override {
        picks.push_back(forSaving);
        const std::string answered = picked;
        if (!pickedNext.empty()) {
            picked = pickedNext.front();
            pickedNext.erase(pickedNext.begin());
        }
        return answered;
    }
    std::string CompactPathForDisplay(const std::string& path) override {
        return path.size() > lineWidth ? "..." + path.substr(path.size() - lineWidth + 3) : path;
    }
    void showPathLine(const PathLine& shown) override { line = shown; }
};

/// A run of the program with its documents, over files in memory.
class DocumentsFixture : public ToolFileFixture {
  protected:
    const std::string automaticPath = "C:\\data\\Ormala Tools.ini";
    const std::string namedPath = "C:\\data\\named.OM";
    static constexpr Color documentColor = roleColor(0xC0FFFF, ColorRole::windowText);

    DocumentsFixture() {
        ini_.file.setPath("");
        ini_.store.files[namedPath] = exampleToolFile;
    }

    std::string& file(const std::string& path) { return ini_.store.files[path]; }
    void start() {
        automatic_.load(time_);
        documents_.UpdatePathLine();
    }
    void startWithTools() {
        file(automaticPath) = exampleToolFile;
        start();
    }
    void loadNamed() {
        view_.picked = namedPath;
        documents_.Load();
        view_.questions.clear();
        view_.picks.clear();
    }
    /// A close request and, if nothing stands against it, the end of the program.
    bool close() {
        const bool closes = documents_.ConfirmDiscard();
        if (closes) {
            savedAtTheEnd_ = automatic_.save();
        }
        return closes;
    }
    [[nodiscard]] bool asked() const { return !view_.questions.empty(); }
    void expectNamed(const std::string& path) {
        EXPECT_EQ(ini_.file.Path(), path);
        EXPECT_FALSE(documents_.NoFileYet());
        EXPECT_EQ(view_.line, (PathLine{path, documentColor, ""}));
    }

    [[nodiscard]] const std::vector<std::string>& errors() const { return ini_.presenter.errors; }

    /// The automatic file of a program that has just started, with tools of its own.
    struct FirstStart {
        FirstStart(MemoryINIFile& ini, const std::string& path)
            : file(ini.store, ini.codePage, ini.presenter),
              toolFile({file, ini.store, stage.list, stage.view}, {"1", [] { return "t"; }}),
              automatic({file, toolFile, ini.store, stage.list}, path) {
            stage.list.prepareFirstTools();
            automatic.load("2024-05-17 08:30:12");
        }
        ToolListStage stage;
        INIFile file;
        ToolFile toolFile;
        AutomaticTools automatic;
    };

    FakeDocumentView view_;
    bool savedAtTheEnd_ = false;
    INIFile automaticFile_{ini_.store, ini_.codePage, ini_.presenter};
    ToolFile automaticToolFile_{{automaticFile_, ini_.store, stage_.list, stage_.view},
                                {"3.1.5", [this] { return time_; }}};
    AutomaticTools automatic_{{automaticFile_, automaticToolFile_, ini_.store, stage_.list},
                              automaticPath};
    std::vector<std::string> notes_;
    RemovedTools removed_{stage_.list, [this](const std::string& note) { notes_.push_back(note); }};
    Documents documents_{
        {ini_.file, ini_.store, toolFile_, stage_.list, removed_, stage_.view, view_}};
};

}  // namespace ormala
