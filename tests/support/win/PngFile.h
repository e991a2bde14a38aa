#pragma once

#include <filesystem>

#include "support/win/Picture.h"

namespace ormala::test {

/// Writes the picture as an 8-bit RGB PNG without compression. Throws std::runtime_error if the
/// file cannot be written.
void savePng(const Picture& picture, const std::filesystem::path& path);

}  // namespace ormala::test
