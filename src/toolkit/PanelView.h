#pragma once

#include <optional>
#include <string>
#include <vector>

#include "pictures/pictures.h"
#include "toolkit/ControlId.h"
#include "widgets/lookColors.h"

namespace ormala {

struct ControlText {
    ControlId control;
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

inline constexpr PanelLook unselectedLook{dark::ground, dark::quietText, dark::titleEnd,
                                          dark::ground, dark::ground};
inline constexpr PanelLook selectedLook{dark::selectedGround, dark::text, dark::selectedTitle,
                                        dark::selectedTitle, dark::selectedGround};

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
/// A button that shows whether something is on.
ButtonLook switchLook(bool on);

struct PanelEnabling {
    /// Every button but `cmdPause`, `cmdUndo` and `cmdRedo`.
    bool controls = true;
    /// Every label but the title.
    bool labels = true;
    bool undo = false;
    bool redo = false;

    bool operator==(const PanelEnabling&) const = default;
};

enum class PanelTimer { tmrShowProps, tmrDelayMousePreview };

/// What a panel shows.
class PanelFace {
  public:
    virtual ~PanelFace() = default;

    virtual void showTexts(const std::vector<ControlText>& texts) = 0;
    virtual void showLook(const PanelLook& look) = 0;
    virtual void showButton(ControlId button, const ButtonLook& look) = 0;
    virtual void showPicture(ControlId button, PictureMaker maker) = 0;
    virtual void enable(const PanelEnabling& enabling) = 0;
};

/// The window of a panel, as the panel speaks to it. It takes no decision.
class PanelView : public PanelFace {
  public:
    /// Starts the timer anew, or stops it with an interval of 0 milliseconds. Each tick comes back
    /// as `SettingControl::timerTicked`.
    virtual void runTimer(PanelTimer timer, unsigned interval) = 0;
    /// The tool is the selected one from now on.
    virtual void toolBecameSelected() = 0;
    /// The user wants the tool gone. The panel does nothing after this call, so that it may be
    /// destroyed in it.
    virtual void removeRequested(bool byMouse) = 0;
    /// The popup menu at the mouse, with its one entry to remove the tool.
    virtual void showMenu(const std::string& removeText) = 0;
};

/// The dialogs in which the user chooses the look of a tool. They answer the present value if they
/// are cancelled.
class LookDialogs {
  public:
    virtual ~LookDialogs() = default;

    [[nodiscard]] virtual Color SelectColor(Color present) = 0;
    [[nodiscard]] virtual int SelectLineStyle(int present) = 0;
};

}  // namespace ormala
