#pragma once

#include <cstddef>
#include <cstdint>

namespace ormala {

/// What every input must hold to, whatever bytes it has. The fuzzers and the tests that run their
/// corpora call the same functions. Each ends the program where a rule is broken.
void fuzzProfileFile(const std::uint8_t* data, std::size_t size);
void fuzzNumberForm(const std::uint8_t* data, std::size_t size);
void fuzzToolFile(const std::uint8_t* data, std::size_t size);

}  // namespace ormala
