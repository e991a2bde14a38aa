#include <windows.h>
// Needs what windows.h declares.
#include <shlobj.h>

#include <array>
#include <filesystem>
#include <fstream>

#include "support/win/WideText.h"

// Writes the path of the shell's special folder 26, as UTF-8, into the file that is named on the
// command line. The exit code is not 0 if the shell knows no path.
int wmain(int count, wchar_t** arguments) {
    PIDLIST_ABSOLUTE list = nullptr;
    if (count != 2 || FAILED(SHGetSpecialFolderLocation(nullptr, CSIDL_APPDATA, &list))) {
        return 1;
    }
    std::array<wchar_t, MAX_PATH> path{};
    const BOOL known = SHGetPathFromIDListW(list, path.data());
    CoTaskMemFree(list);
    std::ofstream out(std::filesystem::path(arguments[1]), std::ios::binary);
    out << ormala::test::narrow(path.data());
    return known != 0 && out.flush() ? 0 : 1;
}
