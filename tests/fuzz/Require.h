#pragma once

#include <cstdio>
#include <cstdlib>

namespace ormala {

/// Ends the program if a rule doesn't hold, which a fuzzer and a test runner both notice.
inline void require(bool holds, const char* rule) {
    if (!holds) {
        std::fprintf(stderr, "Broken rule: %s\n", rule);
        std::abort();
    }
}

}  // namespace ormala
