#pragma once

#include <cstddef>
#include <cstdint>
#include <type_traits>

namespace ormala {

/// What every enumeration of a panel's controls counts in.
using ControlNumber = std::uint8_t;

/// The controls of all panels that their cores speak to. Each kind of tool has an enumeration of
/// its own, which goes on from `firstOfKind`.
enum class CommonControl : ControlNumber {
    none,
    lblTitle,
    cmdPause,
    cmdUndo,
    cmdRedo,
    cmdLineStyle,
    firstOfKind,
};

/// A control of a panel, from any of these enumerations.
class ControlId {
  public:
    template <typename Control>
    requires std::is_same_v<std::underlying_type_t<Control>, ControlNumber>
    constexpr ControlId(Control control) : number_(static_cast<ControlNumber>(control)) {}

    [[nodiscard]] constexpr std::size_t index() const { return number_; }
    bool operator==(const ControlId&) const = default;
    bool operator<(const ControlId& other) const { return number_ < other.number_; }

  private:
    ControlNumber number_;
};

}  // namespace ormala
