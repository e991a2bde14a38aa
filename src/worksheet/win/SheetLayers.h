#pragma once

#include <memory>
#include <optional>

#include "platform/win/BackBuffer.h"
#include "worksheet/seeThrough.h"
#include "worksheet/transparency.h"

namespace ormala {

/// A way of bringing the worksheet's finished picture to the screen.
class SheetLayer {
  public:
    virtual ~SheetLayer() = default;

    /// The window looks like that from now on, with the picture that it showed last.
    virtual void apply(const LayeredLook& look, const BackBuffer& picture) = 0;
    /// That part of the picture is new; `context` is the one of the window's painting.
    virtual void show(HDC context, const BackBuffer& picture, const PixelRect& area) = 0;
};

/// The worksheet's window as a layer of the screen. The system keys a colour out itself; only one
/// that cuts the window as a shape is given pixels with their opacity instead where the shape would
/// be too fine for it.
class SheetLayers {
  public:
    /// `mostRuns`: so many may be left to the system, to which none counts if it cuts no shapes.
    /// `window` outlives the layers.
    SheetLayers(HWND window, std::optional<int> mostRuns);

    /// `picture` is the one that was shown last.
    void apply(const LayeredLook& look, const BackBuffer& picture);
    /// To be called before the window's painting begins that shows this picture. True if it begins
    /// anew, with all of the picture.
    bool prepare(const BackBuffer& picture);
    void show(HDC context, const BackBuffer& picture, const PixelRect& area) {
        layer_->show(context, picture, area);
    }
    /// Whether the pixels come to the screen with their opacity.
    [[nodiscard]] bool byPixels() const { return byPixels_; }

  private:
    [[nodiscard]] bool needsPixels(const BackBuffer& picture) const;
    bool choose(const BackBuffer& picture);

    HWND window_;
    std::optional<int> mostRuns_;
    bool byPixels_ = false;
    LayeredLook look_;
    std::unique_ptr<SheetLayer> layer_;
};

}  // namespace ormala
