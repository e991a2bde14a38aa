#pragma once

#include <memory>
#include <string>
#include <vector>

#include "e2e/support/Desktop.h"
#include "e2e/support/Device.h"
#include "support/MonkeyActions.h"

namespace ormala::test {

/// The program in the hands of somebody who does anything. After each action it is looked at; what
/// must not be is a failed expectation that tells the seed and the last actions.
class Monkey {
  public:
    explicit Monkey(std::uint32_t seed);

    /// Does so many things, then ends the program, starts it again and ends it: what it has saved
    /// comes back. Stops at the first fault.
    void play(int actions);

  private:
    void start();
    void act(const MonkeyAction& action);
    void useMouse(const MonkeyAction& action, ScreenPoint point);
    void useDevice(const MonkeyAction& action, ScreenPoint point);
    void useKeys(const MonkeyAction& action) const;
    void changeState(const MonkeyAction& action) const;
    void placeWindow(const MonkeyAction& action) const;
    /// What stands in the way of everything else: true if it took the action.
    bool answerMenu(const MonkeyAction& action) const;
    bool answerBox() const;
    bool leaveDialogAtLength();

    [[nodiscard]] DesktopWindow target(const MonkeyAction& action) const;
    [[nodiscard]] DesktopWindow dialog() const;
    [[nodiscard]] std::vector<DesktopWindow> shownWindows() const;

    void look() const;
    void expectAnswers(const DesktopWindow& window) const;
    void expectWorksheetInItsFrame() const;
    void expectOnScreen(const DesktopWindow& window) const;

    void comeToRest();
    [[nodiscard]] std::vector<std::string> panelTexts() const;
    void expectPanels(const std::vector<std::string>& shown) const;
    void expectSavedTools() const;
    void endAndCompare();
    void end();
    [[nodiscard]] std::string trace() const;

    std::uint32_t seed_;
    MonkeyActions actions_;
    std::vector<std::string> done_;
    int actionsInDialog_ = 0;
    Backdrop backdrop_;
    AppDataFolder data_;
    std::unique_ptr<Program> program_;
    Mouse mouse_;
    Device device_;
};

}  // namespace ormala::test
