#pragma once

#include <string>
#include <utility>
#include <vector>

#include "scene/ToolControl.h"

namespace ormala {

/// What happened to the tools of a test, in the order of the calls: "stencil 0 mouseDown".
using ToolLog = std::vector<std::string>;

/// A tool of one rectangle that takes the mouse on it and writes down what it is told.
class FakeOverlayItem : public OverlayItem, private ToolControl {
  public:
    FakeOverlayItem(std::string itemName, ToolLog& toolLog)
        : name(std::move(itemName)), log_(toolLog) {}
    ~FakeOverlayItem() override { note("destroyed"); }

    const std::string name;
    /// Where it takes the mouse.
    PixelRect box;
    PixelSize size;
    bool focused = false;
    int focusLosses = 0;
    /// Of the last mouse call.
    MouseInput input;
    MouseSource source;

    ToolControl& control() override { return *this; }
    bool HitTest(double x, double y) const override {
        return box.contains({static_cast<int>(x), static_cast<int>(y)});
    }
    void mouseDown(const MouseInput& mouse, const MouseSource& from) override {
        keep("mouseDown", mouse, from);
    }
    void mouseMove(const MouseInput& mouse, const MouseSource& from) override {
        keep("mouseMove", mouse, from);
    }
    void mouseUp(const MouseInput& mouse, const MouseSource& from) override {
        keep("mouseUp", mouse, from);
    }
    void keyDown(int /*key*/, int /*shift*/) override { note("keyDown"); }
    void gotFocus() override {
        focused = true;
        note("gotFocus");
    }
    void resize(PixelSize newSize) override { size = newSize; }
    void draw(Canvas& /*canvas*/) const override {}
    const DirtyRegion& footprint() const override { return footprint_; }

    /// What it says of itself, after its ordinal, and of its grips.
    SpokenTool words;
    std::vector<SpokenGrip> spokenOfGrips;
    /// What it covers.
    void cover(const PixelRect& place) {
        footprint_.clear();
        footprint_.add(place);
    }

    /// Changes are under way.
    int openChanges = 0;

    bool Selected() const override { return selected_; }
    bool EditMode() const override { return editMode_; }

  private:
    void GlobalMouseMove(const MouseInput& mouse, const MouseSource& from) override {
        keep("GlobalMouseMove", mouse, from);
    }
    void setSelected(bool selected) override {
        if (selected_ != selected) {
            selected_ = selected;
            note(selected ? "selected" : "unselected");
        }
    }
    void setEditMode(bool editMode) override { editMode_ = editMode; }
    void beginChanges() override { ++openChanges; }
    void endChanges() override { --openChanges; }
    SpokenTool spoken(int ordinal) const override {
        SpokenTool said = words;
        said.name = name.substr(0, name.find(' ') + 1) + std::to_string(ordinal);
        said.grips = static_cast<int>(spokenOfGrips.size());
        return said;
    }
    std::vector<SpokenGrip> spokenGrips(int /*ordinal*/) const override { return spokenOfGrips; }
    void LoseFocus() override {
        focused = false;
        ++focusLosses;
    }

    void note(const std::string& what) { log_.push_back(name + " " + what); }
    void keep(const std::string& what, const MouseInput& mouse, const MouseSource& from) {
        input = mouse;
        source = from;
        note(what);
    }

    ToolLog& log_;
    DirtyRegion footprint_;
    bool selected_ = false;
    bool editMode_ = false;
};

}  // namespace ormala
