#pragma once

#include "scene/ToolControl.h"

namespace ormala {

/// A host for tests that look at something else: nothing is shown, and every text measures nothing.
class QuietToolHost : public ToolHost, private TextMeter {
  public:
    void repaint(const OverlayItem& /*item*/, const DirtyRegion& /*region*/) override {}
    void showTip(const OverlayItem& /*item*/, TipId /*tip*/) override {}
    const TextMeter& textMeter() const override { return *this; }
    void runTimer(Ticking& /*ticking*/, int /*interval*/, bool /*running*/) override {}

  private:
    SheetScale scale() const override { return SheetScale(); }
    PixelSize measure(std::string_view /*text*/, int /*size*/) const override { return {}; }
};

}  // namespace ormala
