#include "platform/win/inputMethod.h"

#include <imm.h>

namespace ormala {

void takeNoInputMethod(HWND window) {
    ImmAssociateContextEx(window, nullptr, 0);
}

}  // namespace ormala
