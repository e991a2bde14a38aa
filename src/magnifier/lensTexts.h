#pragma once

#include <string>

namespace ormala {

/// The name of the magnifier with its factor, such as "Magnifier 4 X".
std::string lensTitle(int factor);

/// The window's caption: empty while it follows the mouse.
std::string lensCaption(int factor, bool sticked);

}  // namespace ormala
