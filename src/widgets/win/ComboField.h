#pragma once

#include <functional>
#include <span>
#include <string>
#include <string_view>

#include "widgets/win/DropList.h"

namespace ormala {

/// A combo box for a text that can be typed or taken from a list, in the program's look. The list
/// only proposes: its coming up, going through it and leaving it keep the text, and keys and the
/// wheel change the text through the open list alone.
class ComboField : public DropList {
  public:
    ~ComboField() override { destroy(); }

    void create(HWND parent, int id, std::string_view name,
                std::span<const std::string_view> proposals);
    /// In pixels; after each change of font or place.
    void setFieldHeight(int height);
    void SetTooltip(const std::string& text);
    void setAccessibleName(const std::string& name);

    /// Whether a key may be typed into that text; all may at first.
    std::function<bool(const std::string& text)> takesKey;
    /// Whether that text may come about by a typed character; all may at first.
    std::function<bool(const std::string& text)> takesText;
    /// What becomes of a text that has changed in any other way, and what it was before.
    std::function<std::string(const std::string& former, const std::string& text)> corrected;

  private:
    /// Where the text is typed.
    class Field : public StandardControl {
      public:
        explicit Field(ComboField& host) : host_(host) {}

      private:
        std::optional<LRESULT> onMessage(UINT message, WPARAM wParam, LPARAM lParam) override;
        [[nodiscard]] bool takes(wchar_t character) const;

        ComboField& host_;
    };

    std::optional<LRESULT> onMessage(UINT message, WPARAM wParam, LPARAM lParam) override;
    void centreText(int height) const;
    [[nodiscard]] bool isDropped() const;
    bool openByKey(UINT message, WPARAM key);
    LRESULT mayOpen(UINT message, WPARAM wParam, LPARAM lParam);
    void propose() const;
    void textChanged();
    void otherNotification(int notification) override;
    void listClosed() override;
    void settled() override;
    void showText(const std::string& text, DWORD selection);
    LRESULT onPaint();
    void paintArrow(HDC context, const RECT& area) const;

    Field field_{*this};
    bool correcting_ = false;
    /// What the text and what is marked in it were before the list or the last change.
    std::string former_;
    DWORD formerSelection_ = 0;
};

}  // namespace ormala
