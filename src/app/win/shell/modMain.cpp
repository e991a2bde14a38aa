#include <windows.h>

#include <exception>

#include "app/programFailure.h"
#include "app/version.h"
#include "app/win/shell/Program.h"
#include "base/win/systemMessage.h"
#include "platform/win/Accessible.h"
#include "platform/win/FairMessages.h"
#include "platform/win/callbackGuard.h"
#include "platform/win/handles.h"
#include "platform/win/text.h"

namespace {

using ormala::Handle;

/// Libraries that are loaded later, also by others in this process, come from the system's folder
/// or one that their program has named; never from the folder of this program or the current one.
void trustSystemFoldersOnly() {
    SetDefaultDllDirectories(LOAD_LIBRARY_SEARCH_SYSTEM32 | LOAD_LIBRARY_SEARCH_USER_DIRS);
}

/// Has the system start the program again where an update has ended it, or a failure that could not
/// be kept. The tools of the run come back by themselves and no text of the command line is read;
/// an empty one would take a registration back.
void registerForRestart() {
    RegisterApplicationRestart(L"/restarted", 0);
}

/// Marks that the program runs, for as long as the process lives.
Handle<HANDLE, &CloseHandle> runningMark(bool& anotherRuns) {
    Handle<HANDLE, &CloseHandle> mutex(CreateMutexW(nullptr, FALSE, L"OrmalaTessin_Mutex"));
    anotherRuns = GetLastError() == ERROR_ALREADY_EXISTS;
    return mutex;
}

int runMessages(ormala::Program& program) {
    MSG message{};
    ormala::FairMessages messages;
    while (messages.next(message)) {
        if (!program.preview(message)) {
            TranslateMessage(&message);
            DispatchMessageW(&message);
        }
    }
    ormala::throwKeptFailure();
    return static_cast<int>(message.wParam);
}

int runProgram(bool anotherRuns) {
    ormala::Program program(anotherRuns);
    try {
        return runMessages(program);
    } catch (...) {
        program.rescue();
        throw;
    }
}

void tell(const std::exception& failure) {
    const auto systemText = [](int error) {
        return ormala::systemMessage(static_cast<unsigned long>(error));
    };
    MessageBoxW(nullptr, ormala::wide(ormala::programFailureText(failure, systemText)).c_str(),
                ormala::wide(ormala::applicationTitle).c_str(),
                MB_OK | MB_ICONSTOP | MB_TOPMOST | MB_SETFOREGROUND);
}

}  // namespace

int WINAPI wWinMain(HINSTANCE, HINSTANCE, PWSTR, int) {
    trustSystemFoldersOnly();
    registerForRestart();
    constexpr int failed = 1;
    const ormala::AccessibleThread accessible;
    bool anotherRuns = false;
    const auto mark = runningMark(anotherRuns);
    try {
        return runProgram(anotherRuns);
    } catch (const std::exception& failure) {
        tell(failure);
    }
    return failed;
}
