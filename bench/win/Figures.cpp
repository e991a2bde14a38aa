#include "Figures.h"

#include <algorithm>
#include <chrono>
#include <cstdio>

namespace ormala::bench {

double elapsed(const std::function<void()>& work) {
    const auto start = std::chrono::steady_clock::now();
    work();
    return std::chrono::duration<double, std::milli>(std::chrono::steady_clock::now() - start)
        .count();
}

double median(std::vector<double> values) {
    const auto middle = values.begin() + static_cast<std::ptrdiff_t>(values.size() / 2);
    std::ranges::nth_element(values, middle);
    return *middle;
}

double scatter(std::vector<double> values) {
    std::ranges::sort(values);
    const std::size_t quarter = values.size() / 4;
    return (values[values.size() - 1 - quarter] - values[quarter]) / median(values);
}

Limit limitOf(const std::vector<double>& values, const std::string& name,
              std::optional<double> mostRatio) {
    return {median(values), name, mostRatio, scatter(values)};
}

void report(const std::string& what, double figure, const std::string& unit, const Limit& limit) {
    std::printf("%-46s %9.3f %-3s  ratio %5.2f", what.c_str(), figure, unit.c_str(),
                figure / limit.value);
    if (limit.mostRatio) {
        std::printf(" (at most %g)", *limit.mostRatio);
    }
    std::printf(" to %s (%.3f %s)", limit.name.c_str(), limit.value, unit.c_str());
    if (constexpr double quiet = 0.2; limit.scatter > quiet) {
        std::printf("   no verdict: this limit scatters by %.0f %%", 100 * limit.scatter);
    }
    std::printf("\n");
    std::fflush(stdout);
}

}  // namespace ormala::bench
