#pragma once

#include <cstddef>
#include <optional>
#include <span>

#include "modAPI/PixelRect.h"

namespace ormala {

/// The button that an arrow key leads to from one of these: left and right the next one in its row,
/// up and down the one in the next row that lies nearest to the same column. Nothing for another
/// key, and where there is none.
std::optional<std::size_t> buttonBeside(std::span<const PixelRect> buttons, std::size_t from,
                                        int key);

}  // namespace ormala
