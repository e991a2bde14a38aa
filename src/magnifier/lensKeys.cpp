#include "magnifier/lensKeys.h"

#include "scene/Input.h"

namespace ormala {

LensKey lensKeyOf(int key, int shift) {
    const bool shiftOnly = shift == modifier::shift;
    // The system's own key for closing a window.
    const bool closing = key == key::f4 && (shift & modifier::alt) != 0;
    if (closing) {
        return LensKey::none;
    }
    switch (key) {
        case key::menu:
            return LensKey::menu;
        case key::f1:
            return LensKey::help;
        case key::f2:
            return LensKey::editMode;
        case key::f3:
            return shiftOnly ? LensKey::pauseAndMinimise : LensKey::pauseMode;
        case key::f4:
            return shiftOnly ? LensKey::templateAndMinimise : LensKey::templateMode;
        case key::f12:
            return LensKey::options;
        default:
            return LensKey::none;
    }
}

}  // namespace ormala
