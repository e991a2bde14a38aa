#include "magnifier/LensPace.h"

namespace ormala {

void LensPace::saw(bool change, std::uint64_t now) {
    if (change || since_ == 0) {
        since_ = now;
    }
    interval_ = now - since_ < longEnough ? usual : atRest;
}

}  // namespace ormala
