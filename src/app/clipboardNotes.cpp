#include "app/clipboardNotes.h"

#include <algorithm>
#include <array>

#include "language/MlStringModule.h"
#include "magnifier/lensTexts.h"

namespace ormala {

namespace {

std::string heldNote() {
    return MlString(561, "The clipboard is in use by another program.");
}

}  // namespace

std::string shotNote(ClipboardAnswer answer, PixelSize size) {
    switch (answer) {
        case ClipboardAnswer::taken: {
            const std::array sides{std::to_string(size.width), std::to_string(size.height)};
            return MlFormat(MlString(560, "%0 x %1 pixels copied to the clipboard"), sides);
        }
        case ClipboardAnswer::held:
            return heldNote();
        case ClipboardAnswer::refused:
            break;
    }
    return MlString(563, "The screen shot could not be taken.");
}

TextCopy copyOfReadOuts(const std::string& lines) {
    const std::array count{std::to_string(std::ranges::count(lines, '\n') + 1)};
    return {lines, MlFormat(MlString(660, "%0 values copied to the clipboard"), count)};
}

TextCopy copyOfColor(Color color) {
    const std::array text{hexadecimal(color)};
    return {text.front(), MlFormat(MlString(661, "%0 copied to the clipboard"), text)};
}

std::string copyNote(ClipboardAnswer answer, const TextCopy& copy) {
    switch (answer) {
        case ClipboardAnswer::taken:
            return copy.note;
        case ClipboardAnswer::held:
            return heldNote();
        case ClipboardAnswer::refused:
            break;
    }
    return MlString(662, "Nothing could be put on the clipboard.");
}

}  // namespace ormala
