#pragma once

#include <string>

#include "base/ClipboardAnswer.h"
#include "modAPI/PixelRect.h"
#include "modAPI/colors.h"

namespace ormala {

/// What the user is told of a screen shot of that size.
std::string shotNote(ClipboardAnswer answer, PixelSize size);

/// A text for the clipboard, and what the user is told of it once it is there.
struct TextCopy {
    std::string text;
    std::string note;
};

/// The lines of a panel, each with its line end but for the last one.
TextCopy copyOfReadOuts(const std::string& lines);
/// As "#RRGGBB".
TextCopy copyOfColor(Color color);

/// What the user is told of it in the end.
std::string copyNote(ClipboardAnswer answer, const TextCopy& copy);

/// How long another program may hold the clipboard before the program gives up, and how often it
/// asks, in milliseconds.
constexpr int clipboardPatience = 500;
constexpr int clipboardInterval = 25;

}  // namespace ormala
