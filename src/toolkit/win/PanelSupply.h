#pragma once

#include <vector>

#include "platform/win/Timer.h"
#include "toolkit/panelsAtHand.h"
#include "toolkit/win/PanelWindow.h"

namespace ormala {

/// Gives the panels of a list their controls when they can be seen, or will be next, and takes them
/// from those that are far off.
class PanelSupply {
  public:
    struct Ports {
        /// Shows of the panels what it has room for.
        const Window& list;
        /// In any order.
        const std::vector<PanelWindow*>& panels;
        PanelControlStore& store;
    };

    /// All must outlive it. The window that the timer belongs to hands it on.
    PanelSupply(const Ports& ports, HWND window, UINT_PTR timer)
        : ports_(ports), window_(window), timer_(timer) {}

    /// The panels or their places have changed, or what the list shows of them. Nothing happens
    /// while nobody can see the list.
    void update();
    /// The Tab key is about to take the focus on.
    void prepareTab(HWND focus, bool backwards) const;
    /// A timer of the window has come: with its own, what is not pressing is done bit by bit.
    void onTimer(UINT_PTR timer);

  private:
    [[nodiscard]] std::vector<PanelInList> places() const;
    [[nodiscard]] PanelChanges change() const;
    void waitForRest(const PanelChanges& changes);

    Ports ports_;
    HWND window_;
    Timer timer_;
};

}  // namespace ormala
