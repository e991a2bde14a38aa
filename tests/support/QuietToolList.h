#pragma once

#include <string>
#include <vector>

#include "support/ToolListStage.h"

namespace ormala {

/// The window of a panel that shows nothing.
class QuietPanelView : public PanelView {
  public:
    void showTexts(const std::vector<ControlText>& /*texts*/) override {}
    void showLook(const PanelLook& /*look*/) override {}
    void showButton(ControlId /*button*/, const ButtonLook& /*look*/) override {}
    void showPicture(ControlId /*button*/, PictureMaker /*maker*/) override {}
    void enable(const PanelEnabling& /*enabling*/) override {}
    void runTimer(PanelTimer /*timer*/, unsigned /*interval*/) override {}
    void toolBecameSelected() override {}
    void removeRequested(bool /*byMouse*/) override {}
    void showMenu(const std::string& /*removeText*/) override {}
};

/// The window of a sheet that repaints nothing.
class QuietSheetView : public SheetPort {
  public:
    bool wasInFront() const override { return true; }
    void rememberForeground() override {}
    void repaintTool(const OverlayItem& /*item*/) override {}
};

/// The real list of tools with nothing to paint. The first tool of each kind is in use.
class QuietToolList : public StagedToolList<QuietPanelView, QuietSheetView> {
  public:
    QuietToolList() : StagedToolList({1920, 1080}) {
        list.prepareFirstTools();
        list.showFirstTools();
    }

    void add(ToolKind kind, int count) {
        for (int i = 0; i < count; ++i) {
            list.AddNewControl(static_cast<int>(kind));
        }
    }
};

}  // namespace ormala
