#pragma once

#include <string>

#include "storage/CodePage.h"

namespace ormala {

/// The text of a settings file in the code page. A file that begins with the mark of UTF-16, little
/// end first, or of UTF-8 is in that form, as editors write it; any other is in the code page.
std::string codePageText(std::string bytes, const CodePage& codePage);

}  // namespace ormala
