#pragma once

#include <string>

namespace ormala {

/// Opens a link with the program that the user has for it. Nothing happens if there is none.
void openLink(const std::string& link);

}  // namespace ormala
