#include "magnifier/lensTexts.h"

#include "language/MlStringModule.h"

namespace ormala {

std::string lensTitle(int factor) {
    return MlString(243, "Magnifier ") + std::to_string(factor) + " X";
}

std::string lensCaption(int factor, bool sticked) {
    return sticked ? std::string{} : lensTitle(factor);
}

}  // namespace ormala
