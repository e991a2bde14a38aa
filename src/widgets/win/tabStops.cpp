#include "widgets/win/tabStops.h"

#include <algorithm>
#include <cstddef>
#include <optional>
#include <vector>

#include "widgets/TabOrder.h"

namespace ormala {

namespace {

struct Neighbour {
    HWND window;
    bool holdsOthers;
    LONG top;
    int id;
};

bool holdsOthers(HWND window) {
    return (GetWindowLongPtrW(window, GWL_EXSTYLE) & WS_EX_CONTROLPARENT) != 0;
}

/// The children that can be used, in their order.
std::vector<Neighbour> neighboursIn(HWND parent) {
    std::vector<Neighbour> found;
    for (HWND child = GetWindow(parent, GW_CHILD); child != nullptr;
         child = GetWindow(child, GW_HWNDNEXT)) {
        if (IsWindowVisible(child) != FALSE && IsWindowEnabled(child) != FALSE) {
            RECT place{};
            GetWindowRect(child, &place);
            found.push_back({child, holdsOthers(child), place.top, GetDlgCtrlID(child)});
        }
    }
    const bool isList = std::ranges::all_of(found, &Neighbour::holdsOthers);
    std::ranges::stable_sort(found, [isList](const Neighbour& a, const Neighbour& b) {
        return isList ? a.top < b.top : a.id < b.id;
    });
    return found;
}

/// All of a window in one row.
class TabRow {
  public:
    explicit TabRow(HWND focus) : focus_(focus) {}

    void addAllOf(HWND parent) {
        for (const Neighbour& each : neighboursIn(parent)) {
            const bool stop = (GetWindowLongPtrW(each.window, GWL_STYLE) & WS_TABSTOP) != 0;
            if (each.window == focus_) {
                focused_ = windows_.size();
            }
            windows_.push_back(each.window);
            order_.add(stop && !each.holdsOthers);
            if (each.holdsOthers) {
                addAllOf(each.window);
            }
        }
    }

    [[nodiscard]] HWND next(bool backwards) const {
        const auto place = order_.next(focused_, backwards);
        return place ? windows_[*place] : nullptr;
    }

  private:
    HWND focus_;
    std::optional<std::size_t> focused_;
    std::vector<HWND> windows_;
    TabOrder order_;
};

}  // namespace

HWND nextTabStop(HWND window, HWND focus, bool backwards) {
    TabRow row(focus);
    row.addAllOf(window);
    return row.next(backwards);
}

}  // namespace ormala
