#include "storage/HistoryHelper.h"

#include <gtest/gtest.h>

#include <vector>

namespace ormala {
namespace {

/// A tool whose state is one number.
class NumberTool : public HistorySlots {
  public:
    explicit NumberTool(std::int32_t highestSlot = 999)
        : slots_(static_cast<std::size_t>(highestSlot) + 1) {
        history.Initialize(highestSlot);
        history.Add(true);
    }

    void StoreToHistory(std::int32_t slot) override { at(slot) = state; }
    void LoadFromHistory(std::int32_t slot) override { state = at(slot); }
    bool CompareWithHistory(std::int32_t slot) override { return at(slot) != state; }

    void step() {
        ++state;
        history.Add(false);
    }
    int undoAll() {
        int undone = 0;
        for (; history.UndoPossible(); ++undone) {
            history.Undo();
        }
        return undone;
    }

    int state = 0;
    HistoryHelper history{*this};

  private:
    int& at(std::int32_t slot) { return slots_.at(static_cast<std::size_t>(slot)); }

    std::vector<int> slots_;
};

TEST(HistoryHelper, ANewToolHasNothingToUndoOrRedo) {
    NumberTool tool;
    EXPECT_FALSE(tool.history.UndoPossible());
    EXPECT_FALSE(tool.history.RedoPossible());
}

TEST(HistoryHelper, InitialStateIsStoredWithoutAStep) {
    NumberTool tool;
    tool.state = 5;
    EXPECT_TRUE(tool.history.Add(true));
    EXPECT_EQ(tool.history.newest(), 0);
    EXPECT_EQ(tool.history.current(), 0);
    EXPECT_FALSE(tool.CompareWithHistory(0));
}

TEST(HistoryHelper, OneChangeCanBeUndoneAndRedone) {
    NumberTool tool;
    tool.step();
    EXPECT_EQ(tool.history.oldest(), 0);
    EXPECT_EQ(tool.history.newest(), 1);
    EXPECT_EQ(tool.history.current(), 1);
    EXPECT_TRUE(tool.history.UndoPossible());
    tool.history.Undo();
    EXPECT_EQ(tool.history.current(), 0);
    EXPECT_EQ(tool.state, 0);
    EXPECT_FALSE(tool.history.UndoPossible());
    EXPECT_TRUE(tool.history.RedoPossible());
    tool.history.Redo();
    EXPECT_EQ(tool.state, 1);
    EXPECT_FALSE(tool.history.RedoPossible());
}

TEST(HistoryHelper, ADiscardedHistoryBeginsAnew) {
    NumberTool tool;
    tool.step();
    tool.step();
    tool.history.Undo();
    tool.history.discard();
    tool.history.Add(true);
    EXPECT_FALSE(tool.history.UndoPossible());
    EXPECT_FALSE(tool.history.RedoPossible());
    const int first = tool.state;
    tool.step();
    tool.history.Undo();
    EXPECT_EQ(tool.state, first);
}

TEST(HistoryHelper, ANewStepDropsTheOldFuture) {
    NumberTool tool;
    tool.step();
    tool.step();
    tool.history.Undo();
    tool.history.Undo();
    tool.state = 100;
    EXPECT_TRUE(tool.history.Add(false));
    EXPECT_EQ(tool.history.newest(), tool.history.current());
    EXPECT_FALSE(tool.history.RedoPossible());
    tool.history.Undo();
    EXPECT_EQ(tool.state, 0);
}

TEST(HistoryHelper, AnUnchangedStateAddsNoStep) {
    NumberTool tool;
    EXPECT_FALSE(tool.history.Add(false));
    tool.step();
    EXPECT_FALSE(tool.history.Add(false));
    EXPECT_EQ(tool.history.newest(), 1);
}

TEST(HistoryHelper, UnchangedStateAfterUndoKeepsTheFuture) {
    NumberTool tool;
    tool.step();
    tool.history.Undo();
    EXPECT_FALSE(tool.history.Add(false));
    EXPECT_TRUE(tool.history.RedoPossible());
}

TEST(HistoryHelper, AFullRingUndoes999Steps) {
    NumberTool tool;
    for (int i = 0; i < 1000; ++i) {
        tool.step();
    }
    EXPECT_EQ(tool.history.newest(), 0);
    EXPECT_EQ(tool.history.current(), 0);
    EXPECT_EQ(tool.history.oldest(), 1);
    EXPECT_EQ(tool.undoAll(), 999);
    EXPECT_EQ(tool.state, 1);
    tool.history.Undo();
    EXPECT_EQ(tool.state, 1);
}

TEST(HistoryHelper, AFullRingGoesOnDroppingItsOldestState) {
    NumberTool tool;
    for (int i = 0; i < 3500; ++i) {
        tool.step();
    }
    EXPECT_EQ(tool.undoAll(), 999);
    EXPECT_EQ(tool.state, 3500 - 999);
    for (int i = 0; i < 999; ++i) {
        tool.history.Redo();
    }
    EXPECT_EQ(tool.state, 3500);
    EXPECT_FALSE(tool.history.RedoPossible());
}

TEST(HistoryHelper, KnowsItsEndsAfterTheWrap) {
    NumberTool tool;
    for (int i = 0; i < 1000; ++i) {
        tool.step();
    }
    EXPECT_EQ(tool.history.current(), tool.history.newest());
    EXPECT_TRUE(tool.history.UndoPossible());
    tool.undoAll();
    EXPECT_EQ(tool.history.current(), tool.history.oldest());
    EXPECT_GT(tool.history.current(), tool.history.newest());
    EXPECT_FALSE(tool.history.UndoPossible());
    EXPECT_TRUE(tool.history.RedoPossible());
}

TEST(HistoryHelper, RedoAtTheNewestStateDoesNothing) {
    NumberTool tool;
    tool.step();
    tool.history.Redo();
    EXPECT_EQ(tool.history.current(), 1);
    EXPECT_EQ(tool.state, 1);
}

}  // namespace
}  // namespace ormala
