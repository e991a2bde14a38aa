#pragma once

#include <cstddef>
#include <cstdint>

namespace ormala {

/// What every input must hold to, whatever bytes it has. The fuzzers and the tests that run their
/// corpora call the same functions. Each ends the program where a rule is broken.
void fuzzProfileFile(const std::uint8_t* data, std::size_t size);
void fuzzNumberForm(const std::uint8_t* data, std::size_t size);
void fuzzToolFile(const std::uint8_t* data, std::size_t size);
/// The keys of one tool, as a file has them, into a tool of each kind.
void fuzzToolKeys(const std::uint8_t* data, std::size_t size);
/// A file of tools into a list that has tools.
void fuzzRunningList(const std::uint8_t* data, std::size_t size);
/// Keys and pastes into a box of numbers: the first byte says which numbers, the others are typed.
void fuzzNumericText(const std::uint8_t* data, std::size_t size);
/// A rectangle, a screen and another one.
void fuzzWindowPlacement(const std::uint8_t* data, std::size_t size);

}  // namespace ormala
