#include "widgets/win/GradShape.h"

#include "platform/win/GdiCanvas.h"
#include "platform/win/OriginScope.h"
#include "platform/win/controlName.h"
#include "platform/win/mousePassing.h"
#include "platform/win/pixels.h"
#include "platform/win/regions.h"

namespace ormala {

GradShape::GradShape(HWND parent, int id, std::string_view name) {
    WindowDesign design;
    design.className = L"GradShape";
    // Each row or column depends on the whole size.
    design.classStyle = CS_DBLCLKS | CS_HREDRAW | CS_VREDRAW;
    design.style = WS_CHILD | WS_VISIBLE | WS_CLIPSIBLINGS | WS_CLIPCHILDREN;
    design.owner = parent;
    design.id = id;
    create(design);
    setControlName(handle(), name);
}

void GradShape::drawInto(HDC context, PixelPoint corner) const {
    const OriginScope origin(context, corner.x, corner.y);
    const PixelRect client = fromRect(clientRectangle());
    copyPixels(context, gradientImage(design_, {client.width(), client.height()}, systemColors()));
}

LRESULT GradShape::paint() {
    const PaintScope scope(handle());
    drawInto(scope.context(), {0, 0});
    return 0;
}

std::optional<LRESULT> GradShape::onMessage(UINT message, WPARAM wParam, LPARAM lParam) {
    switch (message) {
        case WM_PAINT:
            return paint();
        case WM_ERASEBKGND:
            return 1;
        default:
            if (passMouseToParent(handle(), message, wParam, lParam)) {
                return 0;
            }
            return std::nullopt;
    }
}

}  // namespace ormala
