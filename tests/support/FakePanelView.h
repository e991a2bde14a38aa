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
    std::map<ControlId, std::string> texts;
    std::map<ControlId, ButtonLook> buttons;
    std::map<ControlId, PictureMaker> pictures;
    /// How often each was told a picture.
    std::map<ControlId, int> pictureChanges;
    PanelLook look;
    PanelEnabling enabling;
    /// The intervals of the timers that run, and how often one was started.
    std::map<PanelTimer, unsigned> timers;
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
            texts[each.control] = each.text;
        }
    }
    void showLook(const PanelLook& shown) override { look = shown; }
    void showButton(ControlId button, const ButtonLook& shown) override { buttons[button] = shown; }
    void showPicture(ControlId button, PictureMaker maker) override {
        pictures[button] = std::move(maker);
        ++pictureChanges[button];
    }
    void enable(const PanelEnabling& enabled) override { enabling = enabled; }
    void runTimer(PanelTimer timer, unsigned interval) override {
        timers.erase(timer);
        if (interval > 0) {
            timers[timer] = interval;
            ++timerStarts;
        }
    }
    void toolBecameSelected() override { ++selections; }
    void removeRequested(bool /*byMouse*/) override {
        ++removeRequests;
        if (onRemove) {
            onRemove();
        }
    }
    void showMenu(const std::string& removeText) override { menus.push_back(removeText); }

    [[nodiscard]] bool refreshTimerRuns() const {
        return timers.contains(PanelTimer::tmrShowProps);
    }
    /// The pixels that the button shows, on this many pixels.
    [[nodiscard]] std::vector<std::uint32_t> pixelsOf(ControlId button, PixelSize size) const {
        return pictures.at(button)(size).argb;
    }
};

}  // namespace ormala
