#include "app/keyboardHeir.h"

namespace ormala {

bool inheritsKeyboard(const TopWindow& window) {
    return !window.ofThisProgram && window.shown && window.enabled && !window.minimised &&
           !window.standsAside;
}

}  // namespace ormala
