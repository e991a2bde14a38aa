#pragma once

#include <vector>

#include "dialogs/OptionsPort.h"

namespace ormala {

/// Settings that are as a test wants them, and what was to be applied to them.
class NotedOptions : public OptionsPort {
  public:
    [[nodiscard]] OptionValues optionValues() const override { return live; }
    void applyOptions(const OptionValues& values) override { applied.push_back(values); }

    OptionValues live;
    std::vector<OptionValues> applied;
};

}  // namespace ormala
