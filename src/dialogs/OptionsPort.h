#pragma once

#include "dialogs/OptionValues.h"

namespace ormala {

/// Where the options dialog gets the settings from, and where it brings them.
class OptionsPort {
  public:
    virtual ~OptionsPort() = default;

    /// As they are at this moment.
    [[nodiscard]] virtual OptionValues optionValues() const = 0;
    /// The user wants these, all of them, also those that are as they were.
    virtual void applyOptions(const OptionValues& values) = 0;
};

}  // namespace ormala
