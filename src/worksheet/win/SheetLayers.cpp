#include "worksheet/win/SheetLayers.h"

#include <algorithm>

#include "platform/win/regions.h"

namespace ormala {

namespace {

bool isKeyed(const LayeredLook& look) {
    return (look.flags & LWA_COLORKEY) != 0;
}

/// The key as a pixel of the picture.
std::uint32_t keyPixel(const LayeredLook& look) {
    return RGB(GetBValue(look.colorKey), GetGValue(look.colorKey), GetRValue(look.colorKey));
}

void setExtendedStyle(HWND window, std::uint32_t style) {
    SetWindowLongPtrW(window, GWL_EXSTYLE, static_cast<LONG_PTR>(style));
}

/// The system keys the colour out and applies the opacity.
class KeyedLayer : public SheetLayer {
  public:
    explicit KeyedLayer(HWND window) : window_(window) {}

    void apply(const LayeredLook& look, const BackBuffer& /*picture*/) override {
        setExtendedStyle(window_, look.extendedStyle);
        SetLayeredWindowAttributes(window_, look.colorKey, static_cast<BYTE>(look.alpha),
                                   look.flags);
    }

    void show(HDC context, const BackBuffer& picture, const PixelRect& area) override {
        BitBlt(context, area.left, area.top, area.width(), area.height(), picture.context(),
               area.left, area.top, SRCCOPY);
    }

  private:
    HWND window_;
};

/// Each pixel has its opacity.
class PixelLayer : public SheetLayer {
  public:
    explicit PixelLayer(HWND window) : window_(window) {}

    void apply(const LayeredLook& look, const BackBuffer& picture) override {
        setExtendedStyle(window_, look.extendedStyle);
        key_ = keyPixel(look);
        opacity_ = look.alpha;
        show(nullptr, picture, {0, 0, picture.size().width, picture.size().height});
    }

    void show(HDC /*context*/, const BackBuffer& picture, const PixelRect& area) override {
        const PixelView from = picture.view();
        const SeeThrough how{key_, opacity_,
                             narrowestOpenGap(visibleRunsOf(from, key_), mostRunsOfShape)};
        const bool all = how != how_ || shown_.size() != picture.size();
        if (!shown_.resize(picture.size())) {
            return;
        }
        how_ = how;
        // A gap goes on beside the area.
        const int top = all ? 0 : area.top;
        const int bottom = all ? from.size.height : std::min(area.bottom, from.size.height);
        makeSeeThrough(from, shown_.view(), top, bottom, how);
        bringToScreen({0, top, from.size.width, bottom});
    }

  private:
    void bringToScreen(const PixelRect& area) const {
        const RECT changed = toRect(area);
        SIZE size{shown_.size().width, shown_.size().height};
        POINT origin{0, 0};
        BLENDFUNCTION blend{AC_SRC_OVER, 0, 255, AC_SRC_ALPHA};
        UPDATELAYEREDWINDOWINFO update{};
        update.cbSize = sizeof update;
        update.psize = &size;
        update.hdcSrc = shown_.context();
        update.pptSrc = &origin;
        update.pblend = &blend;
        update.dwFlags = ULW_ALPHA;
        update.prcDirty = &changed;
        UpdateLayeredWindowIndirect(window_, &update);
    }

    HWND window_;
    std::uint32_t key_ = 0;
    int opacity_ = 255;
    SeeThrough how_;
    BackBuffer shown_;
};

}  // namespace

SheetLayers::SheetLayers(HWND window, std::optional<int> mostRuns)
    : window_(window), mostRuns_(mostRuns), layer_(std::make_unique<KeyedLayer>(window)) {}

bool SheetLayers::needsPixels(const BackBuffer& picture) const {
    return mostRuns_ && isKeyed(look_) &&
           visibleRunsOf(picture.view(), keyPixel(look_)).count > *mostRuns_;
}

bool SheetLayers::choose(const BackBuffer& picture) {
    const bool byPixels = needsPixels(picture);
    if (byPixels == byPixels_) {
        return false;
    }
    byPixels_ = byPixels;
    // Each way excludes the other until the window has been without a layer.
    setExtendedStyle(window_, look_.extendedStyle & ~DWORD{WS_EX_LAYERED});
    if (byPixels) {
        layer_ = std::make_unique<PixelLayer>(window_);
    } else {
        layer_ = std::make_unique<KeyedLayer>(window_);
    }
    return true;
}

void SheetLayers::apply(const LayeredLook& look, const BackBuffer& picture) {
    look_ = look;
    const bool changed = choose(picture);
    layer_->apply(look, picture);
    if (changed && !byPixels_) {
        InvalidateRect(window_, nullptr, FALSE);
    }
}

bool SheetLayers::prepare(const BackBuffer& picture) {
    if (!choose(picture)) {
        return false;
    }
    layer_->apply(look_, picture);
    InvalidateRect(window_, nullptr, FALSE);
    return true;
}

}  // namespace ormala
