#include <cmath>
#include <cstring>
#include <string>

#include "fuzz/Require.h"
#include "fuzz/Targets.h"
#include "storage/NumberForm.h"

namespace ormala {

namespace {

/// What is written is read again, and writing that gives the same text.
void checkRoundTrip(double value) {
    const std::string text = numberText(value);
    const auto read = numberFromText(text);
    require(text.starts_with(' ') || text.starts_with('-'), "a number begins with a sign or blank");
    require(read.has_value(), "a written number is finite");
    require(!std::isfinite(value) || std::abs(*read - value) <= std::abs(value) * 1e-14 ||
                std::abs(value) < 1e-300,
            "a number reads as it was written");
    require(numberText(*read) == text, "a number that was read is written as before");
}

}  // namespace

void fuzzNumberForm(const std::uint8_t* data, std::size_t size) {
    const std::string text(reinterpret_cast<const char*>(data), size);
    if (const auto value = numberFromText(text)) {
        require(std::isfinite(*value), "text reads as a finite number or as none");
        checkRoundTrip(*value);
    }
    double bits = 0;
    if (size >= sizeof(bits)) {
        std::memcpy(&bits, data, sizeof(bits));
        checkRoundTrip(bits);
    }
}

}  // namespace ormala
