#pragma once

#include <windows.h>

namespace ormala {

/// Gives the keyboard to the foremost window of another program that can use it, or to the desktop.
/// This program must have it.
void giveKeyboardToProgramBelow();

}  // namespace ormala
