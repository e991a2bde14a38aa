#include <gtest/gtest.h>

#include <optional>
#include <string>

#include "app/ViewState.h"
#include "app/commands.h"
#include "app/keyTables.h"
#include "scene/Input.h"
#include "support/HelpStatements.h"

// What the help says of the keys of all windows and of what a mode leaves.

namespace ormala {
namespace {

/// The command of a key in the control window, on the worksheet and in the magnifier.
std::string commands(int key, int modifiers = 0) {
    std::string all;
    for (const KeyWindow window :
         {KeyWindow::control, KeyWindow::worksheet, KeyWindow::magnifier}) {
        const auto command = commandOfKey(key, modifiers, window);
        if (!command) {
            all += "nothing ";
            continue;
        }
        switch (*command) {
            case Command::help:
                all += "help ";
                break;
            case Command::editMode:
                all += "edit ";
                break;
            case Command::pauseMode:
                all += "pause ";
                break;
            case Command::pauseAndMinimise:
                all += "pause-small ";
                break;
            case Command::templateMode:
                all += "template ";
                break;
            case Command::templateAndMinimise:
                all += "template-small ";
                break;
            case Command::worksheetMenu:
            case Command::lensMenu:
                all += "menu ";
                break;
            case Command::undo:
                all += "undo ";
                break;
            case Command::redo:
                all += "redo ";
                break;
            case Command::copyReadOuts:
                all += "numbers ";
                break;
            case Command::copyColor:
                all += "color ";
                break;
            case Command::nextPart:
            case Command::nextPanel:
                all += "on ";
                break;
            case Command::previousPart:
            case Command::previousPanel:
                all += "back ";
                break;
            default: {
                const auto page = optionsPageOf(*command);
                all += page ? "page" + std::to_string(*page + 1) + " " : "other ";
            }
        }
    }
    return all;
}

TEST(HelpStatements, OfTheKeysOfAllWindows) {
    expectHeld({
        {"F1 Opens this help", "F1 in each window", [] { return commands(key::f1); },
         "help help help "},
        {"F2 Edit mode.", "F2 in each window", [] { return commands(key::f2); }, "edit edit edit "},
        {"Pause mode; with Shift also minimises the control window.", "F3 without and with Shift",
         [] { return commands(key::f3) + commands(key::f3, modifier::shift); },
         "pause pause pause pause-small pause-small pause-small "},
        {"Template mode; with Shift also minimises the control window.",
         "F4 without and with Shift",
         [] { return commands(key::f4) + commands(key::f4, modifier::shift); },
         "template template template template-small template-small template-small "},
        {"This takes Shift alone; together with Ctrl or Alt the window stays.",
         "F3 with Shift and Ctrl",
         [] { return commands(key::f3, modifier::shift | modifier::ctrl); }, "pause pause pause "},
        {"in the control window the first, on the worksheet the second, in the magnifier the "
         "third.",
         "F12 in each window", [] { return commands(key::f12); }, "page1 page2 page3 "},
        {"On the worksheet its menu, in the magnifier that of the magnifier; nothing in the "
         "control window.",
         "the Menu key, and Shift and F10",
         [] { return commands(key::menu) + commands(key::f10, modifier::shift); },
         "nothing menu menu nothing menu menu "},
        {"for the selected tool, on the worksheet and in the control window.",
         "Ctrl+Z and Ctrl+Y in each window",
         [] { return commands(key::z, modifier::ctrl) + commands(key::y, modifier::ctrl); },
         "undo undo nothing redo redo nothing "},
        {"Copies all numbers of the selected tool; in the magnifier the colour under the mouse.",
         "Ctrl+C in each window", [] { return commands(key::c, modifier::ctrl); },
         "numbers numbers color "},
        {"Go to the next part of Ormala, to the previous one: buttons, panels, worksheet, "
         "magnifier.",
         "F6 and Shift+F6 in each window",
         [] { return commands(key::f6) + commands(key::f6, modifier::shift); },
         "on on on back back back "},
        {"In the control window: go to the next panel, to the previous one.",
         "Ctrl with the page keys in the control window, the worksheet and the magnifier",
         [] {
             return commands(key::pageDown, modifier::ctrl) + commands(key::pageUp, modifier::ctrl);
         },
         "on nothing nothing back nothing nothing "},
    });
}

/// How many buttons of the control window a mode leaves to be pressed.
int enabledIn(Mode mode) {
    int count = 0;
    for (const CommandDesign& design : commandDesigns()) {
        const CommandState state = stateOfCommand(design.command, mode, false);
        count += state.visible && state.enabled ? 1 : 0;
    }
    return count;
}

TEST(HelpStatements, OfWhatAModeLeaves) {
    expectHeld({
        {"buttons that need the worksheet are greyed out in pause mode.",
         "the grid, a new stencil and the magnifier in pause mode",
         [] {
             std::string all;
             for (const Command each : {Command::grid, Command::addStencil, Command::lens}) {
                 all += stateOfCommand(each, Mode::pause, false).enabled ? "enabled " : "greyed ";
             }
             return all;
         },
         "greyed greyed enabled "},
        {"the magnifier still works.", "its button in each mode",
         [] {
             std::string all;
             for (const Mode each : {Mode::edit, Mode::templateMode, Mode::pause}) {
                 all += stateOfCommand(Command::lens, each, false).enabled ? "enabled " : "greyed ";
             }
             return all + (enabledIn(Mode::pause) < enabledIn(Mode::edit) ? "of fewer" : "of all");
         },
         "enabled enabled enabled of fewer"},
    });
}

}  // namespace
}  // namespace ormala
