#include "magnifier/win/LensPicture.h"

#include "platform/win/controlName.h"
#include "platform/win/fills.h"
#include "platform/win/mousePassing.h"

namespace ormala {

LensPicture::LensPicture(HWND parent, int id, std::string_view name) {
    WindowDesign design;
    design.className = L"PictureBox";
    design.style = WS_CHILD | WS_VISIBLE | WS_CLIPSIBLINGS;
    design.owner = parent;
    design.id = id;
    create(design);
    setControlName(handle(), name);
}

void LensPicture::setPlace(const PixelRect& box) {
    picture_.resize({box.width(), box.height()});
    corner_ = {box.left, box.top};
    place(box);
}

void LensPicture::setRim(int pixels) {
    if (rim_ != pixels) {
        rim_ = pixels;
        InvalidateRect(handle(), nullptr, FALSE);
    }
}

void LensPicture::show(HDC parentContext) {
    if (!isShown_) {
        isShown_ = true;
        copyTo(parentContext, corner_);
    }
}

void LensPicture::copyTo(HDC context, PixelPoint corner) const {
    const PixelSize size = picture_.size();
    BitBlt(context, corner.x, corner.y, size.width - rim_, size.height - rim_, picture_.context(),
           0, 0, SRCCOPY);
}

LRESULT LensPicture::onPaint() {
    painting.raise();
    const PaintScope scope(handle());
    copyTo(scope.context(), {0, 0});
    if (rim_ > 0) {
        const RECT client = clientRectangle();
        fillRect(scope.context(), {client.right - rim_, 0, client.right, client.bottom},
                 lensGround);
        fillRect(scope.context(), {0, client.bottom - rim_, client.right, client.bottom},
                 lensGround);
    }
    return 0;
}

std::optional<LRESULT> LensPicture::onMessage(UINT message, WPARAM wParam, LPARAM lParam) {
    switch (message) {
        case WM_PAINT:
            return onPaint();
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
