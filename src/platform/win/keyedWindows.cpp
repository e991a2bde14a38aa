#include "platform/win/keyedWindows.h"

#include <windows.h>

namespace ormala {

bool cutsKeyedWindowsAsShapes() {
    return GetProcAddress(GetModuleHandleW(L"ntdll.dll"), "wine_get_version") != nullptr;
}

}  // namespace ormala
