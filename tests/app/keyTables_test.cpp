#include "app/keyTables.h"

#include <gtest/gtest.h>

#include <initializer_list>
#include <vector>

#include "scene/Input.h"

namespace ormala {
namespace {

constexpr KeyWindow windows[] = {KeyWindow::control, KeyWindow::worksheet, KeyWindow::magnifier};

std::optional<Command> control(int key, int modifiers) {
    return commandOfKey(key, modifiers, KeyWindow::control);
}

std::optional<Command> worksheet(int key, int modifiers) {
    return commandOfKey(key, modifiers, KeyWindow::worksheet);
}

std::optional<Command> magnifier(int key, int modifiers) {
    return commandOfKey(key, modifiers, KeyWindow::magnifier);
}

TEST(KeyTables, FunctionKeysChooseHelpAndModesInEveryWindow) {
    for (const KeyWindow window : windows) {
        EXPECT_EQ(commandOfKey(112, 0, window), Command::help);
        EXPECT_EQ(commandOfKey(113, 0, window), Command::editMode);
        EXPECT_EQ(commandOfKey(114, 0, window), Command::pauseMode);
        EXPECT_EQ(commandOfKey(115, 0, window), Command::templateMode);
    }
}

TEST(KeyTables, ShiftAloneMinimisesWithPauseAndTemplate) {
    for (const KeyWindow window : windows) {
        EXPECT_EQ(commandOfKey(key::f3, modifier::shift, window), Command::pauseAndMinimise);
        EXPECT_EQ(commandOfKey(key::f4, modifier::shift, window), Command::templateAndMinimise);
    }
}

TEST(KeyTables, ShiftWithCtrlOrAltDoesNotMinimise) {
    for (const int held : {modifier::shift | modifier::ctrl, modifier::shift | modifier::alt,
                           modifier::ctrl, modifier::shift | modifier::ctrl | modifier::alt}) {
        EXPECT_EQ(worksheet(key::f3, held), Command::pauseMode) << held;
    }
    EXPECT_EQ(worksheet(key::f4, modifier::shift | modifier::ctrl), Command::templateMode);
}

TEST(KeyTables, AltAndF4AreLeftToTheSystem) {
    for (const KeyWindow window : windows) {
        for (const int held : {modifier::alt, modifier::alt | modifier::shift}) {
            EXPECT_EQ(commandOfKey(key::f4, held, window), std::nullopt) << held;
        }
    }
}

TEST(KeyTables, ModifiersDoNotMatterToHelpAndEditMode) {
    for (const KeyWindow window : windows) {
        for (int held = 0; held < 8; ++held) {
            EXPECT_EQ(commandOfKey(key::f1, held, window), Command::help) << held;
            EXPECT_EQ(commandOfKey(key::f2, held, window), Command::editMode) << held;
        }
    }
}

TEST(KeyTables, F12OpensThePageOfItsWindow) {
    for (int held = 0; held < 8; ++held) {
        EXPECT_EQ(control(123, held), Command::options) << held;
        EXPECT_EQ(worksheet(123, held), Command::worksheetOptions) << held;
        EXPECT_EQ(magnifier(123, held), Command::lensOptions) << held;
    }
}

TEST(KeyTables, TheMenuKeyOpensTheMenuOfWorksheetAndMagnifier) {
    for (int held = 0; held < 8; ++held) {
        EXPECT_EQ(worksheet(93, held), Command::worksheetMenu) << held;
        EXPECT_EQ(magnifier(93, held), Command::lensMenu) << held;
    }
    EXPECT_EQ(control(93, 0), std::nullopt);
}

TEST(KeyTables, ShiftAloneMakesF10TheMenuKey) {
    EXPECT_EQ(worksheet(key::f10, modifier::shift), Command::worksheetMenu);
    EXPECT_EQ(magnifier(key::f10, modifier::shift), Command::lensMenu);
    EXPECT_EQ(control(key::f10, modifier::shift), std::nullopt);
    for (const int held : {0, modifier::ctrl, modifier::shift | modifier::ctrl, modifier::alt}) {
        EXPECT_EQ(worksheet(key::f10, held), std::nullopt) << held;
        EXPECT_EQ(magnifier(key::f10, held), std::nullopt) << held;
    }
}

TEST(KeyTables, TabGoesFromToolToToolAndWithShiftBack) {
    EXPECT_EQ(worksheet(key::tab, 0), Command::nextTool);
    EXPECT_EQ(worksheet(key::tab, modifier::shift), Command::previousTool);
    EXPECT_EQ(control(key::tab, 0), std::nullopt);
    EXPECT_EQ(magnifier(key::tab, 0), std::nullopt);
}

TEST(KeyTables, CtrlAloneMakesZAndYUndoAndRedo) {
    for (const KeyWindow window : {KeyWindow::control, KeyWindow::worksheet}) {
        EXPECT_EQ(commandOfKey(key::z, modifier::ctrl, window), Command::undo);
        EXPECT_EQ(commandOfKey(key::y, modifier::ctrl, window), Command::redo);
        for (const int held : {0, modifier::shift, modifier::ctrl | modifier::alt,
                               modifier::ctrl | modifier::shift}) {
            EXPECT_EQ(commandOfKey(key::z, held, window), std::nullopt) << held;
            EXPECT_EQ(commandOfKey(key::y, held, window), std::nullopt) << held;
        }
    }
    EXPECT_EQ(magnifier(key::z, modifier::ctrl), std::nullopt);
}

TEST(KeyTables, CtrlAloneMakesCTheKeyThatCopies) {
    EXPECT_EQ(control(key::c, modifier::ctrl), Command::copyReadOuts);
    EXPECT_EQ(worksheet(key::c, modifier::ctrl), Command::copyReadOuts);
    EXPECT_EQ(magnifier(key::c, modifier::ctrl), Command::copyColor);
    for (const KeyWindow window : windows) {
        for (const int held : {0, modifier::shift, modifier::alt, modifier::ctrl | modifier::alt,
                               modifier::ctrl | modifier::shift}) {
            EXPECT_EQ(commandOfKey(key::c, held, window), std::nullopt) << held;
        }
    }
}

TEST(KeyTables, CtrlAloneMakesThePageKeysGoFromPanelToPanelInTheControlWindow) {
    EXPECT_EQ(control(key::pageDown, modifier::ctrl), Command::nextPanel);
    EXPECT_EQ(control(key::pageUp, modifier::ctrl), Command::previousPanel);
    for (const int held : {0, modifier::shift, modifier::ctrl | modifier::shift}) {
        EXPECT_EQ(control(key::pageDown, held), std::nullopt) << "a slider's key";
    }
    EXPECT_EQ(magnifier(key::pageDown, modifier::ctrl), std::nullopt);
}

TEST(KeyTables, F6GoesFromPartToPartAndWithShiftBack) {
    for (const KeyWindow window : windows) {
        EXPECT_EQ(commandOfKey(key::f6, 0, window), Command::nextPart);
        EXPECT_EQ(commandOfKey(key::f6, modifier::shift, window), Command::previousPart);
        EXPECT_EQ(commandOfKey(key::f6, modifier::ctrl, window), std::nullopt);
        EXPECT_EQ(commandOfKey(key::f6, modifier::alt, window), std::nullopt);
    }
}

TEST(KeyTables, AKeyIsTakenOnlyByItsCommand) {
    std::vector<Command> executed;
    const auto execute = [&executed](Command command) { executed.push_back(command); };
    EXPECT_TRUE(obeyKey(key::f1, 0, KeyWindow::control, execute));
    EXPECT_FALSE(obeyKey(key::space, 0, KeyWindow::control, execute));
    EXPECT_EQ(executed, std::vector{Command::help});
}

TEST(KeyTables, KeysOfTheToolsAreLeftToTheTools) {
    for (const int key : {key::pageUp, key::pageDown, key::end, key::home, key::left, key::up,
                          key::right, key::down, key::remove, key::space, key::enter}) {
        for (int held = 0; held < 8; ++held) {
            EXPECT_EQ(worksheet(key, held), std::nullopt) << key << " " << held;
        }
    }
}

}  // namespace
}  // namespace ormala
