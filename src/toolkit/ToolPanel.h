#pragma once

#include "modAPI/colors.h"
#include "scene/ToolControl.h"
#include "toolkit/MeasureUnits.h"
#include "toolkit/SettingControl.h"

namespace ormala {

/// A panel as the list sets it up with its new tool. What a kind of tool doesn't have, such as a
/// stencil a number, does nothing there.
class ToolPanel : public SettingControl {
  public:
    /// The panel's tool, which outlives all calls but the destruction.
    [[nodiscard]] virtual OverlayItem& RefControlControl() = 0;

    /// The number printed beside the tool, 0 for none.
    [[nodiscard]] virtual int Number() const = 0;
    virtual void setNumber(int number) = 0;

    /// The next default colours, and a solid line of one pixel.
    virtual void setDefaultLook(ToolColors& colors) = 0;
    virtual void SetDefaultProperties() = 0;
    virtual void setUnits(const MeasureUnits& units) = 0;
    /// Takes over what a new tool has from the last one, `former`, which is of the same kind.
    virtual void inherit(const ToolPanel& former) = 0;
    /// True hides the tool and disables the panel.
    virtual void setPause(bool pause) = 0;
    /// A tool in its first shape, this far from the centre of the worksheet both ways.
    virtual void CenterToScreen(double offset) = 0;
    /// The tool is complete: its history begins, and the panel shows it.
    virtual void finish() = 0;
};

}  // namespace ormala
