#pragma once

#include "platform/win/fonts.h"
#include "widgets/win/LineOfText.h"

namespace ormala {

/// A large line of text with its shadow.
class TitleLabel : public LineOfText {
  public:
    /// A visible child of `parent` without a size. `name` is its control name.
    TitleLabel(HWND parent, int id, std::string_view name);
    ~TitleLabel() override { destroy(); }

  private:
    void draw(HDC context) override;
    [[nodiscard]] HFONT textFont() const override { return font_.get(); }
    void dpiChanged() override;

    FontHandle font_;
};

}  // namespace ormala
