#include <gtest/gtest.h>
#include <windows.h>
// Need what windows.h declares.
#include <propidl.h>
//
#include <gdiplus.h>

#include <cstdlib>
#include <fstream>
#include <iterator>

#include "e2e/support/Desktop.h"

namespace ormala::test {
namespace {

constexpr BackdropLook plain{BackdropPattern::Solid, 0x00C08040};

std::string content(const std::filesystem::path& path) {
    std::ifstream file(path, std::ios::binary);
    return {std::istreambuf_iterator<char>(file), {}};
}

/// Sets a variable of the environment for its lifetime.
class EnvironmentValue {
  public:
    EnvironmentValue(const wchar_t* name, const std::filesystem::path& value) : name_(name) {
        const wchar_t* before = _wgetenv(name);
        before_ = before == nullptr ? L"" : before;
        _wputenv_s(name, value.c_str());
    }
    ~EnvironmentValue() { _wputenv_s(name_, before_.c_str()); }
    EnvironmentValue(const EnvironmentValue&) = delete;
    EnvironmentValue& operator=(const EnvironmentValue&) = delete;

  private:
    const wchar_t* name_;
    std::wstring before_;
};

/// What a program that starts now hears from the shell as the application-data folder.
std::filesystem::path applicationDataOfAProgram() {
    const TemporaryFolder folder;
    const auto file = folder.path() / "answer.txt";
    const ChildProcess asker(testProgramFolder() / "application_data_folder.exe", {file.wstring()});
    EXPECT_EQ(asker.waitForExit(), 0U);
    return wide(content(file));
}

/// The file's pixels as the system's own reader sees them.
Picture readByTheSystem(const std::filesystem::path& path, const ScreenRect& rect) {
    const Gdiplus::GdiplusStartupInput input;
    ULONG_PTR token = 0;
    Gdiplus::GdiplusStartup(&token, &input, nullptr);
    std::vector<Color> pixels;
    {
        Gdiplus::Bitmap bitmap(path.c_str());
        EXPECT_EQ(static_cast<int>(bitmap.GetWidth()), rect.width());
        EXPECT_EQ(static_cast<int>(bitmap.GetHeight()), rect.height());
        for (int y = 0; y < rect.height(); ++y) {
            for (int x = 0; x < rect.width(); ++x) {
                Gdiplus::Color color;
                bitmap.GetPixel(x, y, &color);
                pixels.push_back(color.ToCOLORREF());
            }
        }
    }
    Gdiplus::GdiplusShutdown(token);
    return {rect, std::move(pixels)};
}

TEST(Stage, ProgramsGetTheFreshApplicationDataFolder) {
    const auto usual = applicationDataOfAProgram();
    {
        const AppDataFolder data;
        EXPECT_TRUE(std::filesystem::is_empty(data.path()));
        EXPECT_NE(data.path(), usual);
        EXPECT_EQ(applicationDataOfAProgram(), data.path());
    }
    EXPECT_EQ(applicationDataOfAProgram(), usual);
}

TEST(Stage, ApplicationDataFolderIsRestoredAfterACrash) {
    const auto usual = applicationDataOfAProgram();
    auto abandoned = std::make_unique<AppDataFolder>();
    ASSERT_EQ(applicationDataOfAProgram(), abandoned->path());
    AppDataFolder::restoreAfterCrash();
    EXPECT_EQ(applicationDataOfAProgram(), usual);
    abandoned.reset();
    EXPECT_EQ(applicationDataOfAProgram(), usual);
}

TEST(Stage, SavedPictureIsReadBackByTheSystem) {
    const TemporaryFolder folder;
    const Backdrop backdrop({BackdropPattern::Points, 0});
    // More bytes than one block of the file holds.
    const ScreenRect rect{130, 210, 430, 310};
    const Picture shown = screen::capture(rect);
    savePng(shown, folder.path() / "shown.png");
    EXPECT_EQ(readByTheSystem(folder.path() / "shown.png", rect), shown);
}

TEST(Stage, DifferenceTellsWhereAndHowMuch) {
    const ScreenRect rect{10, 20, 13, 22};
    const Picture a(rect, {0, 0, 0, 0, 0, 0});
    const Picture b(rect, {0, 0x00000300, 0, 0, 0, 0x00090000});
    const Difference all = difference(a, b);
    EXPECT_EQ(all.places, (std::vector<ScreenPoint>{{11, 20}, {12, 21}}));
    EXPECT_EQ(all.box, (ScreenRect{11, 20, 13, 22}));
    EXPECT_EQ(all.largest, 9);
    EXPECT_EQ(difference(a, b, 3).places, (std::vector<ScreenPoint>{{12, 21}}));
    EXPECT_TRUE(difference(a, b, 9).empty());
}

TEST(Stage, SettingsAreReadAsTheyStand) {
    const TemporaryFolder folder;
    const auto path = folder.path() / "new" / "Ormala.ini";
    SettingsFile written;
    written.set("Options", "Ratio", " 1.618");
    written.set("Options", "Mode", " 2");
    written.set("options", "MODE", " 1");
    written.set("Other", "Name", "a=b ");
    written.write(path);
    EXPECT_EQ(content(path), "[Options]\r\nRatio= 1.618\r\nMode= 1\r\n[Other]\r\nName=a=b \r\n");
    const SettingsFile settings = SettingsFile::read(path);
    EXPECT_EQ(settings, written);
    EXPECT_EQ(settings.value("OPTIONS", "ratio"), " 1.618");
    EXPECT_EQ(settings.number("Options", "Ratio"), 1.618);
    EXPECT_EQ(settings.number("Other", "Name"), std::nullopt);
    EXPECT_EQ(settings.value("Other", "Missing"), std::nullopt);
    EXPECT_EQ(settings.sectionNames(), (std::vector<std::string>{"Options", "Other"}));
}

TEST(Stage, SettingsLeaveOutCommentsAndStrayLines) {
    const auto settings = SettingsFile::parse("A=0\n; B=1\n[One]\nnonsense\n;C=2\n D =3\n");
    EXPECT_EQ(settings.text(), "[One]\r\nD=3\r\n");
}

TEST(Stage, ProcessEndsWithItsObject) {
    DesktopWindow window;
    {
        const ChildProcess process(testProgramFolder() / "backdrop.exe", {L"columns"});
        window = waitForTopLevel(process.id(), "OrmalaBackdrop");
        EXPECT_TRUE(process.isRunning());
        EXPECT_EQ(process.waitForExit(milliseconds(20)), std::nullopt);
        EXPECT_GT(process.privateBytes(), 1'000'000U);
        EXPECT_GT(process.processorTime(), milliseconds(0));
    }
    window.waitUntilClosed();
}

TEST(Stage, ExitCodeOfAProgramIsRead) {
    const ChildProcess wrong(testProgramFolder() / "backdrop.exe", {L"stripes"});
    EXPECT_EQ(wrong.waitForExit(), 2U);
    Backdrop backdrop(plain);
    EXPECT_TRUE(backdrop.close());
    EXPECT_THROW(ChildProcess(testProgramFolder() / "missing.exe"), std::runtime_error);
}

TEST(Stage, ProgramThatEndsDuringItsLoadFailsTheStage) {
    // The backdrop ends at once without a look.
    const EnvironmentValue exe(L"ORMALA_EXE", testProgramFolder() / "backdrop.exe");
    const AppDataFolder data;
    const Program program(data);
    EXPECT_THROW(program.waitUntilReady(), StageFailure);
    EXPECT_EQ(program.waitForExit(), 2U);
}

TEST(Stage, FailureKeepsAPictureAndTheWindows) {
    const TemporaryFolder folder;
    const Backdrop backdrop(plain);
    {
        const EnvironmentValue kept(L"ORMALA_ARTIFACTS", folder.path() / "kept");
        EXPECT_THROW(failStage("on purpose"), StageFailure);
    }
    const std::string name = "Stage.FailureKeepsAPictureAndTheWindows";
    const ScreenRect all = screen::virtualScreen();
    const Picture kept = readByTheSystem(folder.path() / "kept" / (name + ".png"), all);
    EXPECT_EQ(kept.part(backdrop.rect()), backdrop.picture(backdrop.rect()));
    EXPECT_NE(content(folder.path() / "kept" / (name + ".txt")).find("OrmalaBackdrop"),
              std::string::npos);
}

}  // namespace
}  // namespace ormala::test
