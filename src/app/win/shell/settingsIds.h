#pragma once

#include <windows.h>

// Numbers of the control window's own timers and controls.

namespace ormala {

/// The shared clock, and that of the buttons that grow.
inline constexpr UINT_PTR tmrFast = 1;
inline constexpr UINT_PTR tmrButtonBig = 2;
/// While another program holds the clipboard, and while a note is shown.
inline constexpr UINT_PTR tmrClipboard = 3;
inline constexpr UINT_PTR tmrNote = 4;
/// While panels are made ready that may be seen next.
inline constexpr UINT_PTR tmrSupply = 5;
/// While another program holds the clipboard, and a text is to be put on it.
inline constexpr UINT_PTR tmrCopy = 6;

/// Above those of the toolbar.
inline constexpr int idList = 200;
inline constexpr int idFontSize = 201;

}  // namespace ormala
