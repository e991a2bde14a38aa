#pragma once

#include <gtest/gtest.h>

#include <set>
#include <string>

#include "language/MlStringModule.h"
#include "toolkit/PanelDesign.h"

namespace ormala::test {

/// What holds for any panel: every control has a name and a place of its own inside the panel, and
/// every row of texts that it names exists.
inline void expectSoundDesign(const PanelDesign& design) {
    const PixelRect panel{0, 0, design.size.width, design.size.height};
    std::set<std::string> names;
    for (const PanelControl& control : design.controls) {
        EXPECT_TRUE(names.insert(control.name).second) << control.name;
        EXPECT_FALSE(control.box.empty()) << control.name;
        EXPECT_EQ(control.box.intersected(panel), control.box) << control.name;
        for (const int row : {control.caption, control.tip}) {
            EXPECT_TRUE(row == 0 || !MlString(row, {}).empty()) << control.name;
        }
    }
}

/// Only the title band has other controls on it, which must be in front of it.
inline void expectNoOverlap(const PanelDesign& design) {
    const auto& controls = design.controls;
    for (std::size_t i = 0; i < controls.size(); ++i) {
        for (std::size_t j = 0; j < i; ++j) {
            if (controls[i].part != PanelPart::titleBand) {
                EXPECT_FALSE(controls[i].box.meets(controls[j].box))
                    << controls[i].name << " and " << controls[j].name;
            }
        }
    }
}

/// Buttons can be told without reading, and every one has a tip.
inline void expectButtonsExplainThemselves(const PanelDesign& design) {
    for (const PanelControl& control : design.controls) {
        if (control.part == PanelPart::button) {
            EXPECT_NE(control.tip, 0) << control.name;
        }
    }
}

}  // namespace ormala::test
