#pragma once

namespace ormala {

/// The whole notches in what a mouse wheel tells. A wheel of fine resolution and a touchpad tell
/// parts of a notch, which count once they make a whole one; a turn of direction starts anew.
class WheelNotches {
  public:
    /// What the system tells for one notch.
    static constexpr int notch = 120;

    /// The notches that `turn` completes; positive ones turn away from the user, as `turn` does.
    int add(int turn);

  private:
    int rest_ = 0;
};

}  // namespace ormala
