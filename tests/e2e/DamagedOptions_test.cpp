#include <gtest/gtest.h>
#include <windows.h>

#include <filesystem>
#include <fstream>
#include <memory>

#include "e2e/SheetScene.h"
#include "support/win/WideText.h"

namespace ormala::test {
namespace {

/// A program on a profile that somebody has damaged before.
class DamagedOptions : public testing::Test {
  protected:
    DamagedOptions() { std::filesystem::create_directories(file_.parent_path()); }

    void writeBytes(const std::string& bytes) { std::ofstream(file_, std::ios::binary) << bytes; }

    void start() {
        program_ = std::make_unique<Program>(data_);
        expectRunning();
    }

    void expectRunning() {
        program_->waitUntilReady();
        EXPECT_EQ(program_->settings().text(), "Ormala - Edit");
        EXPECT_TRUE(program_->worksheet().isVisible());
    }

    void closeWithMessage() {
        program_->requestClose();
        const MessageBoxWindow box = program_->waitForMessageBox("Ormala");
        EXPECT_TRUE(
            box.text().starts_with("Failed to save file '" + narrow(file_.wstring()) + "'."))
            << box.text();
        box.answer(IDOK);
        EXPECT_EQ(program_->waitForExit(), 0U);
    }

    AppDataFolder data_;
    std::filesystem::path file_ = data_.optionsFile();
    std::unique_ptr<Program> program_;
};

TEST_F(DamagedOptions, NoiseIsKeptAndWrittenBehind) {
    std::string noise;
    for (int i = 0; i < 65536; ++i) {
        noise += static_cast<char>((i * 197 + i / 7) & 0xFF);
    }
    writeBytes(noise);
    start();
    EXPECT_EQ(program_->close(), 0U);
    EXPECT_EQ(SettingsFile::read(file_).value("Options", "Mode"), " 0");
}

TEST_F(DamagedOptions, OneLineOfTenMegabytesStartsAndCloses) {
    writeBytes(std::string(10U << 20U, 'x'));
    start();
    EXPECT_EQ(program_->close(), 0U);
    EXPECT_EQ(SettingsFile::read(file_).value("Options", "Mode"), " 0");
}

TEST_F(DamagedOptions, FolderOfThatNameIsToldAtTheStartAndAtTheEnd) {
    std::filesystem::create_directory(file_);
    program_ = std::make_unique<Program>(data_);
    const MessageBoxWindow box = program_->waitForMessageBox("Ormala");
    EXPECT_EQ(box.text(), "Failed to load file '" + narrow(file_.wstring()) + "'.");
    box.answer(IDOK);
    expectRunning();
    closeWithMessage();
    EXPECT_TRUE(std::filesystem::is_directory(file_));
}

TEST_F(DamagedOptions, ReadOnlyFileIsToldAtTheEndAndStaysAsItIs) {
    writeBytes("[Options]\r\nTransparencyEditMode= 33\r\n");
    SetFileAttributesW(file_.c_str(), FILE_ATTRIBUTE_READONLY);
    start();
    closeWithMessage();
    SetFileAttributesW(file_.c_str(), FILE_ATTRIBUTE_NORMAL);
    EXPECT_EQ(SettingsFile::read(file_).text(), "[Options]\r\nTransparencyEditMode= 33\r\n");
}

TEST_F(DamagedOptions, ValuesThatAreNoneReadAsTheyAreTold) {
    writeBytes(
        "[Options]\r\nMode=99999999999\r\nGridSizeX= 0\r\nLanguage=2057\r\n"
        "TransparencyEditMode=abc\r\n");
    program_ = std::make_unique<Program>(data_);
    // The number outside the range leaves its message at the end of the load.
    const MessageBoxWindow box = program_->waitForMessageBox("Ormala");
    EXPECT_EQ(box.text(), "Failed to load file '" + narrow(file_.wstring()) + "'.");
    box.answer(IDOK);
    program_->waitUntilReady();
    EXPECT_EQ(program_->settings().text(), "Ormala - Edit");
    EXPECT_EQ(program_->worksheet().layering().alpha, 255);
    EXPECT_EQ(program_->close(), 0U);
    const SettingsFile file = SettingsFile::read(file_);
    EXPECT_EQ(file.value("Options", "GridSizeX"), " 50");
    EXPECT_EQ(file.value("Options", "Language"), " 9");
}

}  // namespace
}  // namespace ormala::test
