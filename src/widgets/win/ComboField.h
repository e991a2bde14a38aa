#pragma once

#include <functional>
#include <span>
#include <string>
#include <string_view>

#include "platform/win/StandardControl.h"

namespace ormala {

/// A combo box for a text that can be typed or taken from a list, in the program's look.
class ComboField : public StandardControl {
  public:
    ~ComboField() override { destroy(); }

    void create(HWND parent, int id, std::string_view name,
                std::span<const std::string_view> proposals);
    /// In pixels; after each change of font or place.
    void setFieldHeight(int height);
    void setEnabled(bool enabled);
    void SetTooltip(const std::string& text);
    void setAccessibleName(const std::string& name);

    /// Whether a character may be typed into that text; all may at first.
    std::function<bool(const std::string& text)> takesKey;
    /// What becomes of a text that has changed in any other way.
    std::function<std::string(const std::string& text)> corrected;

    /// To be called with the notifications that its parent gets from it.
    void notified(int notification);

  private:
    /// Where the text is typed.
    class Field : public StandardControl {
      public:
        explicit Field(ComboField& host) : host_(host) {}

      private:
        std::optional<LRESULT> onMessage(UINT message, WPARAM wParam, LPARAM lParam) override;

        ComboField& host_;
    };

    std::optional<LRESULT> onMessage(UINT message, WPARAM wParam, LPARAM lParam) override;
    void centreText(int height) const;
    LRESULT onPaint();
    void paintArrow(HDC context, const RECT& area) const;

    Field field_{*this};
    bool correcting_ = false;
};

}  // namespace ormala
