#include <algorithm>
#include <cmath>
#include <string>
#include <string_view>

#include "fuzz/Require.h"
#include "fuzz/Targets.h"
#include "widgets/NumericText.h"

namespace ormala {

namespace {

constexpr char32_t keyBackspace = 8;
constexpr char32_t keyPaste = 22;
constexpr char32_t keyCut = 24;
/// Bytes from here on move the caret; the last one pastes all that follows.
constexpr unsigned firstMove = 0x80;
constexpr unsigned pasteRest = 0xFF;
/// More are typed into no box; each is looked at, which takes its time.
constexpr std::size_t mostKeys = 48;

/// A text box that does what the system's does with what the rules let through.
class Box {
  public:
    explicit Box(NumericText rules) : rules_(rules) {}

    void type(char32_t key) {
        const FilteredKey filtered = rules_.keyPress(key, box_);
        box_ = filtered.box;
        checkCaret();
        const std::string before = box_.text;
        take(filtered.key);
        if (box_.text != before) {
            tellChange();
        }
        rules_.keyHandled();
        checkText();
    }

    void moveCaret(unsigned byte) {
        const auto size = static_cast<int>(box_.text.size());
        box_.caret = std::min(static_cast<int>(byte & 0xFU), size);
        box_.selected = std::min(static_cast<int>(byte >> 4U & 0x7U), size - box_.caret);
    }

    void paste(std::string_view text) {
        rules_.keyPress(keyPaste, box_);
        box_.text.replace(static_cast<std::size_t>(box_.caret),
                          static_cast<std::size_t>(box_.selected), text);
        box_.caret += static_cast<int>(text.size());
        box_.selected = 0;
        tellChange();
        rules_.keyHandled();
        checkText();
        const auto again = rules_.changed(box_.text);
        require(again == box_.text, "what a paste becomes stays as it is");
        const double value = NumericText::valueOf(box_.text);
        require(rules_.Sign() != 1 || value >= 0, "a positive box holds no negative number");
        require(rules_.Sign() != 2 || value <= 0, "a negative box holds no positive number");
        const std::size_t separator = box_.text.find(rules_.DecimalSeparator());
        require(
            separator == std::string::npos ||
                box_.text.size() - separator - 1 <= static_cast<std::size_t>(rules_.DecimalsMax()),
            "there are no more decimals than allowed");
    }

  private:
    void take(char32_t key) {
        const auto caret = static_cast<std::size_t>(box_.caret);
        const auto selected = static_cast<std::size_t>(box_.selected);
        if (key >= U' ') {
            box_.text.replace(caret, selected, 1, static_cast<char>(key));
            box_.caret += 1;
        } else if (key == keyCut || (key == keyBackspace && selected > 0)) {
            box_.text.erase(caret, selected);
        } else if (key == keyBackspace && caret > 0) {
            box_.text.erase(caret - 1, 1);
            box_.caret -= 1;
        }
        box_.selected = 0;
    }

    void tellChange() {
        if (const auto shown = rules_.changed(box_.text)) {
            box_.text = *shown;
            box_.caret = std::min(box_.caret, static_cast<int>(box_.text.size()));
        }
    }

    void checkCaret() const {
        require(box_.caret >= 0 && box_.selected >= 0, "the caret stays in the box");
        require(box_.caret + box_.selected <= static_cast<int>(box_.text.size()),
                "the selection stays in the box");
    }

    void checkText() const {
        constexpr std::string_view allowed = "0123456789-.,";
        require(box_.text.find_first_not_of(allowed) == std::string::npos,
                "a box holds nothing but a number");
        require(
            std::ranges::count(box_.text, '-') <= 1 && box_.text.find('-', 1) == std::string::npos,
            "a sign stands in front");
        const auto separators =
            std::ranges::count(box_.text, '.') + std::ranges::count(box_.text, ',');
        require(separators <= 1, "there is one separator");
        require(std::isfinite(NumericText::valueOf(box_.text)), "every text is a finite number");
    }

    NumericText rules_;
    TypedText box_;
};

}  // namespace

void fuzzNumericText(const std::uint8_t* data, std::size_t size) {
    if (size == 0) {
        return;
    }
    NumericText rules((data[0] & 0x40U) != 0 ? "," : ".");
    rules.setDecimalsMax(static_cast<int>(data[0] & 0x7U));
    rules.setSign(static_cast<int>(data[0] >> 3U & 0x7U) % 3);
    Box box(rules);
    for (std::size_t i = 1; i < std::min(size, mostKeys); ++i) {
        if (data[i] == pasteRest) {
            box.paste({reinterpret_cast<const char*>(data) + i + 1, size - i - 1});
            return;
        }
        if (data[i] >= firstMove) {
            box.moveCaret(data[i]);
        } else {
            box.type(data[i]);
        }
    }
}

}  // namespace ormala
