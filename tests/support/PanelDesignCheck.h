#pragma once

#include <gtest/gtest.h>

#include <algorithm>
#include <set>
#include <stdexcept>
#include <string>

#include "language/MlStringModule.h"
#include "toolkit/SettingControl.h"

namespace ormala::test {

/// The row of the control of that name; the test fails if there is none.
inline const PanelControl& controlNamed(const PanelDesign& design, const std::string& name) {
    const auto at = std::ranges::find(design.controls, name, &PanelControl::fullName);
    if (at == design.controls.end()) {
        throw std::out_of_range("no control is called " + name);
    }
    return *at;
}

/// A click on a button, as its window tells of it.
inline void clickOn(SettingControl& panel, const std::string& name, int shift = 0) {
    const PanelControl& button = controlNamed(panel.design(), name);
    button.press.perform(panel, {button.index.value_or(0), shift, true});
}

/// What holds for any panel: every control has a name and a place of its own inside the panel, and
/// every row of texts that it names exists.
inline void expectSoundDesign(const PanelDesign& design) {
    const PixelRect panel{0, 0, design.size.width, design.size.height};
    std::set<std::string> names;
    for (const PanelControl& control : design.controls) {
        EXPECT_TRUE(names.insert(control.fullName()).second) << control.name;
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

inline bool isPressed(const PanelControl& control) {
    return control.part >= PanelPart::button;
}

/// Buttons can be told without reading, and every one has a tip.
inline void expectButtonsExplainThemselves(const PanelDesign& design) {
    for (const PanelControl& control : design.controls) {
        if (isPressed(control)) {
            EXPECT_NE(control.tip, 0) << control.name;
        }
    }
}

/// A control that the panel speaks to is one row, and all of them are there.
inline void expectIdsOfTheirOwn(const PanelDesign& design, ControlId last) {
    std::set<ControlId> ids;
    for (const PanelControl& control : design.controls) {
        if (control.id != CommonControl::none) {
            EXPECT_TRUE(ids.insert(control.id).second) << control.name;
        }
    }
    EXPECT_EQ(ids.size(), last.index());
    EXPECT_EQ(*ids.rbegin(), last);
}

}  // namespace ormala::test
