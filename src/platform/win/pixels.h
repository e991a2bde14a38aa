#pragma once

#include <windows.h>

#include <cstdint>
#include <span>

#include "scene/PixelImage.h"

namespace ormala {

/// Puts the image, whose opacity counts for nothing, at the origin of the device context.
void copyPixels(HDC context, const PixelImage& image);

/// Puts pixels of the form 0x00RRGGBB into one row, from `left` to the right.
void copyRow(HDC context, PixelPoint left, std::span<const std::uint32_t> pixels);

}  // namespace ormala
