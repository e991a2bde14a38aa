#include <gtest/gtest.h>

#include <string>

#include "platform/win/StandardControl.h"
#include "stencil/ctlRatioGrid.h"
#include "support/HelpStatements.h"
#include "win/ModesStage.h"

// What the help says of the windows, played on the running program. What needs no window stands in
// tests/statements.

namespace ormala {
namespace {

class WindowStatements : public ModesStage {
  protected:
    /// What can be seen of worksheet and frame, and which mode it is.
    std::string seen() {
        const auto [worksheet, frame, clickable] = ModesStage::shown();
        const std::string mode = std::to_string(numberOf(program_->modes().GetMode()));
        return std::string(worksheet ? "worksheet, " : "no worksheet, ") +
               (frame ? "frame, " : "no frame, ") + (clickable ? "takes" : "leaves") +
               " the mouse, mode " + mode;
    }
    std::string after(Mode mode) {
        program_->modes().SetMode(mode, false);
        return seen();
    }
    std::string caption() { return textOf(settings_->handle()); }
};

TEST_F(WindowStatements, OfModesAndFrame) {
    start();
    expectHeld({
        {"The worksheet takes the mouse.", "edit mode", [this] { return after(Mode::edit); },
         "worksheet, frame, takes the mouse, mode 0"},
        {"In template mode the frame is hidden, so that nothing is in your way.", "template mode",
         [this] { return after(Mode::templateMode); },
         "worksheet, no frame, leaves the mouse, mode 1"},
        {"The frame stays, so that you can go on moving the worksheet with its tools.",
         "template mode with the border",
         [this] {
             keepBorder();
             return after(Mode::templateMode);
         },
         "worksheet, frame, leaves the mouse, mode 1"},
        {"Worksheet and tools are hidden.", "pause mode", [this] { return after(Mode::pause); },
         "no worksheet, no frame, leaves the mouse, mode 2"},
        {"Close does not quit Ormala: it changes to pause mode.", "the close box of the frame",
         [this] {
             after(Mode::edit);
             SendMessageW(program_->resizer().handle(), WM_SYSCOMMAND, SC_CLOSE, 0);
             return seen() + (settings_->isVisible() ? ", running" : ", ended");
         },
         "no worksheet, no frame, leaves the mouse, mode 2, running"},
        {"the worksheet fills its screen and the frame disappears.", "a maximised frame",
         [this] {
             after(Mode::edit);
             program_->resizer().maximise();
             return seen() + (worksheetFillsScreen() ? ", filled" : ", smaller");
         },
         "worksheet, no frame, takes the mouse, mode 0, filled"},
    });
}

TEST_F(WindowStatements, OfTheControlWindow) {
    start();
    const int tall = height();
    expectHeld({
        {"The control window becomes short.", "template mode and pause mode",
         [this] {
             std::string all;
             for (const Mode each : {Mode::templateMode, Mode::pause}) {
                 after(each);
                 all += height() == shortHeight() ? "short " : "tall ";
             }
             return all;
         },
         "short short "},
        {"Back in edit mode the control window takes its former height again", "edit mode",
         [this, tall] {
             after(Mode::edit);
             return std::string(height() == tall ? "the former height" : "another height");
         },
         "the former height"},
        {"with OK all windows change at once.", "the options with German",
         [this] {
             OptionValues values = program_->view().optionValues();
             values.language = languageGerman;
             program_->view().applyOptions(values);
             return caption();
         },
         "Ormala - Bearbeiten"},
        {"mit OK wechseln alle Fenster sofort.", "the options with English",
         [this] {
             OptionValues values = program_->view().optionValues();
             values.language = languageEnglish;
             program_->view().applyOptions(values);
             return caption();
         },
         "Ormala - Edit"},
    });
}

TEST_F(WindowStatements, OfTheKeyboardAlone) {
    start();
    const HWND frame = program_->resizer().handle();
    Sheet& sheet = program_->worksheet().sheet();
    expectHeld({
        {"There Tab goes from tool to tool, and the keys of the worksheet move, rotate and remove "
         "the one that has the keyboard.",
         "the frame in front, Tab until it is the stencil, then the right arrow key",
         [&] {
             SetForegroundWindow(frame);
             auto& stencil = dynamic_cast<ctlRatioGrid&>(*sheet.GetFirstControl(0));
             for (int i = 0; i < 2 && sheet.focused() != &stencil; ++i) {
                 SendMessageW(frame, WM_KEYDOWN, VK_TAB, 0);
             }
             const double before = stencil.RectBound().left;
             SendMessageW(frame, WM_KEYDOWN, VK_RIGHT, 0);
             return ormala::shown(stencil.RectBound().left - before);
         },
         "1"},
    });
}

TEST_F(WindowStatements, OfTheStart) {
    option("Options", "Mode", " 2");
    start();
    expectHeld({
        {"After a start in pause mode no worksheet shows until you choose another mode.",
         "a start in pause mode, then edit mode",
         [this] {
             const std::string before = seen();
             return before + "; " + after(Mode::edit);
         },
         "no worksheet, no frame, leaves the mouse, mode 2; "
         "worksheet, frame, takes the mouse, mode 0"},
    });
}

}  // namespace
}  // namespace ormala
