#pragma once

#include <functional>

#include "scene/PixelImage.h"

namespace ormala {

/// Every picture that stands on a button or beside a text.
enum class Picture {
    modeEdit,
    modeTemplate,
    modePause,
    templateAndMinimize,
    pauseAndMinimize,
    addStencil,
    addMeasure,
    newTools,
    loadTools,
    saveTools,
    saveToolsAs,
    screenShot,
    lens,
    grid,
    crossHair,
    referenceLines,
    circleCompass,
    worksheetWindow,
    options,
    help,
    hide,
    show,
    undo,
    redo,
    remove,
    selectPattern,
    color,
    lineStyle,
    defaultPlace,
    fullSize,
    center,
    editRatio,
    mouseAction,
    rotateCounterclockwise,
    rotateClockwise,
    angleZero,
    moveLeft,
    moveRight,
    moveUp,
    moveDown,
    leftBorderLeft,
    leftBorderRight,
    rightBorderLeft,
    rightBorderRight,
    topBorderUp,
    topBorderDown,
    bottomBorderUp,
    bottomBorderDown,
    decreaseWidth,
    increaseWidth,
    decreaseHeight,
    increaseHeight,
    decreaseSize,
    increaseSize,
    units,
    connectLines,
    disconnectLines,
    showLengths,
    showAngles,
    mouse,
    logo,
};

inline constexpr int pictureCount = static_cast<int>(Picture::logo) + 1;

/// The picture in the largest square that fits in the middle of `size`, in pixels; lines are sharp
/// at any size from 16 pixels on. Around it all is transparent. A side below 1 gives no pixels.
PixelImage drawPicture(Picture picture, PixelSize size);

/// Draws a picture in the size that it is asked for, in pixels of the screen.
using PictureMaker = std::function<PixelImage(PixelSize)>;

}  // namespace ormala
