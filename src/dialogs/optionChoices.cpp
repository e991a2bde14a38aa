#include "dialogs/optionChoices.h"

#include <algorithm>

#include "modAPI/rounding.h"

namespace ormala {

int optionFor(int value, std::span<const int> choices) {
    const auto found = std::ranges::find(choices, value);
    return found == choices.end() ? noOption : static_cast<int>(found - choices.begin());
}

int wholeValue(float sliderValue) {
    return static_cast<int>(RoundHalfAway(static_cast<double>(sliderValue)));
}

int pageToOpen(int wanted, int last) {
    return wanted >= 0 && wanted < optionPageCount ? wanted : last;
}

void CoupledValues::couple(bool coupled) {
    coupled_ = coupled;
    if (coupled_) {
        y_ = x_;
    }
}

void CoupledValues::setX(int value) {
    x_ = value;
    if (coupled_) {
        y_ = value;
    }
}

void CoupledValues::setY(int value) {
    y_ = value;
    if (coupled_) {
        x_ = value;
    }
}

}  // namespace ormala
