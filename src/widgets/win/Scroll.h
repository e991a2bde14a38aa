#pragma once

#include <array>
#include <memory>
#include <optional>
#include <string_view>

#include "base/Clock.h"
#include "platform/win/BackBuffer.h"
#include "widgets/ScrollModel.h"
#include "widgets/win/ZelvikButtonXP.h"

namespace ormala {

/// The scroll bar in the program's own look: two arrows, a thumb and the track between them. It
/// stands or lies by its shape.
class Scroll : public Window {
  public:
    /// A visible child of `parent` without a size. `name` is its control name. `clock` ticks every
    /// 40 ms, and must outlive it.
    Scroll(HWND parent, int id, std::string_view name, Clock& clock);
    ~Scroll() override { destroy(); }

    [[nodiscard]] bool Enabled() const { return model_.Enabled(); }
    void setEnabled(bool enabled) { EnableWindow(handle(), enabled ? TRUE : FALSE); }
    [[nodiscard]] int Value() const { return model_.Value(); }
    void setValue(int value) { model_.setValue(value); }
    [[nodiscard]] int SmallChange() const { return model_.SmallChange(); }
    void setSmallChange(int change) { model_.setSmallChange(change); }
    [[nodiscard]] int LargeChange() const { return model_.LargeChange(); }
    void setLargeChange(int change) { model_.setLargeChange(change); }
    [[nodiscard]] int Max() const { return model_.Max(); }
    void setMax(int max) { model_.setMax(max); }
    [[nodiscard]] int Min() const { return model_.Min(); }
    void setMin(int min) { model_.setMin(min); }
    /// All of these.
    [[nodiscard]] const ScrollRange& range() const { return model_.range(); }

    /// The resolution of the screen that it is drawn for; at first that of its window.
    void setDpi(int dpi);

    /// The value really changed. A handler may destroy the bar.
    Event<> Change;

  private:
    /// An arrow or the thumb: a button whose mouse, keys and look are those of the whole bar.
    class Button : public ZelvikButtonXP {
      public:
        Button(Scroll& bar, ScrollPart part, std::string_view name);
        [[nodiscard]] ScrollPart part() const { return part_; }
        /// Moves it without painting, and hides it where the place is empty.
        void place(const PixelRect& box);

      private:
        std::optional<LRESULT> onMessage(UINT message, WPARAM wParam, LPARAM lParam) override;

        Scroll& bar_;
        ScrollPart part_;
        std::optional<PixelRect> box_;
    };

    std::optional<LRESULT> onMessage(UINT message, WPARAM wParam, LPARAM lParam) override;
    std::optional<LRESULT> buttonMessage(const Button& button, UINT message, WPARAM wParam,
                                         LPARAM lParam);
    std::optional<LRESULT> mouseMessage(HWND window, UINT message, LPARAM lParam);

    void ApplyLanguage();
    LRESULT tellFacts(ScrollPart part, AccessibleFacts& facts) const;
    void refresh();
    void onLayout();
    void placeButtons();
    LRESULT paint(HWND window);
    LRESULT onSize();
    LRESULT onEnable(bool enabled);
    LRESULT onCaptureChanged();
    void press(PixelPoint point);
    void move(HWND window, PixelPoint point);
    void release(PixelPoint point);
    void hover(ScrollPart part);
    [[nodiscard]] ScrollPart focusedPart() const;
    [[nodiscard]] Button& button(ScrollPart part) const;

    Clock& clock_;
    ScrollModel model_;
    /// That the bar shows.
    ScrollLayout layout_;
    std::array<std::unique_ptr<Button>, 3> buttons_;
    BackBuffer buffer_;
    bool drawn_ = false;
    bool captured_ = false;
    ScrollPart hover_ = ScrollPart::none;
    int dpi_ = 96;
    Subscription relabeling_;
    Subscription placing_;
    Subscription following_;
    /// While something is held.
    Subscription ticks_;
};

}  // namespace ormala
