#pragma once

#include "platform/win/GdiCanvas.h"
#include "scene/dpi.h"
#include "widgets/ctlFrame.h"

namespace ormala {

/// The `ctlFrame` along the inside of a dialog, which the dialog draws on its ground.
class DialogFrame {
  public:
    /// Covers the client area, in the context's pixels.
    void draw(HDC context, const RECT& client);

  private:
    ctlFrame frame_;
    GdiFonts fonts_{designDpi};
};

}  // namespace ormala
