#include "widgets/NumericText.h"

#include <algorithm>
#include <cmath>
#include <cstdlib>
#include <utility>

#include "modAPI/textForms.h"
#include "storage/NumberForm.h"

namespace ormala {

namespace {

constexpr char32_t keyCopy = 3;
constexpr char32_t keyBackspace = 8;
constexpr char32_t keyPaste = 22;
constexpr char32_t keyCut = 24;

std::size_t at(int place) {
    return static_cast<std::size_t>(std::max(place, 0));
}

int length(const std::string& text) {
    return static_cast<int>(text.size());
}

bool isSeparator(char c) {
    return c == '.' || c == ',';
}

bool isDigit(char32_t key) {
    return key >= U'0' && key <= U'9';
}

FilteredKey cancelled(TypedText box) {
    return {std::move(box), 0};
}

/// Blanks count for nothing, wherever they stand.
std::string withoutBlanks(std::string_view text) {
    std::string packed(text);
    std::erase_if(packed, [](char c) { return c == ' ' || c == '\t' || c == '\n' || c == '\r'; });
    return packed;
}

std::optional<double> readNumber(std::string_view text) {
    const std::string packed = withoutBlanks(text);
    const bool hasPlus = packed.starts_with('+') && !packed.starts_with("+-");
    return numberFromText(std::string_view(packed).substr(hasPlus ? 1 : 0));
}

std::string withPoints(std::string_view text) {
    std::string changed(text);
    std::ranges::replace(changed, ',', '.');
    return changed;
}

/// The box after the character was typed into it.
std::string typedInto(const TypedText& box, char32_t key) {
    std::string text = box.text;
    text.replace(std::min(at(box.caret), text.size()), at(box.selected), 1, static_cast<char>(key));
    return text;
}

}  // namespace

NumericText::NumericText(std::string_view decimalSeparator)
    : separator_(decimalSeparator == "," ? ',' : '.') {}

void NumericText::setDecimalsMax(int decimals) {
    decimalsMax_ = std::abs(decimals);
}

FilteredKey NumericText::keyPress(char32_t key, const TypedText& box) {
    skipNormalise_ = true;
    FilteredKey result;
    if (key == U'.' || key == U',') {
        result = separatorKey(box);
    } else if (key == U'-') {
        result = minusKey(box);
    } else if (key == U'+') {
        result = plusKey(box);
    } else if (isDigit(key)) {
        result = digitKey(key, box);
    } else {
        result = otherKey(key, box);
    }
    const TypedText& left = result.box;
    if (left.caret == 0 && left.selected == 0 && left.text.starts_with('-')) {
        result.key = 0;
    }
    return result;
}

FilteredKey NumericText::separatorKey(const TypedText& box) const {
    std::string kept = box.text;
    kept.erase(std::min(at(box.caret), kept.size()), at(box.selected));
    const bool allowed = decimalsMax_ != 0 && std::ranges::none_of(kept, isSeparator);
    return {box, allowed ? static_cast<char32_t>(separator_) : 0};
}

FilteredKey NumericText::minusKey(const TypedText& box) const {
    if ((sign_ != 0 && sign_ != 2) || box.text.starts_with('-')) {
        return cancelled(box);
    }
    return cancelled({"-" + box.text, box.caret + 1, box.selected});
}

FilteredKey NumericText::plusKey(const TypedText& box) const {
    if (sign_ == 2) {
        return cancelled(box);
    }
    TypedText positive = box;
    const auto removed = static_cast<int>(std::erase(positive.text, '-'));
    const int caretsLost = std::min(positive.caret, removed);
    positive.caret -= caretsLost;
    positive.selected = std::max(positive.selected - (removed - caretsLost), 0);
    return cancelled(positive);
}

FilteredKey NumericText::digitKey(char32_t key, const TypedText& box) const {
    FilteredKey result{box, key};
    const std::size_t separator = box.text.find_last_of(".,");
    if (separator != std::string::npos) {
        const int behind = static_cast<int>(separator) + 1;
        if (behind <= box.caret && length(box.text) - behind >= decimalsMax_) {
            if (box.caret >= length(box.text)) {
                return cancelled(box);
            }
            result.box.selected = std::max(box.selected, 1);
        }
    }
    // More digits than any number has would not be what the box is read as.
    const bool readable = readNumber(withPoints(typedInto(result.box, key))).has_value();
    return readable ? result : cancelled(box);
}

FilteredKey NumericText::otherKey(char32_t key, const TypedText& box) {
    skipNormalise_ = key != keyPaste && key != keyCut;
    const bool known = key == keyPaste || key == keyCut || key == keyCopy || key == keyBackspace;
    return {box, known ? key : 0};
}

std::optional<std::string> NumericText::changed(std::string_view text) {
    if (skipNormalise_) {
        skipNormalise_ = false;
        return std::nullopt;
    }
    return textOf(valueOf(text));
}

double NumericText::valueOf(std::string_view text) {
    return readNumber(withPoints(text)).value_or(0);
}

std::string NumericText::textOf(double value) const {
    double shown = std::isfinite(value) ? value : 0;
    if (sign_ == 1) {
        shown = std::abs(shown);
    } else if (sign_ == 2) {
        shown = -std::abs(shown);
    }
    std::string pattern(24, '#');
    pattern.back() = '0';
    if (decimalsMax_ > 0 && shown != std::trunc(shown)) {
        pattern += "." + std::string(at(decimalsMax_), '#');
    }
    std::string text = formatNumber(shown, pattern, {std::string(1, separator_), {}});
    // All decimals may have been rounded away.
    if (text.ends_with(separator_)) {
        text.pop_back();
    }
    return text;
}

std::string NumericText::plainTextOf(std::string_view text) const {
    std::string plain = withoutBlanks(numberText(readNumber(text).value_or(0)));
    const std::size_t point = plain.find('.');
    if (point != std::string::npos) {
        plain[point] = separator_;
        if (point == 0 || plain[point - 1] == '-') {
            plain.insert(point, 1, '0');
        }
    }
    return plain;
}

}  // namespace ormala
