#include "modAPI/SizeAcrossDpi.h"

namespace ormala {

PixelSize SizeAcrossDpi::at(int dpi, PixelSize suggested, int formerDpi, PixelSize former) {
    if (former != taken_) {
        own_ = former;
        ownDpi_ = formerDpi;
    }
    return dpi == ownDpi_ ? own_ : suggested;
}

}  // namespace ormala
