#include "storage/StateHistory.h"

#include <gtest/gtest.h>

namespace ormala {
namespace {

struct LoadCounter {
    int state = 0;
    int loads = 0;
    StateHistory<int> history{state, [this](const int& record) {
                                  state = record;
                                  ++loads;
                              }};

    LoadCounter() { history.helper().Add(true); }
};

TEST(StateHistory, UndoAndRedoLoadTheRecords) {
    LoadCounter tool;
    tool.state = 5;
    EXPECT_TRUE(tool.history.helper().Add(false));
    tool.history.helper().Undo();
    EXPECT_EQ(tool.state, 0);
    tool.history.helper().Redo();
    EXPECT_EQ(tool.state, 5);
    EXPECT_EQ(tool.loads, 2);
}

TEST(StateHistory, EqualStateIsNoStep) {
    LoadCounter tool;
    EXPECT_FALSE(tool.history.helper().Add(false));
    tool.state = 5;
    tool.history.helper().Add(false);
    EXPECT_FALSE(tool.history.helper().Add(false));
    EXPECT_EQ(tool.history.helper().newest(), 1);
}

TEST(StateHistory, KeepsAThousandStates) {
    LoadCounter tool;
    for (tool.state = 1; tool.state <= 1500; ++tool.state) {
        tool.history.helper().Add(false);
    }
    int undone = 0;
    for (; tool.history.helper().UndoPossible(); ++undone) {
        tool.history.helper().Undo();
    }
    EXPECT_EQ(undone, 999);
    EXPECT_EQ(tool.state, 501);
}

}  // namespace
}  // namespace ormala
