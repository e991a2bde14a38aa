#include "magnifier/win/pointers.h"

#include "modAPI/drawingColors.h"
#include "platform/win/BackBuffer.h"
#include "platform/win/fills.h"
#include "platform/win/handles.h"

namespace ormala {

namespace {

/// What the system tells of a pointer. It makes both bitmaps for the one who asks.
struct PointerFacts {
    explicit PointerFacts(HCURSOR pointer) {
        ICONINFO info{};
        if (GetIconInfo(pointer, &info) != FALSE) {
            hotSpot = {static_cast<int>(info.xHotspot), static_cast<int>(info.yHotspot)};
            color.reset(info.hbmColor);
            mask.reset(info.hbmMask);
        }
    }

    /// Of both sides: the mask of a pointer without colours is twice as high. 0 without a bitmap.
    [[nodiscard]] int side() const {
        BITMAP record{};
        const bool known = GetObjectW(mask.get(), sizeof record, &record) != 0;
        return known ? static_cast<int>(record.bmWidth) : 0;
    }

    PixelPoint hotSpot;
    BitmapHandle mask;
    BitmapHandle color;
};

bool drawOn(BackBuffer& ground, Color color, HCURSOR pointer, int side) {
    if (!ground.resize({side, side})) {
        return false;
    }
    fillRect(ground.context(), {0, 0, side, side}, color);
    return DrawIconEx(ground.context(), 0, 0, pointer, side, side, 0, nullptr, DI_NORMAL) != FALSE;
}

}  // namespace

std::optional<PointerOnScreen> pointerOnScreen() {
    CURSORINFO cursor{};
    cursor.cbSize = sizeof cursor;
    if (GetCursorInfo(&cursor) == FALSE) {
        return std::nullopt;
    }
    return PointerOnScreen{
        {static_cast<int>(cursor.ptScreenPos.x), static_cast<int>(cursor.ptScreenPos.y)},
        (cursor.flags & CURSOR_SHOWING) != 0 ? cursor.hCursor : nullptr};
}

PointerPicture pictureOfPointer(HCURSOR pointer) {
    const PointerFacts facts(pointer);
    const int side = facts.side();
    BackBuffer black;
    BackBuffer white;
    if (side == 0 || !drawOn(black, plain::black, pointer, side) ||
        !drawOn(white, plain::white, pointer, side)) {
        return {};
    }
    return pointerPicture(black.view(), white.view(), facts.hotSpot);
}

}  // namespace ormala
