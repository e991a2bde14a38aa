#include "worksheet/win/SheetTeller.h"

#include <span>

#include "platform/win/partEvents.h"

namespace ormala {

namespace {

std::span<const DWORD> eventsOf(PartEvent event) {
    static constexpr DWORD created[] = {EVENT_OBJECT_CREATE, EVENT_OBJECT_SHOW};
    static constexpr DWORD destroyed[] = {EVENT_OBJECT_HIDE, EVENT_OBJECT_DESTROY};
    static constexpr DWORD renamed[] = {EVENT_OBJECT_NAMECHANGE};
    static constexpr DWORD moved[] = {EVENT_OBJECT_LOCATIONCHANGE};
    static constexpr DWORD valueChanged[] = {EVENT_OBJECT_VALUECHANGE};
    static constexpr DWORD descriptionChanged[] = {EVENT_OBJECT_DESCRIPTIONCHANGE};
    static constexpr DWORD selected[] = {EVENT_OBJECT_SELECTION};
    static constexpr DWORD focused[] = {EVENT_OBJECT_FOCUS};
    switch (event) {
        case PartEvent::created:
            return created;
        case PartEvent::destroyed:
            return destroyed;
        case PartEvent::renamed:
            return renamed;
        case PartEvent::moved:
            return moved;
        case PartEvent::valueChanged:
            return valueChanged;
        case PartEvent::descriptionChanged:
            return descriptionChanged;
        case PartEvent::selected:
            return selected;
        case PartEvent::focused:
            return focused;
    }
    return {};
}

}  // namespace

void SheetTeller::later(HWND window) {
    if (!due_ && partEventsAreHeard()) {
        due_ = PostMessageW(window, timeToTell, 0, 0) != FALSE;
    }
}

void SheetTeller::tell(HWND window) {
    due_ = false;
    for (const PartNews& news : news_.take()) {
        for (const DWORD event : eventsOf(news.event)) {
            tellPartEvent(window, event, news.tool);
        }
    }
}

}  // namespace ormala
