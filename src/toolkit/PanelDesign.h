#pragma once

#include <optional>
#include <string>
#include <vector>

#include "modAPI/PixelRect.h"
#include "pictures/pictures.h"
#include "toolkit/ControlId.h"

// The table of a panel: all that is to be said of a control stands in its row.

namespace ormala {

// Where the rows of read-outs stand, in pixels at 96 DPI.
inline constexpr int firstRow = 25;
inline constexpr int rowPitch = 18;
inline constexpr int rowHeight = 16;
/// Of what reaches to the right edge.
inline constexpr int rightEdge = 292;

class SettingControl;

/// How a button was pressed.
struct Press {
    /// Of the button among those of its name: 3 of "cmdMove(3)".
    int index = 0;
    /// The modifiers.
    int shift = 0;
    bool byMouse = false;
};

/// What a button does: a function of its panel, with or without the press.
class PressAction {
  public:
    constexpr PressAction() = default;
    template <typename Panel>
    constexpr PressAction(void (Panel::*action)())
        : plain_(static_cast<void (SettingControl::*)()>(action)) {}
    template <typename Panel>
    constexpr PressAction(void (Panel::*action)(const Press&))
        : pressed_(static_cast<void (SettingControl::*)(const Press&)>(action)) {}

    /// The panel is of the kind that the design was made for. It may be destroyed in this call.
    void perform(SettingControl& panel, const Press& press) const;

  private:
    void (SettingControl::*plain_)() = nullptr;
    void (SettingControl::*pressed_)(const Press&) = nullptr;
};

/// What a button does when the mouse comes over it, and when it leaves.
class HoverAction {
  public:
    constexpr HoverAction() = default;
    template <typename Panel>
    constexpr HoverAction(void (Panel::*action)(bool over))
        : action_(static_cast<void (SettingControl::*)(bool)>(action)) {}

    constexpr explicit operator bool() const { return action_ != nullptr; }
    void perform(SettingControl& panel, bool over) const { (panel.*action_)(over); }

  private:
    void (SettingControl::*action_)(bool) = nullptr;
};

// Of the sides of a button.
inline constexpr int roundAtLeft = 1;
inline constexpr int roundAtRight = 2;
inline constexpr int square = 3;

/// What a control of a panel is.
enum class PanelPart {
    /// The band behind the title, and the band at the bottom.
    titleBand,
    bottomBand,
    title,
    /// The name of a row of values.
    header,
    value,
    button,
    /// A button that does it again and again while it is held.
    step,
    /// A button that shows a state, and one that shows one of several.
    toggle,
    option,
    /// A picture that can be pressed, but is no stop of the Tab key.
    image,
};

struct PanelControl {
    const char* name;
    /// Behind the name, if it has several: "cmdMove(3)".
    std::optional<int> index = std::nullopt;
    /// As the panel speaks to it, if it does.
    ControlId id = CommonControl::none;
    PanelPart part = PanelPart::button;
    /// In the panel, in pixels at 96 DPI.
    PixelRect box = {};
    /// Rows of the text table, 0 for none: of a text that never changes, and of the tip.
    int caption = 0;
    int tip = 0;
    /// In all languages: on a button instead of a picture, and of a value the line that it is of,
    /// where it doesn't say so itself.
    const char* letter = nullptr;
    std::optional<Picture> picture = std::nullopt;
    /// Of a button: which of its sides are round, so that neighbours form a bar.
    int cornerStyle = 0;
    PressAction press = {};
    HoverAction hover = {};

    [[nodiscard]] std::string fullName() const;
};

/// The controls of a panel, from the foremost to the rearmost, which is the order of the Tab key
/// too, and what else tells the panels of one kind of tool from those of another.
struct PanelDesign {
    /// Of the window: "ctl" and the panel's name.
    std::string className;
    /// In pixels at 96 DPI.
    PixelSize size;
    std::vector<PanelControl> controls;
    /// Row of the text table: the entry of the popup menu, with the tool's number for "%0".
    int removeText = 0;
    /// The same: what the user is told after the removal.
    int removedText = 0;
    /// The interval of `tmrButtonBig`, in milliseconds.
    unsigned growthInterval = 0;
    /// `cmdPause` is lit while the tool pauses, or else while it does not.
    bool litByPause = false;
    /// The read-outs of a paused tool are disabled like the buttons.
    bool pauseDimsLabels = false;
};

/// Of all panels: the list's width without its scroll bar.
inline constexpr int panelWidth = 296;

// The rows of a table. A button gets its place with its bar.
PanelControl header(const char* name, const PixelRect& box, int caption, int tip = 0);
PanelControl value(ControlId id, const char* name, const PixelRect& box = {}, int tip = 0);
PanelControl button(const char* name, int tip, Picture picture, PressAction press);
PanelControl button(ControlId id, const char* name, int tip, Picture picture, PressAction press,
                    PanelPart part = PanelPart::button);
PanelControl step(const char* name, int index, int tip, Picture picture, PressAction press);

/// Appends buttons side by side, the first one at `place`, and gives the outer ones their round
/// sides.
void appendBar(std::vector<PanelControl>& controls, PixelRect place,
               const std::vector<PanelControl>& buttons);

/// The bars at the bottom of a panel, with gaps between them.
class CommandRow {
  public:
    /// From the left edge at `top` on.
    CommandRow(std::vector<PanelControl>& controls, int left, int top)
        : controls_(controls), left_(left), top_(top) {}

    void addBar(const std::vector<PanelControl>& buttons);

    /// Of a panel whose row begins at `top`.
    static int panelHeight(int top);

  private:
    std::vector<PanelControl>& controls_;
    int left_;
    int top_;
};

/// The band at the bottom of a panel of that height.
PanelControl bottomBand(int panelHeight);

/// The title band with its text, and the buttons that every panel has in it.
std::vector<PanelControl> titleControls(int captionRow, int deleteTip);

}  // namespace ormala
