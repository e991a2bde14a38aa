#include <gtest/gtest.h>

#include <string>

#include "app/clipboardNotes.h"
#include "dialogs/LineSelectModel.h"
#include "dialogs/palettes.h"
#include "magnifier/LensOptions.h"
#include "magnifier/lensOverlays.h"
#include "magnifier/lensTexts.h"
#include "scene/Input.h"
#include "support/HelpStatements.h"
#include "support/RecordingCanvas.h"
#include "widgets/SliderModel.h"
#include "worksheet/CircleCompass.h"
#include "worksheet/CompassReadOut.h"

// What the help says of sliders, palettes, the compass and the magnifier.

namespace ormala {
namespace {

/// A slider from 0 to 100 that stands at 20.
struct Slider : SliderModel {
    Slider() {
        arrange({{115, 40}, 96, 13, 60});
        setValue(20);
    }
    std::string after(int key) {
        keyDown(key);
        return valueText(Value());
    }
    /// In the middle of the track.
    std::string afterClick() {
        const PixelRect track = layout().imgBack;
        press({track.left + track.width() / 2, track.top + track.height() / 2});
        release();
        return valueText(Value());
    }
};

TEST(HelpStatements, OfSliders) {
    expectHeld({
        {"Drag them, click the track, or use the left and right arrow keys.",
         "a click on the middle of the track, then the left key",
         [] {
             Slider slider;
             const std::string clicked = slider.afterClick();
             return clicked + " " + slider.after(key::left);
         },
         "50 49"},
        {"Move a slider by one step.", "the right key", [] { return Slider().after(key::right); },
         "21"},
        {"Move a slider by a large step;", "Page Up", [] { return Slider().after(key::pageUp); },
         "30"},
        {"Move a slider to its ends.", "Home and End",
         [] { return Slider().after(key::home) + " " + Slider().after(key::end); }, "0 100"},
    });
}

TEST(HelpStatements, OfColoursAndLines) {
    expectHeld({
        {"There are three palettes:", "how many there are",
         [] { return std::to_string(paletteCount); }, "3"},
        {"A colour that is in none of them is marked at the swatch that comes nearest to it",
         "the nearest field to a red that is in no palette",
         [] {
             constexpr Color odd = rgb(250, 3, 1);
             const Palette& palette = paletteOf(paletteFor(odd));
             return std::string(palette.holds(odd) ? "held, " : "not held, ") +
                    (palette.at(palette.nearest(odd)) == rgb(255, 0, 0) ? "red" : "another");
         },
         "not held, red"},
        {"There are five line styles: dotted, dashed, and solid with one, two or three pixels.",
         "how many there are", [] { return std::to_string(LineSelectModel::rowCount); }, "5"},
    });
}

/// The radii of what a compass draws after a drag by 100 pixels: the circles, then their centre.
std::string radii() {
    CircleCompass compass;
    compass.press({mouseButton::left, 0, 300, 300}, 0);
    compass.move({mouseButton::left, 0, 400, 300}, true);
    RecordingCanvas canvas;
    compass.draw(canvas);
    std::string all;
    for (const RecordingCanvas::Call& circle : canvas.ofKind(RecordingCanvas::Kind::shape)) {
        all += std::to_string(circle.box.width() / 2) + " ";
    }
    return all;
}

TEST(HelpStatements, OfCompassAndMagnifier) {
    const auto hasGrid = [](int factor) {
        LensImageLook look;
        look.options.gridOn = true;
        look.layout.Factor = factor;
        return std::string(look.hasGrid() ? "grid " : "none ");
    };
    expectHeld({
        {"The radius of the inner one is the golden section of the outer one's.",
         "a drag by 100 pixels", radii, "100 62 1 "},
        {"Beside the mouse stand both radii in pixels, as r and G * r.", "a radius of 100 pixels",
         [] { return withSingleBlanks(compassText(100, {})); }, "r = 100.0 G * r = 61.8"},
        {"Neben der Maus stehen beide Radien in Pixeln, als r und G * r.", "the same",
         [] { return withSingleBlanks(compassText(100, {})); }, "r = 100.0 G * r = 61.8"},
        {"Ctrl+C in the magnifier copies the colour to the clipboard, such as #4F4F4F.",
         "a pixel of a dark grey", [] { return copyOfColor(rgb(79, 79, 79)).text; }, "#4F4F4F"},
        {"a tooltip on the magnifier tells the colour of the pixel under the mouse, in hexadecimal "
         "digits and as red, green and blue, and its place as the scales count it.",
         "a pixel of that grey",
         [] {
             return withSingleBlanks(lensPixelText({rgb(79, 79, 79), {210, 305}}));
         },
         "#4F4F4F R 79 G 79 B 79 X = 210 Y = 305"},
        {"1 X to 10 X.", "the factors",
         [] { return std::to_string(leastFactor) + " to " + std::to_string(mostFactor); },
         "1 to 10"},
        {"Lines between the pixels; from 2 X on.", "at 1 X, 2 X and 10 X",
         [=] { return hasGrid(1) + hasGrid(2) + hasGrid(10); }, "none grid grid "},
        {"At first the upper pair counts from the corner of the worksheet, the lower one from that "
         "of the magnifier.",
         "the origins of a first start",
         [] {
             const LensOptions first;
             return std::to_string(first.topOrigin) + " " + std::to_string(first.bottomOrigin);
         },
         "0 1"},
    });
}

}  // namespace
}  // namespace ormala
