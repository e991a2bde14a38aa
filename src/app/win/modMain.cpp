#include <windows.h>

#include "app/win/frmSettings.h"
#include "platform/win/Accessible.h"
#include "platform/win/handles.h"

namespace {

using ormala::Handle;

/// Marks that the program runs, for as long as the process lives.
Handle<HANDLE, &CloseHandle> runningMark(bool& anotherRuns) {
    Handle<HANDLE, &CloseHandle> mutex(CreateMutexW(nullptr, FALSE, L"OrmalaTessin_Mutex"));
    anotherRuns = GetLastError() == ERROR_ALREADY_EXISTS;
    return mutex;
}

int runMessages(ormala::frmSettings& settings) {
    MSG message{};
    while (GetMessageW(&message, nullptr, 0, 0) > 0) {
        if (!settings.preview(message)) {
            TranslateMessage(&message);
            DispatchMessageW(&message);
        }
    }
    return static_cast<int>(message.wParam);
}

}  // namespace

int WINAPI wWinMain(HINSTANCE, HINSTANCE, PWSTR, int) {
    const ormala::AccessibleThread accessible;
    bool anotherRuns = false;
    const auto mark = runningMark(anotherRuns);
    ormala::frmSettings settings(anotherRuns);
    return runMessages(settings);
}
