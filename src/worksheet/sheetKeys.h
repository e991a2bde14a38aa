#pragma once

namespace ormala {

enum class SheetCommand {
    none,
    contextMenu,
    help,
    editMode,
    pauseMode,
    pauseAndMinimise,
    templateMode,
    templateAndMinimise,
    options,
    nextTool,
    previousTool,
    undo,
    redo
};

/// What a key asks of a worksheet that takes the mouse; `none` leaves it to the tool with the
/// focus.
SheetCommand sheetCommandOf(int key, int shift);

}  // namespace ormala
