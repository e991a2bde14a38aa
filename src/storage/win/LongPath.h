#pragma once

#include <string>
#include <string_view>

namespace ormala {

/// The path in the form that the system takes at any length. Empty for a path that can't be one: an
/// empty text, or one with a zero byte in it.
std::wstring longPath(std::string_view path);

/// The folder that the path of a file begins with, its last backslash included.
std::wstring folderOf(const std::wstring& longPath);

}  // namespace ormala
