#pragma once

#include <optional>
#include <vector>

#include "pictures/pictures.h"
#include "scene/PixelRect.h"

namespace ormala {

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
    /// A picture that isn't pressed.
    image,
};

struct PanelControl {
    /// As texts and looks are addressed: "lblCenterX".
    const char* name;
    PanelPart part;
    /// In the panel, in pixels at 96 DPI.
    PixelRect box;
    /// Rows of the text table, 0 for none: of a text that never changes, and of the tip.
    int caption = 0;
    int tip = 0;
    std::optional<Picture> picture = std::nullopt;
    /// Of a button: which of its sides are round, so that neighbours form a bar.
    int cornerStyle = 0;
};

/// The controls of a panel, from the foremost to the rearmost, which is the order of the Tab key
/// too, and its size in pixels at 96 DPI.
struct PanelDesign {
    PixelSize size;
    std::vector<PanelControl> controls;
};

/// Of all panels: the list's width without its scroll bar.
inline constexpr int panelWidth = 296;

/// The row of buttons at the bottom of a panel, in groups.
class CommandRow {
  public:
    /// From the left edge at `top` on.
    CommandRow(std::vector<PanelControl>& controls, int left, int top)
        : controls_(controls), left_(left), top_(top) {}

    void add(const char* name, int tip, std::optional<Picture> picture, int cornerStyle);
    /// The next button begins another group.
    void endGroup();

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
