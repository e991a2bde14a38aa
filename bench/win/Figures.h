#pragma once

#include <functional>
#include <optional>
#include <string>
#include <vector>

namespace ormala::bench {

/// In milliseconds.
double elapsed(const std::function<void()>& work);

double median(std::vector<double> values);

/// What a figure is held against.
struct Limit {
    /// In the unit of the figure.
    double value = 0;
    std::string name;
    /// The largest ratio that was promised, none if the figure is only watched.
    std::optional<double> mostRatio = std::nullopt;
    /// Of what it is the median of; see `scatter`.
    double scatter = 0;
};

/// How far the middle half of the values reaches, in parts of their median.
double scatter(std::vector<double> values);

/// A limit that was measured, too.
Limit limitOf(const std::vector<double>& values, const std::string& name,
              std::optional<double> mostRatio = std::nullopt);

/// Prints a figure beside the limit that was taken in the same run. A limit that scatters by more
/// than a fifth is no measure of anything, which is said then.
void report(const std::string& what, double figure, const std::string& unit, const Limit& limit);

}  // namespace ormala::bench
