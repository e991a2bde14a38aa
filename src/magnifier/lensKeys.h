#pragma once

namespace ormala {

enum class LensKey {
    none,
    menu,
    help,
    options,
    editMode,
    pauseMode,
    pauseAndMinimise,
    templateMode,
    templateAndMinimise
};

/// What a key asks of the magnifier; `shift` holds the modifier bits.
LensKey lensKeyOf(int key, int shift);

}  // namespace ormala
