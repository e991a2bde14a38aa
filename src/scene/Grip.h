#pragma once

#include "modAPI/hitTest.h"
#include "modAPI/points.h"
#include "scene/Canvas.h"

namespace ormala {

/// A grip tagged as hidden takes part in nothing: it is not drawn and takes no mouse.
enum class GripTag { grip, hidden };

/// A handle by which the mouse takes hold of a tool. Sizes and places are whole pixels.
struct Grip {
    ShapeBox box;
    /// Both sides at rest, in pixels at 96 DPI.
    int size = 9;
    SheetScale scale;
    ShapeKind kind = ShapeKind::rectangle;
    /// Inside the border at rest.
    Color color = 0;
    /// Inside the border while pressed.
    Color pressedColor = 0;
    Color borderColor = 0;
    /// What the border shows while the tool has the focus, and while it is only selected.
    Color focusBorder = 0;
    Color selectedBorder = 0;
    int borderWidth = 1;
    bool pressed = false;
    bool visible = true;
    GripTag tag = GripTag::grip;

    bool operator==(const Grip&) const = default;

    [[nodiscard]] bool inUse() const { return visible && tag == GripTag::grip; }
    [[nodiscard]] bool grown() const;
    void grow();
    void shrink();
    /// Takes its size at that resolution; its place is for the owner to tell.
    void setScale(const SheetScale& present);
    /// How far beyond itself the mouse takes hold of it. A grown grip has no such reach.
    [[nodiscard]] double reach() const;
    /// Puts the centre on `point`, by the rule of anchor 0.
    void place(const Point& point);
    [[nodiscard]] Point center() const;
    [[nodiscard]] PixelRect pixels() const;
    void draw(Canvas& canvas) const;
};

}  // namespace ormala
