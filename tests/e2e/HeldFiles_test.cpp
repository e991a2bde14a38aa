#include <gtest/gtest.h>
#include <windows.h>

#include <filesystem>
#include <memory>

#include "e2e/PanelScene.h"
#include "support/win/HeldFile.h"
#include "support/win/WideText.h"
#include "support/win/fileBytes.h"

// Files that another program holds, changes or keeps from being written.

namespace ormala::test {
namespace {

/// The files "<name> (kept ...).ini" beside one.
std::vector<std::filesystem::path> keptBeside(const std::filesystem::path& path) {
    std::vector<std::filesystem::path> found;
    for (const auto& entry : std::filesystem::directory_iterator(path.parent_path())) {
        const std::wstring name = entry.path().filename().wstring();
        if (name.starts_with(path.stem().wstring() + L" (kept ") &&
            name.ends_with(L")" + path.extension().wstring())) {
            found.push_back(entry.path());
        }
    }
    return found;
}

std::string failedToLoad(const std::filesystem::path& path) {
    return "Failed to load file '" + narrow(path.wstring()) + "'.";
}

std::string failedToSave(const std::filesystem::path& path) {
    return "Failed to save file '" + narrow(path.wstring()) + "'.";
}

constexpr const char* saveChanges = "Do you want to save the changes?";

/// A program that finds its own files held by another one.
class HeldAtStart : public testing::Test {
  protected:
    HeldAtStart() {
        ToolSet().stencil({100, 100, 300, 300}).file().write(data_.toolsFile());
        SettingsFile options;
        options.set("Options", "Language", " 9");
        options.set("Options", "TransparencyEditMode", " 33");
        options.write(data_.optionsFile());
    }

    void startWithMessage(const std::filesystem::path& file) {
        program_ = std::make_unique<Program>(data_);
        const MessageBoxWindow box = program_->waitForMessageBox("Ormala");
        EXPECT_EQ(box.text(), failedToLoad(file));
        box.answer(IDOK);
        program_->waitUntilReady();
        EXPECT_FALSE(MessageBoxWindow::isShown(program_->process().id(), "Ormala"));
        EXPECT_TRUE(program_->worksheet().isVisible());
    }

    /// The next end leaves the old bytes beside a new file.
    void closeAndExpectKept(const std::filesystem::path& file, const std::string& old) {
        EXPECT_EQ(program_->close(), 0U);
        const auto kept = keptBeside(file);
        ASSERT_EQ(kept.size(), 1U);
        EXPECT_EQ(bytesOf(kept.front()), old);
        EXPECT_TRUE(SettingsFile::read(file).hasSection("General"));
    }

    AppDataFolder data_;
    std::unique_ptr<Program> program_;
};

TEST_F(HeldAtStart, TheToolsOfTheLastRunAreMissedOnceAndStayBeside) {
    const std::string old = bytesOf(data_.toolsFile());
    HeldFile holder(data_.toolsFile().wstring());
    startWithMessage(data_.toolsFile());
    const DesktopWindow settings = program_->settings();
    EXPECT_TRUE(settings.child("ctlSetRatioGrid").isVisible());
    EXPECT_TRUE(settings.child("ctlSetMeasure").isVisible());
    holder.release();
    closeAndExpectKept(data_.toolsFile(), old);
    EXPECT_TRUE(SettingsFile::read(data_.toolsFile()).hasSection("Tool 2"));
}

TEST_F(HeldAtStart, ToolsThatAreHeldToTheEndStayAsTheyAreAndTheEndSaysSo) {
    const std::string old = bytesOf(data_.toolsFile());
    HeldFile holder(data_.toolsFile().wstring());
    startWithMessage(data_.toolsFile());
    program_->requestClose();
    const MessageBoxWindow box = program_->waitForMessageBox("Ormala");
    EXPECT_TRUE(box.text().starts_with(failedToSave(data_.toolsFile()))) << box.text();
    box.answer(IDOK);
    EXPECT_EQ(program_->waitForExit(), 0U);
    holder.release();
    EXPECT_EQ(bytesOf(data_.toolsFile()), old);
    EXPECT_TRUE(keptBeside(data_.toolsFile()).empty());
}

TEST_F(HeldAtStart, TheOptionsAreMissedOnceAndStayBeside) {
    const std::string old = bytesOf(data_.optionsFile());
    HeldFile holder(data_.optionsFile().wstring());
    startWithMessage(data_.optionsFile());
    EXPECT_EQ(program_->worksheet().layering().alpha, 191);
    holder.release();
    closeAndExpectKept(data_.optionsFile(), old);
    EXPECT_EQ(SettingsFile::read(data_.optionsFile()).value("Options", "TransparencyEditMode"),
              " 25");
}

TEST_F(HeldAtStart, OptionsThatAreTooLargeAreMissedOnceAndStayBeside) {
    const std::string old(17U << 20U, 'x');
    writeBytes(data_.optionsFile(), old);
    startWithMessage(data_.optionsFile());
    closeAndExpectKept(data_.optionsFile(), old);
}

/// A document whose file another program gets hold of.
class HeldDocument : public testing::Test {
  protected:
    HeldDocument() {
        scene_.press("cmdSaveAs");
        scene_.answerFileDialog("Save Tools As", file_);
        EXPECT_TRUE(waitUntil([&] { return std::filesystem::exists(file_); }));
        saved_ = bytesOf(file_);
    }

