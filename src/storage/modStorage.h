#pragma once

#include <string>
#include <string_view>

#include "storage/FileStore.h"

namespace ormala {

class INIFile;

/// False only if the system says that the file is not found. True also where the path can't be
/// looked at, such as in a folder that is missing.
bool FileExists(FileStore& store, const std::string& path);

/// Makes every folder in front of the path's last backslash; true on success.
bool CreateFolderForFile(FileStore& store, const std::string& path);

/// Ends the text before its first zero byte.
void CutAtNull(std::string& text);

/// Writes the section that names the program, its version ("3.1.5") and the local time of saving
/// ("2024-01-31 23:05:09"), and leaves it current.
void WriteFileHeader(INIFile& file, std::string_view version, std::string_view time);

}  // namespace ormala
