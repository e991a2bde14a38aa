#include "platform/win/screenRest.h"

#include <windows.h>

#include "platform/win/composition.h"

namespace ormala {

void letScreenSettle() {
    constexpr ULONGLONG patience = 120;
    const ULONGLONG end = GetTickCount64() + patience;
    for (ULONGLONG now = GetTickCount64(); now < end; now = GetTickCount64()) {
        MSG message{};
        if (PeekMessageW(&message, nullptr, 0, 0, PM_REMOVE | PM_QS_PAINT | PM_QS_SENDMESSAGE) !=
            FALSE) {
            DispatchMessageW(&message);
        } else {
            MsgWaitForMultipleObjects(0, nullptr, FALSE, static_cast<DWORD>(end - now),
                                      QS_PAINT | QS_SENDMESSAGE);
        }
    }
    waitForComposition();
}

}  // namespace ormala
