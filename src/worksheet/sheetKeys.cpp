#include "worksheet/sheetKeys.h"

#include "scene/Input.h"

namespace ormala {

SheetCommand sheetCommandOf(int key, int shift) {
    const bool shiftOnly = shift == modifier::shift;
    const bool ctrlOnly = shift == modifier::ctrl;
    switch (key) {
        case key::menu:
            return SheetCommand::contextMenu;
        case key::f1:
            return SheetCommand::help;
        case key::f2:
            return SheetCommand::editMode;
        case key::f3:
            return shiftOnly ? SheetCommand::pauseAndMinimise : SheetCommand::pauseMode;
        case key::f4:
            return shiftOnly ? SheetCommand::templateAndMinimise : SheetCommand::templateMode;
        case key::f12:
            return SheetCommand::options;
        case key::tab:
            return shiftOnly ? SheetCommand::previousTool : SheetCommand::nextTool;
        case key::z:
            return ctrlOnly ? SheetCommand::undo : SheetCommand::none;
        case key::y:
            return ctrlOnly ? SheetCommand::redo : SheetCommand::none;
        default:
            return SheetCommand::none;
    }
}

}  // namespace ormala
