#pragma once

#include <string>

namespace ormala {

/// What the system says of one of its errors, in the language of the user: UTF-8, without a line
/// end. Empty for a number that it doesn't know.
std::string systemMessage(unsigned long error);

}  // namespace ormala
