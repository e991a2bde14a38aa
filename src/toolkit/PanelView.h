#pragma once

#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include "pictures/pictures.h"
#include "widgets/lookColors.h"

namespace ormala {

class OverlayItem;

/// The text of one control of a panel, found by its name: "lblCenterX".
struct ControlText {
    std::string name;
    std::string text;

    bool operator==(const ControlText&) const = default;
};

/// The colours that tell the panel of the selected tool from the others.
struct PanelLook {
    Color background = 0;
    Color titleText = 0;
    /// Of `gradTitle` and of `gradBottom`.
    Color titleTopLeft = 0;
    Color titleBottomRight = 0;
    Color bottomTopLeft = 0;

    bool operator==(const PanelLook&) const = default;
};

inline constexpr PanelLook unselectedLook{dark::ground, dark::quietText, dark::deepestEdge,
                                          dark::ground, dark::ground};
inline constexpr PanelLook selectedLook{dark::selectedGround, dark::text, dark::selectedGround,
                                        dark::selectedGround, dark::selectedGround};

/// A button that shows a colour or a state.
struct ButtonLook {
    Color back = 0;
    bool down = false;
    /// Unchanged if there is none.
    std::optional<Color> text = std::nullopt;
    /// Unchanged if there is none.
    std::optional<Picture> picture = std::nullopt;

    bool operator==(const ButtonLook&) const = default;
};

/// A button that shows a colour, with a text that stands out from it.
ButtonLook colorButtonLook(Color color);

struct PanelEnabling {
    /// Every button but `cmdPause`, `cmdUndo` and `cmdRedo`.
    bool controls = true;
    /// Every label but the title.
    bool labels = true;
    bool undo = false;
    bool redo = false;

    bool operator==(const PanelEnabling&) const = default;
};

/// The window of a panel, as its core speaks to it. It takes no decision.
class PanelView {
  public:
    virtual ~PanelView() = default;

    virtual void showTexts(const std::vector<ControlText>& texts) = 0;
    virtual void showLook(const PanelLook& look) = 0;
    virtual void showButton(std::string_view name, const ButtonLook& look) = 0;
    /// The picture of a line code on `cmdLineStyle`.
    virtual void showLineStyle(int lineCode) = 0;
    /// The picture of the tool's patterns is out of date. Stencils only.
    virtual void showPattern() = 0;
    virtual void enable(const PanelEnabling& enabling) = 0;
    /// True starts the timer of `ThrottledRefresh` anew, false stops it.
    virtual void runRefreshTimer(bool run) = 0;
    /// The tool is the selected one from now on.
    virtual void toolBecameSelected() = 0;
    /// The user wants the tool gone. The core does nothing after this call, so that the panel may
    /// be destroyed in it.
    virtual void removeRequested() = 0;
    /// The popup menu at the mouse, with its one entry to remove the tool.
    virtual void showMenu(const std::string& removeText) = 0;
};

/// Shows and hides tools on the worksheet.
class ToolVisibility {
  public:
    virtual ~ToolVisibility() = default;
    virtual void setVisible(const OverlayItem& tool, bool visible) = 0;
};

/// The time of day.
class DayClock {
  public:
    virtual ~DayClock() = default;
    [[nodiscard]] virtual float secondsSinceMidnight() const = 0;
};

}  // namespace ormala
