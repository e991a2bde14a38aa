#include <benchmark/benchmark.h>

#include <sstream>
#include <string>

#include "app/Options.h"
#include "storage/ProfileText.h"
#include "support/MemoryINIFile.h"

// Reading all options of a file, beside splitting the same bytes into lines once for every key.

namespace ormala {
namespace {

std::string writtenOptions() {
    MemoryINIFile file;
    file.file.setCurrentSection(optionsSection);
    {
        const auto group = file.file.group();
        writeOptions(file.file, Options{});
    }
    return file.bytes();
}

void readAllOptions(benchmark::State& state) {
    MemoryINIFile file;
    file.bytes() = writtenOptions();
    file.file.setCurrentSection(optionsSection);
    for (auto _ : state) {
        const auto group = file.file.group();
        benchmark::DoNotOptimize(readOptions(file.file, 9));
    }
}
BENCHMARK(readAllOptions)->Name("options file/work");

void splitLines(benchmark::State& state) {
    const std::string bytes = writtenOptions();
    constexpr int keys = 37;
    for (auto _ : state) {
        for (int i = 0; i < keys; ++i) {
            std::istringstream lines(bytes);
            std::string line;
            while (std::getline(lines, line)) {
                benchmark::DoNotOptimize(line);
            }
        }
    }
}
BENCHMARK(splitLines)->Name("options file/limit");

}  // namespace
}  // namespace ormala
