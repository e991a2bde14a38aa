#include "scene/WheelNotches.h"

namespace ormala {

int WheelNotches::add(int turn) {
    const bool turnsBack = (turn < 0 && rest_ > 0) || (turn > 0 && rest_ < 0);
    const int sum = turnsBack ? turn : rest_ + turn;
    rest_ = sum % notch;
    return sum / notch;
}

}  // namespace ormala
