#include "app/shotNotes.h"

#include <array>

#include "language/MlStringModule.h"

namespace ormala {

std::string shotNote(ShotOutcome outcome, PixelSize size) {
    switch (outcome) {
        case ShotOutcome::copied: {
            const std::array sides{std::to_string(size.width), std::to_string(size.height)};
            return MlFormat(MlString(560, "%0 x %1 pixels copied to the clipboard"), sides);
        }
        case ShotOutcome::held:
            return MlString(561, "The clipboard is in use by another program.");
        case ShotOutcome::failed:
            break;
    }
    return MlString(563, "The screen shot could not be taken.");
}

}  // namespace ormala
