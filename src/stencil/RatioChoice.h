#pragma once

#include <functional>
#include <optional>
#include <string>
#include <vector>

#include "modAPI/PixelRect.h"
#include "modAPI/textForms.h"
#include "stencil/SpecialRatios.h"

namespace ormala {

/// What the dialog of the special ratios shows and gives: the ratio there is and the row that is
/// chosen instead.
class RatioChoice {
  public:
    /// How wide a text is in the dialog's font, in pixels.
    using TextWidth = std::function<int(const std::string&)>;

    /// Both must outlive it; they are in the user's language.
    RatioChoice(const SpecialRatios& ratios, const TextForm& form) : ratios_(ratios), form_(form) {}

    /// Starts with the ratio there is: the row that is equal to it in three digits is chosen.
    void begin(double current);

    [[nodiscard]] double current() const { return current_; }
    /// Whether the list shows ratios of 1 and more.
    [[nodiscard]] bool inverted() const { return inverted_; }
    void setInverted(bool inverted) { inverted_ = inverted; }
    /// The chosen row, 0 to 17, or -1.
    [[nodiscard]] int row() const { return row_; }
    void setRow(int row) { row_ = row; }
    /// The chosen ratio; nothing without a row, and then there is nothing to confirm.
    [[nodiscard]] std::optional<double> newRatio() const;

    /// The rows of the list: the ratio, blanks up to the width of the widest, a tab, and what it is
    /// used for.
    [[nodiscard]] std::vector<std::string> rows(const TextWidth& widthOf) const;
    [[nodiscard]] std::string currentText() const;
    [[nodiscard]] std::string newText() const;

  private:
    const SpecialRatios& ratios_;
    const TextForm& form_;
    double current_ = 1;
    bool inverted_ = false;
    int row_ = -1;
};

/// The rectangle of that ratio and height about a centre, in pixels. What is wider than any screen
/// is cut.
PixelRect previewOfRatio(double ratio, int height, PixelPoint centre);

}  // namespace ormala
