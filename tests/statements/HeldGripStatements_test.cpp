#include "support/HelpStatements.h"
#include "worksheet/SheetFixture.h"

// What the help says of the keys while the mouse holds a grip.

namespace ormala {
namespace {

class HeldGripStatements : public SheetMouseFixture {
  protected:
    /// How the mouse moves at a key, or that the tool gets the key.
    std::string at(int key, int shift = 0) {
        window_.pointerMoves.clear();
        const bool rests = mouse_.keyPressed(key, shift);
        std::string all = rests ? "" : "the tool's ";
        for (const PixelPoint by : window_.pointerMoves) {
            all += std::to_string(by.x) + "," + std::to_string(by.y) + " ";
        }
        return all;
    }
};

TEST_F(HeldGripStatements, OfTheArrowKeys) {
    add(stencil, {0, 0, 100, 100});
    mouse_.press({mouseButton::left, 0, 25, 50});
    expectHeld({
        {"each press moves the mouse, and the grip with it, by one pixel, with Ctrl by ten.",
         "the right arrow key, and the up key with Ctrl",
         [this] { return at(key::right) + at(key::up, modifier::ctrl); }, "1,0 0,-10 "},
        {"Home and Delete do nothing while a grip is held.", "both, and Page Up",
         [this] { return at(key::home) + at(key::remove) + at(key::pageUp); }, "the tool's "},
        {"Jeder Druck bewegt die Maus und mit ihr den Griff um ein Pixel, mit Strg um zehn.",
         "the left arrow key, and the same with Ctrl",
         [this] { return at(key::left) + at(key::left, modifier::ctrl); }, "-1,0 -10,0 "},
    });
}

}  // namespace
}  // namespace ormala
