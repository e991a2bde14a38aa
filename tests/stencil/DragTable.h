#pragma once

#include <string>
#include <vector>

#include "reference/ReferenceTable.h"
#include "stencil/StencilDrag.h"

namespace ormala {

/// One drag that was worked out independently of the program.
struct ReferenceDrag {
    GripDrag drag;
    Grid grid;
    StencilState before;
    StencilState after;
    std::string text;
};

inline ReferenceDrag referenceDrag(const ReferenceTable::Row& row) {
    const std::vector<double> n = ReferenceTable::numbers(row);
    const auto whole = [&](std::size_t at) { return static_cast<int>(n[at]); };
    constexpr StencilGripKind kinds[] = {StencilGripKind::move, StencilGripKind::rotate,
                                         StencilGripKind::size, StencilGripKind::sizeCorner};
    ReferenceDrag one;
    one.drag.grip = {kinds[whole(0)], whole(1)};
    one.drag.shift = whole(2);
    one.before.RectBound = {n[3], n[4], n[5], n[6]};
    one.before.RotationAngle = n[7];
    one.drag.x = n[8];
    one.drag.y = n[9];
    one.drag.pressX = n[10];
    one.drag.pressY = n[11];
    one.drag.grabX = n[12];
    one.drag.grabY = n[13];
    one.drag.gripWidth = n[14];
    one.drag.gripHeight = n[14];
    one.grid = {whole(15), whole(16), whole(17), whole(18)};
    one.after.RectBound = {n[19], n[20], n[21], n[22]};
    one.after.RotationAngle = n[23];
    // A text may hold commas itself; "|" stands for its line end.
    std::string text = row[24];
    for (std::size_t i = 25; i < row.size(); ++i) {
        text += "," + row[i];
    }
    if (const auto end = text.find('|'); end != std::string::npos) {
        text.replace(end, 1, "\r\n");
    }
    one.text = text;
    return one;
}

inline std::vector<ReferenceDrag> referenceDrags(StencilGripKind kind) {
    std::vector<ReferenceDrag> found;
    const ReferenceTable table("stencil_drags.csv");
    for (const auto& row : table.rows()) {
        const ReferenceDrag one = referenceDrag(row);
        if (one.drag.grip.kind == kind) {
            found.push_back(one);
        }
    }
    return found;
}

inline bool isNear(const Rect& a, const Rect& b, double distance) {
    return std::abs(a.left - b.left) <= distance && std::abs(a.top - b.top) <= distance &&
           std::abs(a.right - b.right) <= distance && std::abs(a.bottom - b.bottom) <= distance;
}

}  // namespace ormala
