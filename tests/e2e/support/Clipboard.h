#pragma once

#include <optional>

#include "support/win/Picture.h"

namespace ormala::test::clipboard {

void clear();
/// The picture on the clipboard, with its upper left corner at `origin`; none if there is none.
std::optional<Picture> picture(ScreenPoint origin);

}  // namespace ormala::test::clipboard
