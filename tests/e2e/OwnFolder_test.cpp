#include <gtest/gtest.h>

#include <array>
#include <cstdlib>
#include <fstream>

#include "e2e/support/Program.h"
#include "support/win/TemporaryFolder.h"

// Files beside the program that bear the names of libraries of Windows, as somebody may put them
// into a folder of downloads.

namespace ormala::test {
namespace {

constexpr const wchar_t* programVariable = L"ORMALA_EXE";

/// A copy of the program in a folder of its own, which is started instead of it.
class CopiedProgram {
  public:
    CopiedProgram() {
        if (const wchar_t* named = _wgetenv(programVariable)) {
            former_ = named;
        }
        const std::filesystem::path built =
            former_.empty() ? testProgramFolder() / "../../Ormala.exe" : former_;
        const std::filesystem::path copy = folder() / "Ormala.exe";
        std::filesystem::copy_file(built, copy);
        _wputenv_s(programVariable, copy.wstring().c_str());
    }
    ~CopiedProgram() { _wputenv_s(programVariable, former_.wstring().c_str()); }
    CopiedProgram(const CopiedProgram&) = delete;
    CopiedProgram& operator=(const CopiedProgram&) = delete;

    const std::filesystem::path& folder() const { return folder_.path(); }

  private:
    TemporaryFolder folder_;
    std::filesystem::path former_;
};

TEST(OwnFolder, NothingInItIsTakenForALibraryOfWindows) {
    const AppDataFolder data;
    const CopiedProgram copy;
    for (const char* name : {"dwmapi.dll", "oleacc.dll", "wtsapi32.dll"}) {
        std::ofstream(copy.folder() / name, std::ios::binary) << "no library";
    }
    const Program program(data);
    program.waitUntilReady();
    // What screen readers ask for, which needs a library.
    const DesktopWindow button = program.settings().child("ZelvikButtonXP", "btnMode(0)");
    EXPECT_NE(button.send(WM_GETOBJECT, 0, OBJID_CLIENT).value_or(0), 0);
    EXPECT_EQ(program.close(), 0U);
}

}  // namespace
}  // namespace ormala::test
