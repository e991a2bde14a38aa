#include "dialogs/win/FileDialogs.h"

#include <gtest/gtest.h>

#include <fstream>

#include "language/MlStringModule.h"
#include "platform/win/handles.h"
#include "platform/win/text.h"
#include "support/ManualLanguage.h"
#include "support/win/TemporaryFolder.h"
#include "win/ModalPlayer.h"

namespace ormala {
namespace {

std::wstring currentFolder() {
    wchar_t folder[MAX_PATH]{};
    GetCurrentDirectoryW(MAX_PATH, folder);
    return folder;
}

/// The name field of the system's file dialogs.
constexpr int nameField = 1148;

class FileDialogs : public testing::Test {
  protected:
    /// The open dialog, once it can be answered.
    static HWND dialog(const wchar_t* title) {
        const HWND found = FindWindowW(L"#32770", title);
        return found != nullptr && IsWindowVisible(found) != FALSE ? found : nullptr;
    }

    void answer(const wchar_t* title, const std::wstring& name, int button) {
        player_.until("the dialog", [title] { return dialog(title) != nullptr; })
            .then([title, name, button] {
                SendDlgItemMessageW(dialog(title), nameField, WM_SETTEXT, 0,
                                    reinterpret_cast<LPARAM>(name.c_str()));
                PostMessageW(dialog(title), WM_COMMAND, static_cast<WPARAM>(button), 0);
            });
    }

    ManualLanguage language_{languageEnglish};
    test::TemporaryFolder folder_;
    ModalPlayer player_;
};

TEST_F(FileDialogs, TheCurrentFolderStaysTheSame) {
    const std::wstring before = currentFolder();
    const std::wstring file = (folder_.path() / "tools.OM").wstring();
    std::ofstream(folder_.path() / "tools.OM") << "[General]\r\n";
    answer(L"Load Tools", file, IDOK);
    EXPECT_EQ(wide(PickToolsFile(nullptr, false)), file);
    EXPECT_EQ(currentFolder(), before);
}

TEST_F(FileDialogs, ACancelledDialogAnswersNothing) {
    answer(L"Save Tools As", L"tools", IDCANCEL);
    EXPECT_EQ(PickToolsFile(nullptr, true), "");
}

TEST_F(FileDialogs, AFileToSaveNeedNotBeThere) {
    const std::wstring file = (folder_.path() / L"\u03a9 new.OM").wstring();
    answer(L"Save Tools As", file, IDOK);
    EXPECT_EQ(wide(PickToolsFile(nullptr, true)), file);
}

TEST_F(FileDialogs, ANameWithoutAnExtensionGetsThatOfToolSettingsFiles) {
    const std::wstring file = (folder_.path() / "plan").wstring();
    answer(L"Save Tools As", file, IDOK);
    // The dialog may take it from its filter, in small letters.
    const std::wstring named = file + L".OM";
    EXPECT_EQ(CompareStringOrdinal(wide(PickToolsFile(nullptr, true)).c_str(), -1, named.c_str(),
                                   -1, TRUE),
              CSTR_EQUAL);
}

TEST_F(FileDialogs, ASaveOverAFileIsAskedAboutWhenItsExtensionIsLeftOut) {
    std::ofstream(folder_.path() / "plan.OM") << "[General]\r\n";
    const auto question = [] {
        const HWND active = GetActiveWindow();
        return active != nullptr && GetDlgItem(active, IDYES) != nullptr;
    };
    answer(L"Save Tools As", (folder_.path() / "plan").wstring(), IDOK);
    player_.until("the question", question)
        .then([] { PostMessageW(GetActiveWindow(), WM_COMMAND, IDNO, 0); })
        .until("the dialog again", [question] { return !question(); })
        .then([] { PostMessageW(dialog(L"Save Tools As"), WM_COMMAND, IDCANCEL, 0); });
    EXPECT_EQ(PickToolsFile(nullptr, true), "");
}

TEST(CompactPath, KeepsAPathThatFits) {
    const WindowContext screen(nullptr);
    EXPECT_EQ(CompactPathForDisplay("C:\\a\\b.OM", screen.get(), 1000), "C:\\a\\b.OM");
}

TEST(CompactPath, ShortensTheMiddleAndKeepsTheName) {
    const WindowContext screen(nullptr);
    std::string path = "C:";
    for (int i = 0; i < 10; ++i) {
        path += "\\folder number " + std::to_string(i);
    }
    path += "\\name.OM";
    const std::string shortened = CompactPathForDisplay(path, screen.get(), 250);
    EXPECT_LT(shortened.size(), path.size());
    EXPECT_NE(shortened.find("..."), std::string::npos);
    EXPECT_TRUE(shortened.ends_with("\\name.OM"));
    SIZE extent{};
    GetTextExtentPoint32W(screen.get(), wide(shortened).c_str(),
                          static_cast<int>(wide(shortened).size()), &extent);
    EXPECT_LE(extent.cx, 250);
}

TEST(CompactPath, ShortensAPathThatIsLongerThanTheSystemsUsualLimit) {
    const WindowContext screen(nullptr);
    const std::string path = "C:\\" + std::string(300, 'a') + "\\name.OM";
    EXPECT_LT(CompactPathForDisplay(path, screen.get(), 200).size(), path.size());
}

}  // namespace
}  // namespace ormala
