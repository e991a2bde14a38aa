#pragma once

#include <utility>
#include <vector>

#include "worksheet/MousePort.h"

namespace ormala {

/// A window for the worksheet's mouse and its aids that notes what they ask for.
class FakeMousePort : public MousePort {
  public:
    /// Of a worksheet of 800 x 600.
    Pointer mouse{{300, 200}, {100, 50, 900, 650}, false};
    float time = 12 * 60 * 60;
    bool lensShown = false;

    std::vector<std::pair<CrossHairLine, CrossHairLine>> crossHairs;
    DirtyRegion repainted;
    std::vector<bool> lensRaises;
    std::vector<bool> worksheetRaises;
    std::vector<PixelPoint> pointerMoves;
    int controlRaises = 0;
    int menus = 0;

    float now() const override { return time; }
    Pointer pointer() const override { return mouse; }
    void movePointer(PixelPoint by) override { pointerMoves.push_back(by); }
    void repaintInFront(const DirtyRegion& region) override { repainted.add(region); }
    void showCrossHair(const CrossHairLine& along, const CrossHairLine& down) override {
        crossHairs.emplace_back(along, down);
    }
    bool raiseLens(bool onlySticked) override {
        lensRaises.push_back(onlySticked);
        return lensShown;
    }
    void raiseWorksheet(bool crossHair) override { worksheetRaises.push_back(crossHair); }
    void raiseControlWindow() override { ++controlRaises; }
    void ShowContextMenu() override { ++menus; }
};

}  // namespace ormala
