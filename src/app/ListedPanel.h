#pragma once

#include <memory>

#include "scene/ToolControl.h"
#include "toolkit/SettingControl.h"

namespace ormala {

/// A panel as the list stacks it: its window and its core. Lengths are pixels of the list's
/// content.
class ListedPanel {
  public:
    virtual ~ListedPanel() = default;

    [[nodiscard]] virtual SettingControl& panel() = 0;
    [[nodiscard]] virtual int top() const = 0;
    virtual void setTop(int top) = 0;
    [[nodiscard]] virtual int height() const = 0;
    [[nodiscard]] virtual bool visible() const = 0;
    virtual void setVisible(bool visible) = 0;
};

class PanelFactory {
  public:
    virtual ~PanelFactory() = default;
    /// An invisible panel inside the list for a tool of that kind.
    virtual std::unique_ptr<ListedPanel> makePanel(ToolKind kind, OverlayItem& tool) = 0;
};

/// The part of the control window that shows the list.
class ToolListView {
  public:
    virtual ~ToolListView() = default;
    /// Panels have come, gone or changed their places; see `PanelLayout`.
    virtual void UpdatePanelLayout(bool AdjustFormHeight, bool Force) = 0;
    /// Repaints the window at once, so that the user sees the list change.
    virtual void refresh() = 0;
};

}  // namespace ormala
