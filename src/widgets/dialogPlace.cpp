#include "widgets/dialogPlace.h"

#include <algorithm>

namespace ormala {

namespace {

int centredWithin(int length, int from, int to, int first, int last) {
    const int centred = from + (to - from - length) / 2;
    return std::max(std::min(centred, last - length), first);
}

}  // namespace

PixelRect placeOfDialog(PixelSize size, const PixelRect& owner, const PixelRect& workArea) {
    const int left =
        centredWithin(size.width, owner.left, owner.right, workArea.left, workArea.right);
    const int top =
        centredWithin(size.height, owner.top, owner.bottom, workArea.top, workArea.bottom);
    return {left, top, left + size.width, top + size.height};
}

}  // namespace ormala
