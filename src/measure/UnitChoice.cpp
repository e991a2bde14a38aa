#include "measure/UnitChoice.h"

#include <cstddef>

#include "base/Utf8.h"

namespace ormala {

namespace {

constexpr auto mostCharacters = static_cast<std::size_t>(longestUnit);

bool isLeadSurrogate(char16_t unit) {
    return unit >= 0xD800 && unit < 0xDC00;
}

}  // namespace

bool UnitChoice::isValid() const {
    return !hasRealUnit() || units.LengthFactor > 0;
}

MeasureUnits UnitChoice::stored() const {
    MeasureUnits result = units;
    result.LengthUnit.erase(result.LengthUnit.find_last_not_of(' ') + 1);
    return result;
}

bool unitTakesKey(std::string_view name) {
    return utf16FromUtf8(name).size() < mostCharacters;
}

std::string unitCut(std::string_view name) {
    std::u16string cut = utf16FromUtf8(name).substr(0, mostCharacters);
    if (!cut.empty() && isLeadSurrogate(cut.back())) {
        cut.pop_back();
    }
    return utf8FromUtf16(cut);
}

}  // namespace ormala
