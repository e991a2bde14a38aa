#pragma once

#include "e2e/support/Backdrop.h"

namespace ormala::test {

// What the tests of the stage itself put on it.

inline constexpr BackdropLook plain{BackdropPattern::Solid, 0x00C08040};
inline constexpr ScreenRect windowPlace{300, 200, 500, 300};

}  // namespace ormala::test