    void addStencil() {
        const std::size_t before = scene_.panels().size();
        scene_.press("cmdAddGrid");
        EXPECT_TRUE(scene_.waitForPanels(before + 1));
    }
    void answer(const std::string& begin, int button) {
        const MessageBoxWindow box = scene_.program().waitForMessageBox("Ormala");
        EXPECT_TRUE(box.text().starts_with(begin)) << box.text();
        box.answer(button);
    }
    /// A click right behind the closing of a message could meet a window that isn't in front yet.
    void save() {
        EXPECT_TRUE(scene_.settings().settle());
        scene_.settings().activate();
        scene_.press("cmdSave");
    }
    bool hasSecondTool() { return bytesOf(file_).find("[Tool 2]") != std::string::npos; }

    PanelScene scene_{ToolSet().stencil({100, 100, 300, 300}).file()};
    const std::filesystem::path file_ = scene_.data().path() / "held.OM";
    std::string saved_;
};

TEST_F(HeldDocument, ALoadSaysSoOnceAndLeavesToolsAndPanels) {
    const std::filesystem::path other = scene_.data().path() / "other.OM";
    writeBytes(other, saved_);
    HeldFile holder(other.wstring());
    scene_.press("cmdLoad");
    scene_.answerFileDialog("Load Tools", other);
    answer(failedToLoad(other), IDOK);
    EXPECT_TRUE(waitUntil([&] { return scene_.control("lblPath").text().ends_with("other.OM"); }));
    EXPECT_EQ(scene_.panels().size(), 1U);
    addStencil();
    scene_.program().requestClose();
    answer(saveChanges, IDCANCEL);
    holder.release();
    scene_.program().requestClose();
    answer(saveChanges, IDYES);
    EXPECT_EQ(scene_.program().waitForExit(), 0U);
    const auto kept = keptBeside(other);
    ASSERT_EQ(kept.size(), 1U);
    EXPECT_EQ(bytesOf(kept.front()), saved_);
    EXPECT_TRUE(SettingsFile::read(other).hasSection("Tool 2"));
}

TEST_F(HeldDocument, ASaveThatFailsSaysSoAndTheWindowStaysUntilTheWorkIsSafe) {
    addStencil();
    HeldFile holder(file_.wstring(), FILE_SHARE_READ);
    save();
    answer(failedToSave(file_), IDOK);
    EXPECT_EQ(bytesOf(file_), saved_);
    scene_.program().requestClose();
    answer(saveChanges, IDYES);
    answer(failedToSave(file_), IDOK);
    EXPECT_TRUE(scene_.settings().settle());
    EXPECT_TRUE(scene_.settings().isVisible());
    holder.release();
    scene_.program().requestClose();
    answer(saveChanges, IDYES);
    EXPECT_EQ(scene_.program().waitForExit(), 0U);
    EXPECT_TRUE(hasSecondTool());
}

TEST_F(HeldDocument, TheWorkOfAnotherProgramIsWrittenOverOnlyAfterAQuestion) {
    const std::string question =
        "'" + narrow(file_.wstring()) + "' has been changed by another program. Overwrite it?";
    const std::string others = "[Tool 1]\r\nType= 1\r\n";
    addStencil();
    writeBytes(file_, others);
    save();
    answer(question, IDNO);
    EXPECT_EQ(bytesOf(file_), others);
    scene_.program().requestClose();
    answer(saveChanges, IDYES);
    answer(question, IDCANCEL);
    EXPECT_EQ(bytesOf(file_), others);
    EXPECT_TRUE(scene_.settings().isVisible());
    save();
    answer(question, IDYES);
    EXPECT_TRUE(waitUntil([&] { return hasSecondTool(); }));
    EXPECT_EQ(scene_.program().close(), 0U);
}

}  // namespace
}  // namespace ormala::test
