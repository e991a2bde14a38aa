#include "dialogs/win/FileDialogs.h"
// Need the system's basic types, which come with the header.
#include <commdlg.h>
#include <shlwapi.h>

#include <algorithm>
#include <iterator>

#include "language/MlStringModule.h"
#include "platform/win/SystemLibrary.h"
#include "platform/win/text.h"
#include "storage/modStorage.h"

namespace ormala {

namespace {

/// As long as any path can be, in characters.
constexpr DWORD longestPath = 32768;

/// Loaded with the first dialog, since it takes much of the system along.
bool pick(OPENFILENAMEW& record, bool forSaving) {
    static const SystemLibrary dialogs(L"comdlg32.dll");
    auto* const ask = forSaving ? dialogs.function<decltype(GetSaveFileNameW)>("GetSaveFileNameW")
                                : dialogs.function<decltype(GetOpenFileNameW)>("GetOpenFileNameW");
    return ask != nullptr && ask(&record) != FALSE;
}

std::wstring currentFolder() {
    std::wstring folder(GetCurrentDirectoryW(0, nullptr), L'\0');
    folder.resize(GetCurrentDirectoryW(static_cast<DWORD>(folder.size()), folder.data()));
    return folder;
}

/// The dialogs take the process to the folder of the picked file, also where they are told not to.
class CurrentFolderGuard {
  public:
    CurrentFolderGuard() : former_(currentFolder()) {}
    ~CurrentFolderGuard() { SetCurrentDirectoryW(former_.c_str()); }
    CurrentFolderGuard(const CurrentFolderGuard&) = delete;
    CurrentFolderGuard& operator=(const CurrentFolderGuard&) = delete;

  private:
    std::wstring former_;
};

}  // namespace

std::string PickToolsFile(HWND owner, bool forSaving) {
    const CurrentFolderGuard guard;
    constexpr wchar_t pattern[] = L"*.OM";
    std::wstring filter = wide(MlString(316, "Ormala file (*.OM)"));
    filter += L'\0';
    filter.append(pattern, std::size(pattern));
    const std::wstring title =
        wide(forSaving ? MlString(317, "Save Tools As") : MlString(318, "Load Tools"));
    std::wstring file(longestPath, L'\0');
    OPENFILENAMEW record{};
    record.lStructSize = sizeof record;
    record.hwndOwner = owner;
    record.lpstrFilter = filter.c_str();
    record.lpstrFile = file.data();
    record.nMaxFile = longestPath;
    record.lpstrTitle = title.c_str();
    // So that the dialog looks for the file, and asks about it, under its whole name.
    record.lpstrDefExt = L"OM";
    record.Flags =
        OFN_LONGNAMES | OFN_HIDEREADONLY | (forSaving ? OFN_OVERWRITEPROMPT : OFN_FILEMUSTEXIST);
    std::string name = pick(record, forSaving) ? narrow(file) : std::string();
    CutAtNull(name);
    return name;
}

std::string CompactPathForDisplay(const std::string& path, HDC context, int width) {
    std::wstring shortened = wide(path);
    const std::size_t length = shortened.size();
    // Room for an ellipsis.
    shortened.resize(std::max<std::size_t>(length + 4, MAX_PATH));
    if (length < MAX_PATH) {
        PathCompactPathW(context, shortened.data(), static_cast<UINT>(std::max(width, 0)));
    } else {
        RECT room{0, 0, width, 0};
        DrawTextW(context, shortened.data(), static_cast<int>(length), &room,
                  DT_CALCRECT | DT_SINGLELINE | DT_NOPREFIX | DT_PATH_ELLIPSIS | DT_MODIFYSTRING);
    }
    std::string text = narrow(shortened);
    CutAtNull(text);
    return text;
}

}  // namespace ormala
