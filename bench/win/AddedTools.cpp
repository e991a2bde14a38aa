#include <string>
#include <vector>

#include "Figures.h"
#include "benchmarks.h"
#include "support/QuietToolList.h"

namespace ormala::bench {

namespace {

constexpr int addedRuns = 100;

void measureAdding(ToolKind kind, const std::string& what) {
    constexpr int toolsAtStart = 2;
    constexpr int toolsBeforeLast = 32;
    std::vector<double> firsts;
    std::vector<double> lasts;
    for (int i = 0; i < addedRuns; ++i) {
        QuietToolList tools;
        firsts.push_back(elapsed([&] { tools.add(kind, 1); }));
        tools.add(kind, toolsBeforeLast - 1 - toolsAtStart);
        lasts.push_back(elapsed([&] { tools.add(kind, 1); }));
    }
    report("adding the 33rd " + what, median(lasts), "ms",
           {median(firsts), "the first one added", 2});
}

}  // namespace

void addedTools() {
    measureAdding(ToolKind::stencil, "stencil");
    measureAdding(ToolKind::measurement, "measuring tool");
}

}  // namespace ormala::bench
