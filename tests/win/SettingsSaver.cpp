#include <windows.h>

#include <string>

#include "base/Utf8.h"
#include "storage/win/WindowsCodePage.h"
#include "storage/win/WindowsFileStore.h"
#include "support/SettingsRun.h"

// Saves two variants of the settings in turn until it is killed: SettingsSaver FOLDER EVENT. The
// event is set after the first saves.

int wmain(int argc, wchar_t** argv) {
    using namespace ormala;
    if (argc != 3) {
        return 2;
    }
    const std::wstring wideFolder = argv[1];
    const std::string folder = utf8FromUtf16(std::u16string(wideFolder.begin(), wideFolder.end()));
    WindowsFileStore store;
    const WindowsCodePage codePage;
    SettingsRun runs[] = {{store, codePage, folder}, {store, codePage, folder}};
    runs[0].makeTools(0);
    runs[1].makeTools(1);
    for (;;) {
        for (SettingsRun& run : runs) {
            run.saveTools();
            run.saveOptions();
        }
        if (HANDLE ready = OpenEventW(EVENT_MODIFY_STATE, FALSE, argv[2])) {
            SetEvent(ready);
            CloseHandle(ready);
        }
    }
}
