#pragma once

#include <string>

#include "modAPI/PixelRect.h"

namespace ormala {

/// What has become of a screen shot. `held`: another program did not let go of the clipboard.
enum class ShotOutcome { copied, held, failed };

/// What the user is told of it.
std::string shotNote(ShotOutcome outcome, PixelSize size);

/// How long another program may hold the clipboard before a shot gives up, and how often it asks,
/// in milliseconds.
constexpr int clipboardPatience = 500;
constexpr int clipboardInterval = 25;

}  // namespace ormala
