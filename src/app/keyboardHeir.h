#pragma once

namespace ormala {

/// A top-level window, as the choice of the one that is to have the keyboard needs it.
struct TopWindow {
    bool ofThisProgram = false;
    bool shown = false;
    bool enabled = false;
    bool minimised = false;
    /// Stands beside the programs, like a task bar: topmost, a tool window, or never activated.
    bool standsAside = false;
};

/// Whether the keyboard goes to that window when this program gives it away. The foremost one that
/// this holds for is meant.
bool inheritsKeyboard(const TopWindow& window);

}  // namespace ormala
