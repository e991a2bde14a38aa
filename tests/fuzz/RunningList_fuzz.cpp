#include "fuzz/FewSections.h"
#include "fuzz/Targets.h"

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    if (!ormala::hasFewSections(data, size)) {
        return -1;
    }
    ormala::fuzzRunningList(data, size);
    return 0;
}
