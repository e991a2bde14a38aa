#include "fuzz/Targets.h"

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    ormala::fuzzWindowPlacement(data, size);
    return 0;
}
