#pragma once

namespace ormala {

/// Everything that the user can ask of the program by a button, a menu or a key.
enum class Command {
    // Buttons of the control window, in the order of the Tab key. The first three are the modes,
    // in their order.
    editMode,
    templateMode,
    pauseMode,
    templateAndMinimise,
    pauseAndMinimise,
    addStencil,
    addMeasure,
    newTools,
    load,
    save,
    saveAs,
    lens,
    grid,
    crossHair,
    referenceLines,
    circleCompass,
    screenShot,
    worksheetNormal,
    options,
    help,
    // Further entries of the popup menus.
    worksheetMaximised,
    worksheetOptions,
    lensOptions,
    lensStick,
    lensCursor,
    lensHotSpot,
    lensGrid,
    lensTopLeftScales,
    lensBottomRightScales,
    lensFactor1,
    lensFactor10 = lensFactor1 + 9,
    // Keys alone.
    worksheetMenu,
    lensMenu,
    nextTool,
    previousTool,
    undo,
    redo,
    copyReadOuts,
    copyColor,
    nextPanel,
    previousPanel,
    nextPart,
    previousPart,
};

inline constexpr int largestLensFactor = 10;

/// The command of a magnification from 1 to 10.
constexpr Command commandOfLensFactor(int factor) {
    return static_cast<Command>(static_cast<int>(Command::lensFactor1) + factor - 1);
}

/// The magnification of a command, 0 for a command of another kind.
constexpr int lensFactorOf(Command command) {
    const int factor = static_cast<int>(command) - static_cast<int>(Command::lensFactor1) + 1;
    return factor >= 1 && factor <= largestLensFactor ? factor : 0;
}

}  // namespace ormala
