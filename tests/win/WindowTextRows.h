#pragma once

#include <span>
#include <string_view>

namespace ormala {

/// What a window or a control says in every language: in its text "{156}" stands for that row of
/// the string table, and a star at the end for what is the same in all languages.
struct WindowTextRow {
    /// As in `WindowText`.
    std::string_view place;
    std::string_view text;
    /// The row of its tip; 0 for none.
    int tip = 0;
};

/// All windows and controls of the program that say something, with a stencil and a measuring tool.
std::span<const WindowTextRow> windowTextRows();

}  // namespace ormala
