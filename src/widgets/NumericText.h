#pragma once

#include <optional>
#include <string>
#include <string_view>

namespace ormala {

/// What a text box holds: text of single bytes, the caret or the start of the selection, and the
/// length of the selection.
struct TypedText {
    std::string text;
    int caret = 0;
    int selected = 0;

    bool operator==(const TypedText&) const = default;
};

/// What becomes of a typed character: the box as it is to be first, and then what is typed into it.
struct FilteredKey {
    TypedText box;
    /// 0 if nothing is typed.
    char32_t key = 0;

    bool operator==(const FilteredKey&) const = default;
};

/// The rules of a text box that holds nothing but a number. The box tells of each key and of each
/// change of its text, and shows what it is told to.
class NumericText {
  public:
    /// The separator of the user's locale; "." for one that is neither point nor comma.
    explicit NumericText(std::string_view decimalSeparator);

    /// Digits behind the separator.
    [[nodiscard]] int DecimalsMax() const { return decimalsMax_; }
    /// Stores the absolute value.
    void setDecimalsMax(int decimals);
    /// 0 any sign, 1 positive only, 2 negative only.
    [[nodiscard]] int Sign() const { return sign_; }
    void setSign(int sign) { sign_ = sign; }
    [[nodiscard]] char DecimalSeparator() const { return separator_; }

    /// A character is typed into the box. `keyHandled` follows when the box has taken it.
    FilteredKey keyPress(char32_t key, const TypedText& box);
    /// The delete key goes down, which types no character.
    void deletePress() { skipNormalise_ = true; }
    void keyHandled() { skipNormalise_ = false; }

    /// The text has changed. Nothing if it may stand as it is, else what is to be shown instead.
    [[nodiscard]] std::optional<std::string> changed(std::string_view text);

    /// The number that a text stands for, with either separator; its leading numeric part, or 0.
    [[nodiscard]] static double valueOf(std::string_view text);
    /// The text of a number, with the sign that is allowed and no more decimals than that. A number
    /// that is not finite is shown as 0.
    [[nodiscard]] std::string textOf(double value) const;
    /// The leading numeric part of a text that has a point as separator, with all its digits.
    [[nodiscard]] std::string plainTextOf(std::string_view text) const;

  private:
    [[nodiscard]] FilteredKey separatorKey(const TypedText& box) const;
    [[nodiscard]] FilteredKey minusKey(const TypedText& box) const;
    [[nodiscard]] FilteredKey plusKey(const TypedText& box) const;
    [[nodiscard]] FilteredKey digitKey(char32_t key, const TypedText& box) const;
    FilteredKey otherKey(char32_t key, const TypedText& box);

    char separator_ = '.';
    int decimalsMax_ = 0;
    int sign_ = 0;
    /// The text changes by typing.
    bool skipNormalise_ = false;
};

}  // namespace ormala
