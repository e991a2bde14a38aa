#pragma once

#include "modAPI/colors.h"
#include "scene/Canvas.h"
#include "scene/Input.h"
#include "worksheet/AidOptions.h"
#include "worksheet/CircleCompass.h"
#include "worksheet/CompassReadOut.h"
#include "worksheet/MousePort.h"
#include "worksheet/RateLimit.h"
#include "worksheet/Sheet.h"

namespace ormala {

/// From the left to the right edge of the worksheet, at the cursor's height. Shown while the mouse
/// is within the worksheet's reach along that axis; the edges of its rectangle, also the right and
/// the bottom one, count as inside.
CrossHairLine horizontalLine(PixelPoint cursor, const PixelRect& worksheet);

/// From the top to the bottom edge.
CrossHairLine verticalLine(PixelPoint cursor, const PixelRect& worksheet);

/// What lies on the worksheet besides its tools: the background with its grid, the cross hair, and
/// the circle compass that opens with a drag on the background. Cross hair and compass are there
/// only while the worksheet takes the mouse.
class Aids {
  public:
    /// How often the cross hair moves at most: in milliseconds.
    static constexpr int crossHairInterval = 20;

    /// All must outlive the aids; the options are read at each use.
    Aids(const AidOptions& options, const Sheet& sheet, MousePort& port, const AidTexts& texts)
        : options_(options), sheet_(sheet), port_(port), compassReadOut_(texts) {}

    [[nodiscard]] const BackgroundGrid& grid() const { return options_.grid; }
    /// A plain colour, no system colour.
    [[nodiscard]] Color background() const { return background_; }
    void setBackground(Color color) { background_ = color; }

    /// The worksheet takes the mouse, or doesn't any more.
    void editModeChanged();
    /// Shows the cross hair at the mouse, or hides it, as the options want it.
    void SyncCrossHair() const;
    /// The mouse has moved.
    void UpdateCrossHair();
    /// Whether the last move of a fast hand came too early for the cross hair, which `tick` then
    /// makes up for.
    [[nodiscard]] bool wantsTick() const { return crossHairMoves_.refused() && showsCrossHair(); }
    void tick();
    /// Hides the cross hair for the time of a screen shot.
    void setAside(bool aside);

    /// The mouse on the background.
    void press(const MouseInput& input);
    void move(const MouseInput& input);
    void release(const MouseInput& input);
    /// It was taken away.
    void lost();

    /// What lies in front of the tools.
    void draw(Canvas& canvas) const;

  private:
    [[nodiscard]] bool showsCrossHair() const;
    /// Its read-out stands beside the mouse.
    void repaintCompass(const MouseInput& mouse);

    const AidOptions& options_;
    const Sheet& sheet_;
    MousePort& port_;
    Color background_ = 0;
    bool aside_ = false;
    CircleCompass compass_;
    CompassReadOut compassReadOut_;
    RateLimit crossHairMoves_{crossHairInterval / 1000.0F};
};

}  // namespace ormala
