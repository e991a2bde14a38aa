#pragma once

#include <windows.h>

#include <string>

#include "platform/win/PlaceAcrossDpi.h"
#include "storage/WindowPlacement.h"

namespace ormala {

/// `RefreshScreenBounds`: the work area of the primary screen and the bounds of all screens, as
/// they are now.
ScreenAreas screenAreas();

/// How a window is to be placed again; `cascade` as for `restoredPlacement`.
RestoredPlacement storedPlacement(HWND window, INIFile& options, const std::string& section,
                                  bool cascade);

/// The window's placement, as it is to be stored.
WindowPlacement placementOf(HWND window);
/// Brings a hidden window back to where it was stored; `cascade` as for `restoredPlacement`.
void RestoreFormPlacement(HWND window, PlaceAcrossDpi& place, INIFile& options,
                          const std::string& section, bool cascade);

/// Brings a window back that has lost its screen while it was there. It stays hidden, minimised or
/// behind others as it was.
void bringOntoScreens(HWND window);

/// The resolution of the window's monitor.
int dpiOf(HWND window);

}  // namespace ormala
