#pragma once

#include <string>

namespace ormala {

/// The shell's number of the folder for the user's application data.
constexpr int folderApplicationData = 26;

/// The path of one of the shell's folders, without a backslash at its end; empty if the shell
/// doesn't know it.
std::string GetSpecialFolder(int number);

}  // namespace ormala
