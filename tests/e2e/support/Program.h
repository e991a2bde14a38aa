#pragma once

#include <filesystem>
#include <string>
#include <string_view>

#include "e2e/support/AppDataFolder.h"
#include "e2e/support/DesktopWindow.h"
#include "e2e/support/MessageBoxWindow.h"
#include "support/win/ChildProcess.h"

namespace ormala::test {

/// The folder of the running test program.
std::filesystem::path testProgramFolder();

/// A running Ormala.exe. Its file is the one that the environment variable ORMALA_EXE names, else
/// the one two folders above the test program. It is killed at the object's end if it still runs.
class Program {
  public:
    /// Starts the program; `data`, which must outlive it, is its application-data folder.
    explicit Program(const AppDataFolder& data);

    const AppDataFolder& data() const { return *data_; }
    const ChildProcess& process() const { return process_; }

    /// Waits until the control window has finished its load, which it says with the property
    /// `Ready`, and all that is shown has been painted. Then a user could begin.
    void waitUntilReady() const;

    /// The control window and the worksheet. They may not exist.
    DesktopWindow settings() const { return window("frmSettings"); }
    DesktopWindow worksheet() const { return window("frmWorksheet"); }
    /// The foremost window of a class; a hidden one only if none is shown. It may not exist.
    DesktopWindow window(std::string_view className) const;
    /// Waits until a window of the class is shown and can be clicked.
    DesktopWindow waitForWindow(std::string_view className,
                                milliseconds deadline = usualDeadline) const;
    MessageBoxWindow waitForMessageBox(std::string_view title) const;
    /// The tip that is shown now; empty if there is none.
    std::string tip() const { return shownTip(process_.id()); }

    /// Asks the control window to close, as its close button does.
    void requestClose() const;
    /// The exit code. Fails the stage if the program does not end.
    DWORD waitForExit(milliseconds deadline = usualDeadline) const;
    /// requestClose and waitForExit.
    DWORD close() const;

  private:
    const AppDataFolder* data_;
    ChildProcess process_;
};

}  // namespace ormala::test
