#pragma once

#include <stdexcept>

#include "stencil/StencilGrips.h"

namespace ormala {

/// Where that grip stands among those of a stencil.
inline int indexOfStencilGrip(StencilGripKind kind, int number) {
    for (int index = 0; index < stencilGripCount; ++index) {
        const StencilGrip grip = stencilGrip(index);
        if (grip.kind == kind && grip.number == number) {
            return index;
        }
    }
    throw std::out_of_range("a stencil has no such grip");
}

}  // namespace ormala
