#include "platform/win/fills.h"

#include "platform/win/GdiCanvas.h"

namespace ormala {

void fillRect(HDC context, const RECT& area, Color color) {
    SetDCBrushColor(context, colorRef(color));
    FillRect(context, &area, static_cast<HBRUSH>(GetStockObject(DC_BRUSH)));
}

void frameRect(HDC context, const PixelRect& box, int line, Color color) {
    fillRect(context, {box.left, box.top, box.right, box.top + line}, color);
    fillRect(context, {box.left, box.bottom - line, box.right, box.bottom}, color);
    fillRect(context, {box.left, box.top, box.left + line, box.bottom}, color);
    fillRect(context, {box.right - line, box.top, box.right, box.bottom}, color);
}

}  // namespace ormala
