#pragma once

#include <array>
#include <memory>
#include <optional>

#include "base/Event.h"
#include "magnifier/LensCommands.h"
#include "magnifier/LensMenuState.h"
#include "magnifier/LensOptions.h"
#include "magnifier/LensPace.h"
#include "magnifier/LensRest.h"
#include "magnifier/win/LensImage.h"
#include "magnifier/win/LensRuler.h"
#include "platform/win/GdiCanvas.h"
#include "platform/win/PlaceAcrossDpi.h"
#include "platform/win/PlacedTip.h"
#include "platform/win/Timer.h"
#include "platform/win/Window.h"
#include "scene/Mode.h"
#include "widgets/ctlFrame.h"

namespace ormala {

/// The magnifier: shows many times a second what the screen shows around the mouse, enlarged by a
/// whole factor. Everything is counted in the pixels of the screen.
class frmLens : public Window {
  public:
    /// The timer of the frames.
    static constexpr UINT_PTR tmrMain = 1;

    /// Stays hidden, with the options of a first start. `commands` must outlive it.
    explicit frmLens(LensCommands& commands);
    ~frmLens() override {
        pixelTip_.reset();
        destroy();
    }

    /// All that the user has set. Of the scales only the pairs are told: those at the top and left
    /// as the one at the top, those at the bottom and right as the one at the bottom.
    [[nodiscard]] LensOptions options() const;
    /// Sets everything, and lays the window out anew. A factor that is none becomes the nearest
    /// one.
    void setOptions(const LensOptions& options);

    /// Shows it in front of its owner, without activating it.
    void show(HWND owner);
    void hide() { setVisible(false); }
    [[nodiscard]] PlaceAcrossDpi& acrossDpi() { return acrossDpi_; }

    /// 1 to 10; any other becomes the nearest one.
    [[nodiscard]] int Factor() const { return options_.factor; }
    void setFactor(int factor);
    /// Whether the window follows the mouse.
    [[nodiscard]] bool Sticked() const { return options_.sticked; }
    void setSticked(bool sticked);

    /// Whether a scale is shown.
    [[nodiscard]] bool RulTOn() const { return ruler(LensScale::top).isOn(); }
    [[nodiscard]] bool RulBOn() const { return ruler(LensScale::bottom).isOn(); }
    [[nodiscard]] bool RulLOn() const { return ruler(LensScale::left).isOn(); }
    [[nodiscard]] bool RulROn() const { return ruler(LensScale::right).isOn(); }
    void setRulTOn(bool on) { setRulerOn(LensScale::top, on); }
    void setRulBOn(bool on) { setRulerOn(LensScale::bottom, on); }
    void setRulLOn(bool on) { setRulerOn(LensScale::left, on); }
    void setRulROn(bool on) { setRulerOn(LensScale::right, on); }

    /// Told of each change.
    void SetMode(Mode mode);
    /// `WorksheetLeft` and `WorksheetTop`, in pixels of the virtual screen.
    void setWorksheetOrigin(PixelPoint origin) { worksheet_ = origin; }
    /// What the menu key does: pops up the menu at the corner of the image.
    void showMenuAtOrigin();
    /// Puts a window that follows the mouse beside it.
    void UpdatePosition();
    /// A frame at once, if the window is visible.
    void Update();

    /// Of the screen, under the mouse, in a frame of this moment; none while the window is hidden.
    [[nodiscard]] std::optional<LensPixel> pixelUnderHotSpot();

    /// What the entries of the popup menu do.
    void mnuLensFactor_Click(int Index) { setFactor(Index); }
    void mnuLensGrid_Click();
    void mnuLensCursor_Click();
    void mnuLensHotSpot_Click();
    void mnuLensTopLeftScales_Click();
    void mnuLensBottomRightScales_Click();
    void mnuLensStick_Click() { setSticked(!Sticked()); }

    /// Lets the menu fetch its check marks.
    void SetMenuCheckBoxes() const { menuChanged.raise(); }
    [[nodiscard]] LensMenuState menuState() const;

    /// The menu has to show another state.
    Event<> menuChanged;
    /// One that does not follow the mouse may have another place.
    Event<> placed;
    /// The user closes the window, which the application answers by hiding it.
    Event<> closeRequested;

  private:
    std::optional<LRESULT> onMessage(UINT message, WPARAM wParam, LPARAM lParam) override;

    /// The child windows.
    struct Parts {
        explicit Parts(HWND parent);
        [[nodiscard]] std::array<LensPicture*, lensScaleCount + 1> pictures();

        LensImage image;
        PerScale<LensRuler> rulers;
    };

    [[nodiscard]] LensRuler& ruler(LensScale scale) const { return parts_->rulers[indexOf(scale)]; }
    void setRulerOn(LensScale scale, bool on);
    [[nodiscard]] bool isNormal() const;
    void readMouse();
    void readBounds();
    void findSource();
    void setLayered(bool layered);

    void setDpi(int dpi);
    [[nodiscard]] LensFace face() const;
    [[nodiscard]] LensImageLook imageLook() const;
    [[nodiscard]] ScaleOrigins scaleOrigins() const;
    /// Of the last frame.
    [[nodiscard]] std::optional<LensPixel> pixel() const;
    /// By a tip, once all has rested for a while.
    void tellPixel();
    void showPixel(const LensPixel& seen);
    void hidePixel();
    void onTick();
    /// Whether it shows what the one before did not.
    bool RefreshLens();
    void DrawRulers();
    /// Whether there is any.
    bool showChanged();
    void LayoutLens();
    void SetLensCaption();

    LRESULT onPaint();
    LRESULT onSize();
    LRESULT onGetMinMaxInfo(LPARAM lParam) const;
    LRESULT onDpiChanged(WPARAM wParam, LPARAM lParam);
    void onActivate() const;
    LRESULT onRightRelease();
    std::optional<LRESULT> onKey(int key);
    LRESULT onAccessibleFacts(LPARAM lParam);
    std::optional<LRESULT> onHeld(bool held);
    std::optional<LRESULT> onShow(bool shown);

    LensCommands& commands_;
    LensOptions options_;
    PixelRect bounds_;
    PixelPoint worksheet_;
    PixelPoint CursorPoint_;
    /// Null also while the options want none.
    HCURSOR pointer_ = nullptr;
    /// `SourceLeft` and `SourceTop`.
    PixelPoint source_;
    Mode LensMode_ = Mode::edit;
    LONG_PTR OriginalExStyle_ = 0;
    int tickCount_ = 0;
    Timer tmrMain_{tmrMain};

    int dpi_ = designDpi;
    PlaceAcrossDpi acrossDpi_;
    ScaleGlyphs glyphs_;
    GdiFonts fonts_{designDpi};
    ctlFrame FormFrame_;
    BackBuffer ground_;
    LensLayout layout_;
    /// None before the window stands.
    std::unique_ptr<Parts> parts_;
    LensRest rest_;
    LensPace pace_;
    /// The user moves or sizes the window.
    bool held_ = false;
    /// None before it is first shown.
    std::unique_ptr<PlacedTip> pixelTip_;
    Subscription painting_;
    Subscription relabeling_;
};

}  // namespace ormala
