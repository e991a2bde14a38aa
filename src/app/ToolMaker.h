#pragma once

#include <memory>

#include "measure/OtherMeasures.h"
#include "scene/ToolSettings.h"
#include "stencil/SpecialRatios.h"
#include "worksheet/Sheet.h"

namespace ormala {

/// Makes the tools of the kinds that the program has, and lets the measuring tools see each other.
class ToolMaker : public ToolFactory, private OtherMeasures {
  public:
    /// Both must outlive the tools, and so must the maker.
    ToolMaker(const ToolSettings& settings, const SpecialRatios& ratios)
        : settings_(settings), ratios_(ratios) {}

    std::unique_ptr<OverlayItem> makeTool(ToolKind kind, ToolHost& host) override;
    /// The sheet that the tools lie on, which must outlive them; without one, no measuring tool
    /// sees another.
    void setSheet(const Sheet& sheet) { sheet_ = &sheet; }

  private:
    void visitEnds(const OverlayItem& self,
                   const std::function<void(const Point&)>& visit) const override;

    const ToolSettings& settings_;
    const SpecialRatios& ratios_;
    const Sheet* sheet_ = nullptr;
};

}  // namespace ormala
