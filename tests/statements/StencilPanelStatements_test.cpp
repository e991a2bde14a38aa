#include <gtest/gtest.h>

#include <string>

#include "modAPI/constants.h"
#include "modAPI/rectangles.h"
#include "stencil/SetRatioGridFixture.h"
#include "support/HelpStatements.h"

// What the help says of the panel of a stencil and of setting exact numbers.

namespace ormala {
namespace {

class StencilPanelStatements : public SetRatioGridFixture {
  protected:
    /// What `name` makes of the angle, from 10°.
    std::string angleAfter(const std::string& name, int shift = 0) {
        start(plain, pi / 18);
        step(name, shift);
        return degrees();
    }
    std::string degrees() { return shown(tool_.RotationAngle() * 180 / pi); }
    std::string upright(int shift) {
        start(plain, pi / 18);
        click("cmdAngleZero", shift);
        return degrees();
    }
    std::string sides() {
        const Rect& rect = tool_.RectBound();
        return shown(rect.left) + " " + shown(rect.top) + " " + shown(rect.right) + " " +
               shown(rect.bottom);
    }
    std::string centre() {
        const Point at = RectCenter(tool_.RectBound());
        return shown(at.x) + ", " + shown(at.y);
    }
    std::string size() {
        return shown(PixelWidth(tool_.RectBound())) + " x " + shown(PixelHeight(tool_.RectBound()));
    }

