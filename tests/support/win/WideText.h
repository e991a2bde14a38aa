#pragma once

#include <string>
#include <string_view>

namespace ormala::test {

/// UTF-8 as the W functions of the system take it.
std::wstring wide(std::string_view text);

/// Text from the W functions of the system as UTF-8.
std::string narrow(std::wstring_view text);

}  // namespace ormala::test
