#include "worksheet/sheetKeys.h"

#include <gtest/gtest.h>

#include "scene/Input.h"

namespace ormala {
namespace {

TEST(SheetKeys, FunctionKeysChooseHelpAndModes) {
    EXPECT_EQ(sheetCommandOf(key::f1, 0), SheetCommand::help);
    EXPECT_EQ(sheetCommandOf(key::f2, 0), SheetCommand::editMode);
    EXPECT_EQ(sheetCommandOf(key::f3, 0), SheetCommand::pauseMode);
    EXPECT_EQ(sheetCommandOf(key::f4, 0), SheetCommand::templateMode);
}

TEST(SheetKeys, ShiftAloneMinimisesWithPauseAndTemplate) {
    EXPECT_EQ(sheetCommandOf(key::f3, modifier::shift), SheetCommand::pauseAndMinimise);
    EXPECT_EQ(sheetCommandOf(key::f4, modifier::shift), SheetCommand::templateAndMinimise);
}

TEST(SheetKeys, ShiftWithCtrlOrAltDoesNotMinimise) {
    for (const int shift : {modifier::shift | modifier::ctrl, modifier::shift | modifier::alt,
                            modifier::ctrl, modifier::shift | modifier::ctrl | modifier::alt}) {
        EXPECT_EQ(sheetCommandOf(key::f3, shift), SheetCommand::pauseMode) << shift;
        EXPECT_EQ(sheetCommandOf(key::f4, shift), SheetCommand::templateMode) << shift;
    }
}

TEST(SheetKeys, ModifiersDoNotMatterToHelpAndEditMode) {
    for (int shift = 0; shift < 8; ++shift) {
        EXPECT_EQ(sheetCommandOf(key::f1, shift), SheetCommand::help) << shift;
        EXPECT_EQ(sheetCommandOf(key::f2, shift), SheetCommand::editMode) << shift;
    }
}

TEST(SheetKeys, MenuKeyAndF12ShowMenuAndOptionsWithAnyModifier) {
    for (int shift = 0; shift < 8; ++shift) {
        EXPECT_EQ(sheetCommandOf(key::menu, shift), SheetCommand::contextMenu) << shift;
        EXPECT_EQ(sheetCommandOf(key::f12, shift), SheetCommand::options) << shift;
    }
}

TEST(SheetKeys, TabGoesForthAndWithShiftBack) {
    EXPECT_EQ(sheetCommandOf(key::tab, 0), SheetCommand::nextTool);
    EXPECT_EQ(sheetCommandOf(key::tab, modifier::shift), SheetCommand::previousTool);
}

TEST(SheetKeys, CtrlAloneMakesZAndYUndoAndRedo) {
    EXPECT_EQ(sheetCommandOf(key::z, modifier::ctrl), SheetCommand::undo);
    EXPECT_EQ(sheetCommandOf(key::y, modifier::ctrl), SheetCommand::redo);
    for (const int shift :
         {0, modifier::shift, modifier::ctrl | modifier::alt, modifier::ctrl | modifier::shift}) {
        EXPECT_EQ(sheetCommandOf(key::z, shift), SheetCommand::none) << shift;
        EXPECT_EQ(sheetCommandOf(key::y, shift), SheetCommand::none) << shift;
    }
}

TEST(SheetKeys, KeysOfTheToolsAreLeftToTheTools) {
    for (const int key : {key::pageUp, key::pageDown, key::end, key::home, key::left, key::up,
                          key::right, key::down, key::remove}) {
        for (int shift = 0; shift < 8; ++shift) {
            EXPECT_EQ(sheetCommandOf(key, shift), SheetCommand::none) << key << " " << shift;
        }
    }
}

}  // namespace
}  // namespace ormala
