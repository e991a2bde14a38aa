#pragma once

#include <string_view>

#include "platform/win/Window.h"
#include "widgets/gradient.h"

namespace ormala {

/// A panel that is filled with a gradient. Its mouse events go to its parent.
class GradShape : public Window {
  public:
    /// A visible child of `parent` without a size. `name` is its control name.
    GradShape(HWND parent, int id, std::string_view name);
    ~GradShape() override { destroy(); }

    void setColorTopLeft(Color color) { set(&GradientDesign::ColorTopLeft, color); }
    void setColorBottomRight(Color color) { set(&GradientDesign::ColorBottomRight, color); }
    void setOrientation(int orientation) { set(&GradientDesign::Orientation, orientation); }
    void setReduce(double percent) { set(&GradientDesign::Reduce, percent); }
    /// Draws the gradient on a picture of its parent, at its place there.
    void drawInto(HDC context, PixelPoint corner) const;
    void Refresh() { InvalidateRect(handle(), nullptr, FALSE); }

  private:
    std::optional<LRESULT> onMessage(UINT message, WPARAM wParam, LPARAM lParam) override;
    LRESULT paint();

    template <typename T>
    void set(T GradientDesign::*member, T value) {
        if (design_.*member != value) {
            design_.*member = value;
            Refresh();
        }
    }

    GradientDesign design_;
};

}  // namespace ormala
