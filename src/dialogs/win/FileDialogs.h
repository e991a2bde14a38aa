#pragma once

#include <windows.h>

#include <string>

namespace ormala {

/// The system's modal dialog for a tool-settings file to load or to save; empty if it was
/// cancelled. The process's current folder is afterwards what it was before. A name that is typed
/// without an extension gets that of tool-settings files; any other stays as it was typed.
std::string PickToolsFile(HWND owner, bool forSaving);

/// The path with an ellipsis for its middle folders, so that it fits a width in pixels in the
/// device context's font. The file's name stays readable if there is any room for it.
std::string CompactPathForDisplay(const std::string& path, HDC context, int width);

}  // namespace ormala
