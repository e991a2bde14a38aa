#pragma once

#include <span>

#include "pictures/outlines.h"
#include "pictures/pictures.h"

namespace ormala {

/// `hole` is transparent, `shade` is paper that lies away from the light, `veil` shows half of what
/// is behind it. The last three are for the program's sign alone.
enum class Ink { hole, ink, paper, shade, veil, accent, red, plate, frame, quiet };

/// `fill` is the inside up to the middle of an outline, `line` a line, `body` a filled shape with
/// an outline of ink. `edged` is a line, or a closed shape, with a narrow edge of ink around it
/// that keeps it apart from any ground.
enum class Stroke { fill, line, body, edged };

/// One step of a drawing, over those before it; `path` as for `readOutlines`.
struct Layer {
    Stroke stroke = Stroke::line;
    Ink ink = Ink::ink;
    const char* path = "";
    /// In units of the field.
    double width = 2;
};

struct Drawing {
    std::span<const Layer> layers;
    Turn turn = Turn::none;
};

/// On a field of 24 x 24 units, the light coming from the top left.
Drawing drawingOf(Picture picture);

}  // namespace ormala
