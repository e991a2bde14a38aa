#pragma once

#include <filesystem>

#include "support/win/Picture.h"

namespace ormala::test {

/// Writes the picture as a PNG. Throws std::runtime_error if the file cannot be written.
void savePng(const Picture& picture, const std::filesystem::path& path);

/// Reads a PNG, its upper left corner at the origin. Throws std::runtime_error if there is none
/// that can be read.
Picture loadPng(const std::filesystem::path& path);

}  // namespace ormala::test
