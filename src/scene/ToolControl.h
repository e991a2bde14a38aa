#pragma once

#include <functional>

#include "base/Event.h"
#include "scene/Canvas.h"
#include "scene/DirtyRegion.h"
#include "scene/Input.h"
#include "scene/SpokenTool.h"

namespace ormala {

/// Kinds of tool, as files and commands number them.
enum class ToolKind { stencil = 0, measurement = 1 };

class ToolControl;

/// Who saw a mouse move: one of the tools, or the worksheet itself when `tool` is null.
struct MouseSource {
    const ToolControl* tool = nullptr;
    /// The tool that holds the mouse, or whether something else does.
    const ToolControl* holder = nullptr;
    bool heldByOther = false;

    [[nodiscard]] bool heldAwayFrom(const ToolControl* self) const {
        return heldByOther || (holder != nullptr && holder != self);
    }
};

/// What the application core and the worksheet say to any tool, whatever its kind.
class ToolControl {
  public:
    virtual ~ToolControl() = default;

    /// The mouse is at (x, y) in worksheet pixels, whoever saw it.
    virtual void GlobalMouseMove(const MouseInput& input, const MouseSource& source) = 0;
    [[nodiscard]] virtual bool Selected() const = 0;
    virtual void setSelected(bool selected) = 0;
    [[nodiscard]] virtual bool EditMode() const = 0;
    virtual void setEditMode(bool editMode) = 0;
    /// Another tool has the focus.
    virtual void LoseFocus() = 0;
    /// Between these two, which may be nested, changes are neither laid out nor repainted; the
    /// outer end does both for all of them. See `ToolChanges`.
    virtual void beginChanges() = 0;
    virtual void endChanges() = 0;
    /// What is read aloud; `ordinal` counts the tools of its kind, from 1.
    [[nodiscard]] virtual SpokenTool spoken(int ordinal) const = 0;
    /// Of the grips that are shown.
    [[nodiscard]] virtual std::vector<SpokenGrip> spokenGrips(int ordinal) const = 0;
};

/// For several changes of a tool at once, from its making to its end. The tool must outlive it.
class ToolChanges {
  public:
    explicit ToolChanges(ToolControl& tool) : tool_(tool) { tool_.beginChanges(); }
    ~ToolChanges() { tool_.endChanges(); }
    ToolChanges(const ToolChanges&) = delete;
    ToolChanges& operator=(const ToolChanges&) = delete;

  private:
    ToolControl& tool_;
};

/// A tool as an item on the worksheet: it covers the whole client area, draws its shape inside and
/// takes the mouse on its grips only.
class OverlayItem {
  public:
    virtual ~OverlayItem() = default;

    [[nodiscard]] virtual ToolControl& control() = 0;
    [[nodiscard]] virtual bool HitTest(double x, double y) const = 0;
    virtual void mouseDown(const MouseInput& input, const MouseSource& source) = 0;
    virtual void mouseMove(const MouseInput& input, const MouseSource& source) = 0;
    virtual void mouseUp(const MouseInput& input, const MouseSource& source) = 0;
    virtual void keyDown(int key, int shift) = 0;
    /// The item has the keyboard focus from now on.
    virtual void gotFocus() = 0;
    /// The worksheet's client area has this size now, and the host's texts perhaps another
    /// resolution.
    virtual void resize(PixelSize size) = 0;
    virtual void draw(Canvas& canvas) const = 0;
    /// The pixels that `draw` covers.
    [[nodiscard]] virtual const DirtyRegion& footprint() const = 0;
};

/// The id in the string table of a tip, 0 for none.
using TipId = int;

/// What a tool raises to its panel.
struct ToolEvents {
    /// After every change of the tool's state.
    Event<> change;
    Event<const MouseInput&> mouseUp;
    /// A key that the tool does not handle itself: the key code and the modifiers.
    Event<int, int> keyDownFiltered;
};

/// What is called at the interval that `ToolHost::runTimer` was given. One timer each.
struct Ticking {
    std::function<void()> tick;
};

/// What a tool needs of the worksheet that it lies on.
class ToolHost {
  public:
    virtual ~ToolHost() = default;

    /// These pixels of the tool look different now.
    virtual void repaint(const OverlayItem& item, const DirtyRegion& region) = 0;
    virtual void showTip(const OverlayItem& item, TipId tip) = 0;
    [[nodiscard]] virtual const TextMeter& textMeter() const = 0;
    /// Interval in milliseconds.
    virtual void runTimer(Ticking& ticking, int interval, bool running) = 0;
};

}  // namespace ormala
