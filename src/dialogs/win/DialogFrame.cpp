#include "dialogs/win/DialogFrame.h"

#include "platform/win/regions.h"

namespace ormala {

void DialogFrame::draw(HDC context, const RECT& client) {
    const PixelRect box = fromRect(client);
    frame_.resize(box);
    GdiCanvas canvas(context, box, fonts_);
    frame_.draw(canvas);
}

}  // namespace ormala
