#include "stencil/win/ctlSetRatioGrid.h"

#include <string>

#include "stencil/stencilPanelDesign.h"
#include "widgets/dpi.h"

namespace ormala {

namespace {

constexpr UINT_PTR tmrDelayMousePreview = PanelWindow::firstOwnTimer;

std::string indexed(const char* name, int index) {
    return std::string(name) + "(" + std::to_string(index) + ")";
}

}  // namespace

ctlSetRatioGrid::ctlSetRatioGrid(ctlRatioGrid& tool, const Ports& ports, StencilCommands& commands,
                                 const ToolSettings& settings, const SpecialRatios& ratios)
    : PanelWindow(L"ctlSetRatioGrid", "SetRatioGrid", stencilPanelDesign(), ports),
      core_(tool, {*this, ports.visibility, ports.clock}, {commands, *this, ports.tmrFast},
            settings, ratios) {
    connectSteps();
    connectCommands();
    open();
}

void ctlSetRatioGrid::connectSteps() {
    constexpr int moves = 18;
    for (int i = 0; i < moves; ++i) {
        onHold(indexed("cmdMove", i),
               {[this, i](int shift) { core_.pressMove(i, shift); },
                [this, i](int shift) { core_.pressMoveKey(i, shift); }, [this] { core_.release(); },
                [this] { core_.releaseKey(); }});
    }
    constexpr int turns = 2;
    for (int i = 0; i < turns; ++i) {
        onHold(indexed("cmdAngle", i),
               {[this, i](int shift) { core_.pressAngle(i, shift); },
                [this, i](int shift) { core_.pressAngleKey(i, shift); },
                [this] { core_.release(); }, [this] { core_.releaseKey(); }});
    }
}

void ctlSetRatioGrid::connectCommands() {
    onShiftClick("cmdAngleZero", [this](int shift) { core_.clickAngleZero(shift); });
    onShiftClick("cmdMoveCenter", [this](int shift) { core_.clickMoveCenter(shift); });
    onClick("cmdFullSize", [this] { core_.clickFullSize(); });
    onClick("cmdEditRatio", [this] { core_.clickEditRatio(); });
    onClick("cmdSelectPattern", [this] { core_.clickSelectPattern(); });
    onClick("imgPattern", [this] { core_.clickSelectPattern(); });
    onClick("cmdColor", [this] { core_.clickColor(); });
    onClick("cmdLineStyle", [this] { core_.clickLineStyle(); });
    onClick("cmdSendMouseInput", [this] { core_.clickSendMouseInput(); });
    onHover("cmdSendMouseInput", [this](bool over) { core_.hoverSendMouseInput(over); });
}

void ctlSetRatioGrid::showPattern() {
    button("imgPattern").setPicture([this](PixelSize size) {
        return core_.patternPicture(size, lineWidthAt(dpi()));
    });
}

void ctlSetRatioGrid::runPreviewTimer(bool run) {
    if (run) {
        SetTimer(handle(), tmrDelayMousePreview, previewMilliseconds, nullptr);
    } else {
        KillTimer(handle(), tmrDelayMousePreview);
    }
}

std::optional<LRESULT> ctlSetRatioGrid::onMessage(UINT message, WPARAM wParam, LPARAM lParam) {
    if (message == WM_TIMER && wParam == tmrDelayMousePreview) {
        core_.showMousePreview();
        return 0;
    }
    return PanelWindow::onMessage(message, wParam, lParam);
}

}  // namespace ormala
