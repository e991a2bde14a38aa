#pragma once

#include <memory>

#include "platform/win/handles.h"

namespace ormala {

enum class FontLook { normal, bold };

/// Of a font of that size as the system counts it: letters without the room above them.
int fontHeight(int points, int dpi);

/// The type of all windows of controls: Tahoma at so many points, smoothed for the screen.
FontHandle controlFont(int dpi, FontLook look, int points = 8);

/// Fonts of windows of controls are shared by all controls that look alike, and live as long as one
/// of them. Of the thread of the windows only.
using SharedFont = std::shared_ptr<const FontHandle>;
SharedFont sharedControlFont(int dpi, FontLook look, int points = 8);

/// The same type not smoothed, for texts on a ground that is keyed out.
FontHandle worksheetFont(int dpi, int points);

/// The same type smoothed in grey alone, whose pixels say how much of them a letter covers.
FontHandle coverageFont(int dpi, int points = 8);

}  // namespace ormala
