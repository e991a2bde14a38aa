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

void report(const std::string& what, double figure, const std::string& unit, const Limit& limit) {
    std::printf("%-46s %9.3f %-3s  ratio %5.2f", what.c_str(), figure, unit.c_str(),
                figure / limit.value);
    if (limit.mostRatio) {
        std::printf(" (at most %g)", *limit.mostRatio);
    }
    std::printf(" to %s (%.3f %s)\n", limit.name.c_str(), limit.value, unit.c_str());
    std::fflush(stdout);
}

}  // namespace ormala::bench
