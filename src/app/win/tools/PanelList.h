#pragma once

#include "app/ListScroll.h"
#include "modAPI/PixelRect.h"
#include "platform/win/Window.h"
#include "widgets/win/Scroll.h"

namespace ormala {

/// An area of a window in the panels' colour, which holds further controls.
class PictureBox : public Window {
  public:
    /// A child of `parent` without a size. `name` is its control name.
    PictureBox(HWND parent, int id, std::string_view name);
    ~PictureBox() override { destroy(); }

  protected:
    std::optional<LRESULT> onMessage(UINT message, WPARAM wParam, LPARAM lParam) override;
};

/// The scrolling list of panels in the control window: `picOuter` is what shows of it, `picInner`
/// inside holds the panels and may be taller, and `scrInner` at the right edge scrolls it. All
/// lengths are pixels of the window's monitor.
class PanelList : public PictureBox {
  public:
    /// `clock` ticks every 40 ms, and must outlive it.
    PanelList(HWND parent, int id, Clock& clock);
    ~PanelList() override { destroy(); }

    /// The parent of the panels.
    [[nodiscard]] HWND picInner() const { return picInner_.handle(); }
    [[nodiscard]] int contentWidth() const;
    [[nodiscard]] int contentTop() const { return scrInner_.Value(); }

    void setDpi(int dpi);
    void resize(const PixelRect& box);
    /// Of all panels together.
    void setContentHeight(int height);
    /// While many panels come and go the list stays hidden.
    void setBulkUpdate(bool bulkUpdate);
    [[nodiscard]] bool bulkUpdate() const { return bulkUpdate_; }

    /// Scrolls so that a panel of the content shows, its head if not all of it.
    void EnsurePanelVisible(int panelTop, int panelHeight);
    /// Notches of the wheel, as a glide; positive ones turn away from the user.
    void Scroll(int notches);

    /// Another part of the content shows now, and is not painted yet.
    Event<> viewChanged;
    /// Raised after it for the part that has come into view. What nobody paints of it then is left
    /// to the system.
    Event<const UncoveredPart&> uncovered;
    /// Whether some of a panel of the content shows.
    [[nodiscard]] bool shows(HWND panel) const;

  private:
    [[nodiscard]] PixelSize inside() const;
    void layOut();
    void adoptHeights();
    void moveContent();

    PictureBox picInner_;
    ormala::Scroll scrInner_;
    Subscription scrolled_;
    int content_ = 0;
    int dpi_ = USER_DEFAULT_SCREEN_DPI;
    bool bulkUpdate_ = false;
};

}  // namespace ormala
