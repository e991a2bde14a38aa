#include "measure/UnitChoice.h"

#include <algorithm>
#include <cstddef>

#include "base/Utf8.h"

namespace ormala {

namespace {

constexpr auto mostCharacters = static_cast<std::size_t>(longestUnit);

bool isLeadSurrogate(char16_t unit) {
    return unit >= 0xD800 && unit < 0xDC00;
}

bool isControlCharacter(char c) {
    return static_cast<unsigned char>(c) < ' ' || c == '\x7F';
}

std::string unitCut(std::string_view name) {
    std::u16string cut = utf16FromUtf8(name).substr(0, mostCharacters);
    if (!cut.empty() && isLeadSurrogate(cut.back())) {
        cut.pop_back();
    }
    return utf8FromUtf16(cut);
}

}  // namespace

bool UnitChoice::isValid() const {
    return !hasRealUnit() || units.LengthFactor > 0;
}

MeasureUnits UnitChoice::stored() const {
    MeasureUnits result = units;
    result.LengthUnit = std::string(trimBlanks(result.LengthUnit));
    return result;
}

bool unitTakesKey(std::string_view name) {
    return utf16FromUtf8(name).size() < mostCharacters;
}

bool unitIsStorable(std::string_view name, const CodePage& codePage) {
    const bool isPlain = std::ranges::none_of(name, isControlCharacter);
    return isPlain && !name.starts_with(' ') &&
           codePage.utf8FromBytes(codePage.bytesFromUtf8(name)) == name;
}

std::string unitCorrected(std::string_view former, std::string_view name,
                          const CodePage& codePage) {
    const std::size_t begin = std::min(name.find_first_not_of(' '), name.size());
    std::string cut = unitCut(name.substr(begin));
    return unitIsStorable(cut, codePage) ? cut : std::string(former);
}

}  // namespace ormala
