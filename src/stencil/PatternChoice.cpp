#include "stencil/PatternChoice.h"

#include <algorithm>
#include <cstddef>

namespace ormala {

PatternChoice::PatternChoice(const PatternList& patterns, int tab)
    : working_(patterns), page_(working_[0]) {
    openTab(tab);
}

void PatternChoice::openTab(int tab) {
    tab_ = std::clamp(tab, 0, patternSlots - 1);
    page_.setSetting(working_.at(static_cast<std::size_t>(tab_)));
    page_.setAllowNoSelection(tab_ != 0);
}

PatternList PatternChoice::patternsOfTab(int tab) const {
    PatternList alone;
    alone[0] = working_.at(static_cast<std::size_t>(tab));
    return alone;
}

bool PatternChoice::store(PatternList& patterns, int& tab) const {
    if (cancelled_) {
        return false;
    }
    patterns = working_;
    tab = tab_;
    return true;
}

}  // namespace ormala
