#pragma once

#include <optional>
#include <string>

#include "support/win/Picture.h"

namespace ormala::test::clipboard {

void clear();
/// The picture on the clipboard, with its upper left corner at `origin`; none if there is none.
std::optional<Picture> picture(ScreenPoint origin);

/// The text on it, empty if there is none.
std::string text();

/// Keeps the clipboard from all other programs for its lifetime.
class Held {
  public:
    Held();
    Held(const Held&) = delete;
    Held& operator=(const Held&) = delete;
    ~Held();
};

}  // namespace ormala::test::clipboard
