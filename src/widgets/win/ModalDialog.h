#pragma once

#include <memory>
#include <optional>
#include <string_view>
#include <vector>

#include "base/Event.h"
#include "modAPI/PixelRect.h"
#include "platform/win/BackBuffer.h"
#include "platform/win/InputBarrier.h"
#include "platform/win/Timer.h"
#include "platform/win/Window.h"
#include "widgets/win/ZelvikButtonXP.h"
#include "widgets/win/labeling.h"

namespace ormala {

/// The base of the program's modal dialogs. A dialog is made once and hidden between its uses; it
/// comes up in front of everything, in the middle of its owner, and meanwhile no other window of
/// the program takes input. Enter is OK and Escape is Cancel wherever the focus is, unless the
/// focused control wants the key.
///
/// A derived class calls `open` in its constructor and `destroy` in its destructor, has buttons
/// with the control IDs IDOK and IDCANCEL, and shows itself with `showModal`. It must not be
/// destroyed while it is shown.
class ModalDialog : public Window {
  public:
    /// Set before the dialog is shown; OK clears it.
    [[nodiscard]] bool Cancelled() const { return cancelled_; }

  protected:
    struct Design {
        /// The name of the dialog's type.
        const wchar_t* className = L"";
        /// The client area in pixels at 96 DPI.
        PixelSize client;
        /// The first focus comes 300 ms late, when the window has settled.
        bool delayedFocus = false;
    };

    /// Makes the window, still hidden, and its controls, and gives them their texts and places.
    void open(const Design& design);
    /// Shows the dialog until it is left; true if by OK. A null owner is the active window.
    bool showModal(HWND owner);
    /// Leaves the dialog with its result.
    void accept();
    void cancel();

    [[nodiscard]] int dpi() const { return dpi_; }
    [[nodiscard]] HFONT font() const { return font_.get(); }
    /// Puts a child where the design has it, in pixels at 96 DPI, and gives it the dialog's font.
    void place(HWND child, const PixelRect& designed) const;
    void place(ZelvikButtonXP& button, const PixelRect& designed) const;
    /// A button in the colours of the dialogs. IDOK and IDCANCEL leave the dialog.
    std::unique_ptr<ZelvikButtonXP> makeButton(int id, std::string_view name,
                                               std::string_view caption);

    std::optional<LRESULT> onMessage(UINT message, WPARAM wParam, LPARAM lParam) override;

  private:
    /// Makes the children, once.
    virtual void makeControls() = 0;
    /// Places the children, at first and after each change of resolution.
    virtual void layOut() = 0;
    /// Writes all texts, at first and after each change of language.
    virtual void ApplyLanguage() = 0;
    /// Where the work is.
    [[nodiscard]] virtual HWND firstFocus() const = 0;
    /// OK was asked for, and its button is enabled.
    virtual void confirm() { accept(); }
    /// A message of a child: its ID and the notification code.
    virtual void command(int /*id*/, int /*notification*/) {}
    /// Draws what is no child on the ground, in pixels of the present resolution.
    virtual void paint(HDC /*context*/) {}

    void takeDpi(UINT dpi);
    void setDpi(int dpi);
    void onSettingChange();
    [[nodiscard]] PixelSize outerSize() const;
    void placeOver(HWND owner);
    bool centreOn(HWND owner);
    void runMessages();
    void leave();
    void focusFirst();
    [[nodiscard]] int defaultButton() const;
    LRESULT onPaint();
    LRESULT onActivate(bool active);
    LRESULT onCommand(int id, int notification);
    LRESULT onNextControl(WPARAM wParam, bool isNamed);
    LRESULT onDpiChanged(UINT dpi, const RECT& suggested);
    [[nodiscard]] bool fitsDesign(const WINDOWPOS& place) const;
    void onPlaceChanging(WINDOWPOS& place) const;
    LRESULT onTimer();

    Design design_;
    /// Of the monitor, and what the controls are laid out for.
    UINT frameDpi_ = USER_DEFAULT_SCREEN_DPI;
    int dpi_ = 0;
    FontHandle font_;
    BackBuffer buffer_;
    bool cancelled_ = true;
    bool shown_ = false;
    std::optional<InputBarrier> barrier_;
    HWND focus_ = nullptr;
    Timer tmrFocus_{1};
    Subscription relabeling_;
    std::vector<Subscription> leaving_;
    /// The control IDs of the buttons made by `makeButton`.
    std::vector<int> buttons_;
};

}  // namespace ormala
