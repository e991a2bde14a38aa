#pragma once

#include <optional>
#include <string>

#include "base/Event.h"
#include "dialogs/MousePicking.h"
#include "modAPI/PixelRect.h"

namespace ormala {

/// What the list of line styles holds and decides: five rows of equal height, one of them chosen.
class LineSelectModel : public MousePicking {
  public:
    static constexpr int rowCount = 5;

    /// The chosen row, and as well its line code: 0 dotted, 1 dashed, n >= 2 solid, n - 1 pixels.
    [[nodiscard]] int LineIndex() const { return lineIndex_; }
    /// An index beyond an end becomes that end. Raises no `Change`.
    void setLineIndex(int index);

    /// The chosen row, such as "3/5".
    [[nodiscard]] std::string valueText() const override;

    /// In pixels; the rows share it, what is left over lies below.
    void resize(PixelSize size) { size_ = size; }
    /// `index` from 0 to 4.
    [[nodiscard]] PixelRect row(int index) const;
    [[nodiscard]] PixelRect shpFocus() const { return row(lineIndex_); }
    [[nodiscard]] std::optional<int> rowAt(PixelPoint point) const;

    void press(PixelPoint point) override;
    void doubleClick() override { doubleClicked_ = true; }
    void release(PixelPoint point) override;
    void cancel() override { doubleClicked_ = false; }
    /// Arrows choose the row before or after, Enter is a double click; false for any other key.
    bool keyDown(int key);

    /// The user has chosen another row. A handler must not destroy the list.
    Event<> Change;
    /// Raised last: a handler may destroy the list.
    Event<> DoubleClick;

  private:
    void choose(int index);

    PixelSize size_;
    int lineIndex_ = 2;
    bool doubleClicked_ = false;
};

}  // namespace ormala
