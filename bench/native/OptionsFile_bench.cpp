#include <benchmark/benchmark.h>

#include <sstream>
#include <string>

#include "app/Options.h"
#include "storage/ProfileText.h"
#include "support/MemoryINIFile.h"

// Reading all options of a file, beside splitting the same bytes into lines once for every key.

namespace ormala {
namespace {

const char* const path = "C:\\Data\\Ormala\\Ormala.ini";

std::string writtenOptions() {
    test::MemoryINIFile file;
    file.ini.setPath(path);
    file.ini.setCurrentSection(optionsSection);
    {
        const auto group = file.ini.group();
        writeOptions(file.ini, Options{});
    }
    return file.store.read(path).bytes;
}

void readAllOptions(benchmark::State& state) {
    test::MemoryINIFile file;
    file.store.replace(path, writtenOptions());
    file.ini.setPath(path);
    file.ini.setCurrentSection(optionsSection);
    for (auto _ : state) {
        const auto group = file.ini.group();
        benchmark::DoNotOptimize(readOptions(file.ini, 9));
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
