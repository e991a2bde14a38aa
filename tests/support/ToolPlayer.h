#pragma once

#include <cmath>
#include <utility>
#include <vector>

#include "toolkit/GripTool.h"

namespace ormala {

/// The mouse that plays on a tool as the sheet would bring it, and a panel that listens.
class ToolPlayer {
  public:
    bool held = false;
    int changes = 0;
    int mouseUps = 0;
    std::vector<std::pair<int, int>> keys;

    static MouseInput inputAt(const Point& at, int button, int shift = 0) {
        return {button, shift, static_cast<float>(std::round(at.x)),
                static_cast<float>(std::round(at.y))};
    }

    void hover(const Point& at) { move(at, mouseButton::none, 0); }
    void press(const Point& at, int shift = 0) {
        hover(at);
        held = true;
        tool_->mouseDown(inputAt(at, mouseButton::left, shift), source(true));
    }
    void dragTo(const Point& at, int shift = 0) { move(at, mouseButton::left, shift); }
    void release(const Point& at) {
        held = false;
        tool_->mouseUp(inputAt(at, mouseButton::left), source(true));
    }
    /// One whole drag.
    void dragBy(const Point& from, const Point& by, int shift = 0) {
        const Point to{from.x + by.x, from.y + by.y};
        press(from, shift);
        dragTo(to, shift);
        release(to);
    }

  protected:
    /// To be called once, when the tool is there.
    void playOn(GripTool& tool) {
        tool_ = &tool;
        listeners_.push_back(tool.events().change.subscribe([this] { ++changes; }));
        listeners_.push_back(
            tool.events().mouseUp.subscribe([this](const MouseInput&) { ++mouseUps; }));
        listeners_.push_back(tool.events().keyDownFiltered.subscribe(
            [this](int key, int shift) { keys.emplace_back(key, shift); }));
    }

  private:
    void move(const Point& at, int button, int shift) {
        const MouseInput input = inputAt(at, button, shift);
        const bool ours = held || tool_->HitTest(input.x, input.y);
        tool_->GlobalMouseMove(input, source(ours));
        if (ours) {
            tool_->mouseMove(input, source(true));
        }
    }
    [[nodiscard]] MouseSource source(bool ours) const {
        return {ours ? tool_ : nullptr, held ? tool_ : nullptr, false};
    }

    GripTool* tool_ = nullptr;
    std::vector<Subscription> listeners_;
};

}  // namespace ormala
