#include "worksheet/SheetTip.h"

#include "language/MlStringModule.h"

namespace ormala {

bool SheetTip::show(const OverlayItem& item, TipId tip) {
    if (tip == 0 && owner_ != &item) {
        return false;
    }
    const bool changes = tip != tip_;
    owner_ = tip != 0 ? &item : nullptr;
    tip_ = tip;
    return changes;
}

std::string SheetTip::text() const {
    return tip_ != 0 ? MlString(tip_, {}) : std::string{};
}

}  // namespace ormala
