#include "scene/ToolControl.h"

#include <gtest/gtest.h>

namespace ormala {
namespace {

class QuietTool : public ToolControl {
  public:
    void GlobalMouseMove(const MouseInput&, const MouseSource&) override {}
    [[nodiscard]] bool Selected() const override { return false; }
    void setSelected(bool) override {}
    [[nodiscard]] bool EditMode() const override { return true; }
    void setEditMode(bool) override {}
    void LoseFocus() override {}
    void beginChanges() override {}
    void endChanges() override {}
    [[nodiscard]] SpokenTool spoken(int) const override { return {}; }
    [[nodiscard]] std::vector<SpokenGrip> spokenGrips(int) const override { return {}; }
};

TEST(MouseSource, FreeMouseIsHeldAwayFromNobody) {
    const QuietTool tool;
    EXPECT_FALSE(MouseSource{}.heldAwayFrom(&tool));
}

TEST(MouseSource, MouseThatAToolHoldsIsAwayFromTheOthersOnly) {
    const QuietTool holder;
    const QuietTool other;
    const MouseSource source{&holder, &holder, false};
    EXPECT_FALSE(source.heldAwayFrom(&holder));
    EXPECT_TRUE(source.heldAwayFrom(&other));
}

TEST(MouseSource, MouseThatAnotherWindowHoldsIsAwayFromAll) {
    const QuietTool tool;
    EXPECT_TRUE((MouseSource{nullptr, nullptr, true}).heldAwayFrom(&tool));
}

}  // namespace
}  // namespace ormala
