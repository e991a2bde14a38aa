#pragma once

namespace ormala {

enum class SheetCommand {
    none,
    help,
    editMode,
    pauseMode,
    pauseAndMinimise,
    templateMode,
    templateAndMinimise,
    nextTool,
    previousTool,
    undo,
    redo
};

/// What a key asks of a worksheet that takes the mouse; `none` leaves it to the tool with the
/// focus.
SheetCommand sheetCommandOf(int key, int shift);

}  // namespace ormala
