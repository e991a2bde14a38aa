#include <benchmark/benchmark.h>

#include <cstdio>
#include <map>
#include <string>

namespace {

/// Prints, after the usual table, the ratio of each benchmark "X/work" to its "X/limit".
class RatioReporter : public benchmark::ConsoleReporter {
  public:
    void ReportRuns(const std::vector<Run>& runs) override {
        ConsoleReporter::ReportRuns(runs);
        for (const Run& run : runs) {
            times_[run.benchmark_name()] = run.GetAdjustedRealTime();
        }
    }

    void Finalize() override {
        ConsoleReporter::Finalize();
        const std::string work = "/work";
        for (const auto& [name, time] : times_) {
            if (!name.ends_with(work)) {
                continue;
            }
            const std::string base = name.substr(0, name.size() - work.size());
            const auto limit = times_.find(base + "/limit");
            if (limit != times_.end()) {
                std::printf("%-28s %6.2f times its limit\n", base.c_str(), time / limit->second);
            }
        }
    }

  private:
    std::map<std::string, double> times_;
};

}  // namespace

int main(int argc, char** argv) {
    benchmark::Initialize(&argc, argv);
    RatioReporter reporter;
    benchmark::RunSpecifiedBenchmarks(&reporter);
    return 0;
}
