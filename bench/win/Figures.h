#pragma once

#include <functional>
#include <string>
#include <vector>

namespace ormala::bench {

/// In milliseconds.
double elapsed(const std::function<void()>& work);

double median(std::vector<double> values);

/// Prints a figure beside the limit that was taken in the same run.
void report(const std::string& what, double figure, const std::string& unit, double limit,
            const std::string& limitName);

}  // namespace ormala::bench
