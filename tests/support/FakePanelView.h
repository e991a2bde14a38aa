#pragma once

#include <functional>
#include <map>
#include <string>
#include <vector>

#include "toolkit/PanelView.h"

namespace ormala {

/// The window of a panel that only keeps what it was told to show.
class FakePanelView : public PanelView {
  public:
    std::map<std::string, std::string> texts;
    std::map<std::string, ButtonLook> buttons;
    PanelLook look;
    PanelEnabling enabling;
    int lineStyle = -1;
    int patternPictures = 0;
    bool timerRuns = false;
    int timerStarts = 0;
    /// How often the read-outs were written.
    int refreshes = 0;
    int selections = 0;
    int removeRequests = 0;
    std::vector<std::string> menus;
    /// Called at the request to remove the tool, if there is one.
    std::function<void()> onRemove;

    void showTexts(const std::vector<ControlText>& shown) override {
        refreshes += shown.size() > 1 ? 1 : 0;
        for (const ControlText& each : shown) {
            texts[each.name] = each.text;
        }
    }
    void showLook(const PanelLook& shown) override { look = shown; }
    void showButton(std::string_view name, const ButtonLook& shown) override {
        buttons[std::string(name)] = shown;
    }
    void showLineStyle(int lineCode) override { lineStyle = lineCode; }
    void showPattern() override { ++patternPictures; }
    void enable(const PanelEnabling& enabled) override { enabling = enabled; }
    void runRefreshTimer(bool run) override {
        timerRuns = run;
        timerStarts += run ? 1 : 0;
    }
    void toolBecameSelected() override { ++selections; }
    void removeRequested() override {
        ++removeRequests;
        if (onRemove) {
            onRemove();
        }
    }
    void showMenu(const std::string& removeText) override { menus.push_back(removeText); }
};

/// A time of day that stands until it is moved.
class ManualDayClock : public DayClock {
  public:
    float now = 36000;
    [[nodiscard]] float secondsSinceMidnight() const override { return now; }
};

/// Keeps the last wish for each tool.
class FakeToolVisibility : public ToolVisibility {
  public:
    std::map<const OverlayItem*, bool> visible;
    void setVisible(const OverlayItem& tool, bool shown) override { visible[&tool] = shown; }
};

}  // namespace ormala
