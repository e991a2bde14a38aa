#pragma once

#include <cstddef>
#include <optional>
#include <vector>

namespace ormala {

/// The controls of a window in the order of the Tab key, which is not that of what covers what: a
/// button that has grown lies in front of the others, and a window that only holds controls can
/// have the focus itself.
class TabOrder {
  public:
    /// A control, or a window in front of those that it holds, which is no stop.
    void add(bool stop) { stops_.push_back(stop); }
    [[nodiscard]] std::size_t size() const { return stops_.size(); }

    /// The stop after that place, or before it, in a ring; from no place the first one or the last.
    /// Nothing if there is no stop.
    [[nodiscard]] std::optional<std::size_t> next(std::optional<std::size_t> from,
                                                  bool backwards) const;

  private:
    std::vector<bool> stops_;
};

}  // namespace ormala
