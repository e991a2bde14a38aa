#pragma once

namespace ormala {

/// Whether the user holds a button of the mouse at this moment, whatever window it is for.
bool isAnyMouseButtonHeld();

}  // namespace ormala
