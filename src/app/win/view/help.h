#pragma once

#include <windows.h>

#include <string>

namespace ormala {

/// Of the help in the user's language.
std::string helpFileName();

/// Opens it with the program that the user opens such files with: the one in the current folder,
/// else the one beside the program. False if there is neither or it can't be opened.
bool openHelp(HWND window);

}  // namespace ormala
