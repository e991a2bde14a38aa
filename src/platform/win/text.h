#pragma once

#include <string>
#include <string_view>

namespace ormala {

/// UTF-8 to the system's UTF-16 and back.
std::wstring wide(std::string_view text);
std::string narrow(std::wstring_view text);

}  // namespace ormala
