#include "platform/win/partEvents.h"

#include <algorithm>
#include <array>

namespace ormala {

bool partEventsAreHeard() {
    constexpr std::array events{EVENT_OBJECT_FOCUS,       EVENT_OBJECT_SELECTION,
                                EVENT_OBJECT_SHOW,        EVENT_OBJECT_HIDE,
                                EVENT_OBJECT_CREATE,      EVENT_OBJECT_DESTROY,
                                EVENT_OBJECT_NAMECHANGE,  EVENT_OBJECT_LOCATIONCHANGE,
                                EVENT_OBJECT_VALUECHANGE, EVENT_OBJECT_DESCRIPTIONCHANGE,
                                EVENT_OBJECT_REORDER};
    return std::any_of(events.begin(), events.end(),
                       [](DWORD event) { return IsWinEventHookInstalled(event) != FALSE; });
}

void tellPartEvent(HWND window, DWORD event, int tool) {
    NotifyWinEvent(event, window, OBJID_CLIENT, tool == 0 ? CHILDID_SELF : -tool);
}

}  // namespace ormala
