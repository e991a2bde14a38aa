#pragma once

#include <span>
#include <string_view>

#include "modAPI/PixelRect.h"

namespace ormala {

/// Where a control of a page stands, in the page's pixels at 96 DPI.
struct ControlPlace {
    std::string_view name;
    PixelRect box;
};

/// Of every page of the options dialog.
inline constexpr PixelSize optionPageSize{584, 376};

/// The controls of a page, 0 to 2; a frame comes after what it surrounds.
std::span<const ControlPlace> optionPagePlaces(int page);

}  // namespace ormala
