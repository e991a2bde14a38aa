#pragma once

#include "scene/Input.h"

namespace ormala {

/// The mouse at that place with these buttons and no modifier.
inline MouseInput at(int button, float x, float y) {
    return {button, 0, x, y};
}

}  // namespace ormala
