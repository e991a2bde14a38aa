#include "magnifier/win/LensImage.h"

#include <cstring>
#include <utility>

#include "magnifier/enlargement.h"
#include "magnifier/win/pointers.h"
#include "platform/win/GdiCanvas.h"

namespace ormala {

namespace {

constexpr int idLens = 1;

bool samePixels(const PixelView& a, const PixelView& b) {
    if (a.size != b.size) {
        return false;
    }
    const std::size_t bytes = static_cast<std::size_t>(a.size.width) * sizeof *a.pixels;
    for (int y = 0; y < a.size.height; ++y) {
        if (std::memcmp(a.row(y), b.row(y), bytes) != 0) {
            return false;
        }
    }
    return true;
}

}  // namespace

LensImage::LensImage(HWND parent) : picLens_(parent, idLens, "picLens") {}

void LensImage::setPlace(const LensLayout& layout) {
    picLens_.setPlace(layout.picLens);
    picInter_.resize({layout.SourceWidth, layout.SourceHeight});
    lastPicture_.resize({layout.SourceWidth, layout.SourceHeight});
    lastLook_.reset();
}

void LensImage::screenChanged() {
    screen_.reopen();
    knownPointer_.reset();
}

void LensImage::refresh(const LensImageLook& look, HCURSOR pointer, PixelPoint source,
                        const PixelRect& bounds) {
    screen_.copyTo(picInter_, source, bounds, lensGround);
    if (look == lastLook_ && knownPointer_ == pointer &&
        samePixels(picInter_.view(), lastPicture_.view())) {
        return;
    }
    lastLook_ = look;
    takePointer(pointer);
    const PixelView picBuff = picLens_.picture().view();
    // The replication of the system's own stretching, in less time than that.
    enlarge(picBuff, picInter_.view(), look.layout.Factor);
    drawPointer(picBuff, pointerPicture_, look.hotSpot, look.layout.Factor);
    DrawGrid(picBuff, look, systemColors());
    DrawHotSpot(picBuff, look, systemColors());
    // A grid that is switched on keeps the last row and column free at any factor.
    picLens_.setRim(look.options.gridOn && look.layout.GridTrim == 0 ? 1 : 0);
    picLens_.setChanged();
    std::swap(picInter_, lastPicture_);
}

std::optional<Color> LensImage::colorAt(PixelPoint place) const {
    const PixelView picture = lastPicture_.view();
    return lastLook_ && picture.contains(place) ? std::optional(colorOfPixel(picture, place))
                                                : std::nullopt;
}

void LensImage::takePointer(HCURSOR pointer) {
    if (knownPointer_ != pointer) {
        knownPointer_ = pointer;
        pointerPicture_ = pictureOfPointer(pointer);
    }
}

}  // namespace ormala