    static constexpr Rect plain{100, 100, 300, 200};
};

TEST_F(StencilPanelStatements, OfTheSteps) {
    expectHeld({
        {"Change the value by one pixel.", "the step that moves to the right",
         [this] {
             start(plain);
             step("cmdMove(1)");
             return sides();
         },
         "101 100 301 200"},
        {"by a step of the grid, onto its lines.",
         "the right border further to the right, with each of the three keys",
         [this] {
             std::string all;
             for (const int shift : {modifier::shift, modifier::ctrl, modifier::alt}) {
                 start({100, 100, 320, 200});
                 step("cmdMove(7)", shift);
                 all += shown(tool_.RectBound().right) + " ";
             }
             return all;
         },
         "350 350 350 "},
        {"Hold the button to go on; all of that is one step of undo.",
         "a step that is held for 30 ticks of 40 ms",
         [this] {
             start(plain);
             press("cmdMove(1)");
             tick(30);
             panel_->release();
             return shown(tool_.RectBound().left - 100) + " pixels, " +
                    std::to_string(undoSteps()) + " step";
         },
         "21 pixels, 1 step"},
    });
}

TEST_F(StencilPanelStatements, OfStepsThatAreHeld) {
    expectHeld({
        {"after a short wait it goes on, 25 pixels a second.", "a second after the wait",
         [this] {
             start(plain);
             press("cmdMove(1)");
             tick(10);
             const double waited = tool_.RectBound().left;
             tick(25);
             return shown(tool_.RectBound().left - waited);
         },
         "25"},
        {"it now goes from line to line of the grid, about eight steps a second, which are 400 "
         "pixels with a grid of 50.",
         "the same with Ctrl",
         [this] {
             start(plain);
             press("cmdMove(1)", modifier::ctrl);
             tick(10);
             const double waited = tool_.RectBound().left;
             tick(24);
             return shown(tool_.RectBound().left - waited);
         },
         "400"},
        {"with Grid size 100 in the options any side reaches 1200 with a few presses, and single "
         "steps bring it to 1197.",
         "the right border from 700, with Ctrl and then without",
         [this] {
             settings_.grid = {100, 100, 0, 0};
             start({300, 100, 700, 200});
             int presses = 0;
             for (; tool_.RectBound().right < 1200; ++presses) {
                 step("cmdMove(7)", modifier::ctrl);
             }
             const std::string far = shown(tool_.RectBound().right);
             for (int i = 0; i < 3; ++i) {
                 step("cmdMove(6)");
             }
             settings_.grid = {};
             return far + " by " + std::to_string(presses) + ", " + shown(tool_.RectBound().right);
         },
         "1200 by 5, 1197"},
    });
}

TEST_F(StencilPanelStatements, OfTheAngle) {
    expectHeld({
        {"By 1°, counter-clockwise or clockwise.", "both buttons from 10°",
         [this] { return angleAfter("cmdAngle(0)") + " " + angleAfter("cmdAngle(1)"); }, "11 9"},
        {"Alt: by 0.1°. Ctrl: to the next multiple of 9°. Shift: to the next multiple of 11.25°.",
         "the first button from 10° with each key",
         [this] {
             return angleAfter("cmdAngle(0)", modifier::alt) + " " +
                    angleAfter("cmdAngle(0)", modifier::ctrl) + " " +
                    angleAfter("cmdAngle(0)", modifier::shift);
         },
         "10.1 18 22.5"},
        {"Turns the stencil upright.", "the button from 10°", [this] { return upright(0); }, "0"},
        {"Ctrl: 90°. Alt: 180°. Shift: 270°.", "the same with each key",
         [this] {
             return upright(modifier::ctrl) + " " + upright(modifier::alt) + " " +
                    upright(modifier::shift);
         },
         "90 180 270"},
    });
}

TEST_F(StencilPanelStatements, OfPlaceAndSize) {
    expectHeld({
        {"The height stays, the width follows.", "3:2 chosen for 201 x 101",
         [this] {
             start(plain);
             commands_.ratio = 1.5;
             click("cmdEditRatio");
             return size();
         },
         "151.5 x 101"},
        {"Puts the stencil into the middle, as it was when it was new.",
         "a new one, changed and brought back",
         [this] {
             tool_.CenterToScreen(false, 0, false, true);
             const std::string fresh = sides();
             start(plain, 1);
             click("cmdDefaultPos");
             return sides() == fresh && degrees() == "0" ? "as new" : sides();
         },
         "as new"},
        {"As large as the worksheet allows, upright.", "on a worksheet of 1000 x 800",
         [this] {
             start(plain, 1);
             click("cmdFullSize");
             return sides() + " at " + degrees();
         },
         "0 0 999 799 at 0"},
        {"Into the middle, with the present size and angle.", "from a corner, turned by 10°",
         [this] {
             start(plain, pi / 18);
             click("cmdMoveCenter");
             return centre() + ", " + size() + ", " + degrees();
         },
         "500, 400, 201 x 101, 10"},
        {"Ctrl: onto a crossing of the grid.", "on a worksheet of 1000 x 780",
         [this] {
             tool_.resize({1000, 780});
             start(plain);
             click("cmdMoveCenter", modifier::ctrl);
             const std::string at = centre();
             tool_.resize({1000, 800});
             return at;
         },
         "500, 400"},
        {"Keep the ratio.", "ten steps up and five down, of 202 x 101 pixels",
         [this] {
             start({100, 100, 301, 200});
             for (int i = 0; i < 10; ++i) {
                 step("cmdMove(17)");
             }
             for (int i = 0; i < 5; ++i) {
                 step("cmdMove(16)");
             }
             const Rect& rect = tool_.RectBound();
             return shown((rect.right - rect.left) / (rect.bottom - rect.top));
         },
         "2.01"},
    });
}

TEST_F(StencilPanelStatements, OfItsOtherButtons) {
    expectHeld({
        {"so does a click on the small picture.", "a click on the picture of the patterns",
         [this] {
             click("imgPattern");
             return std::to_string(commands_.tabsOpened.size()) + " dialog of patterns";
         },
         "1 dialog of patterns"},
        {"Colours and line styles are not steps of undo.", "another colour and another line",
         [this] {
             start(plain);
             commands_.color = 0x112233;
             click("cmdColor");
             commands_.lineStyle = 4;
             click("cmdLineStyle");
             return (tool_.Color() == 0x112233 ? "coloured, " : "plain, ") +
                    std::to_string(undoSteps()) + " steps";
         },
         "coloured, 0 steps"},
        {"Hides the tool until you press it again. Everything else in the panel is greyed out "
         "meanwhile.",
         "two presses of Hide",
         [this] {
             std::string all;
             for (int i = 0; i < 2; ++i) {
                 click("cmdPause");
                 all += visible_[&tool_] ? "shown " : "hidden ";
                 all += view_.enabling.controls || view_.enabling.labels ? "enabled " : "greyed ";
             }
             return all;
         },
         "hidden greyed shown enabled "},
        {"Each tool keeps 999 steps of its own until you quit Ormala.", "1200 steps, all undone",
         [this] {
             start(plain);
             for (int i = 0; i < 1200; ++i) {
                 step("cmdMove(1)");
             }
             int undone = 0;
             for (; tool_.History().UndoPossible(); ++undone) {
                 panel_->Undo();
             }
             return std::to_string(undone);
         },
         "999"},
    });
}

}  // namespace
}  // namespace ormala
