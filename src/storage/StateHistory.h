#pragma once

#include <functional>
#include <utility>
#include <vector>

#include "storage/HistoryHelper.h"

namespace ormala {

/// Undo and redo of a tool whose state is a value that can be compared: the ring with its records,
/// which are all made at once. Owned by the tool.
template <class State>
class StateHistory : private HistorySlots {
  public:
    static constexpr int slots = 1000;

    /// `state` is the tool's, and `load` puts a record into its place.
    StateHistory(const State& state, std::function<void(const State&)> load)
        : state_(state), load_(std::move(load)), records_(slots) {
        helper_.Initialize(slots - 1);
    }
    StateHistory(const StateHistory&) = delete;
    StateHistory& operator=(const StateHistory&) = delete;

    [[nodiscard]] HistoryHelper& helper() { return helper_; }

  private:
    [[nodiscard]] State& record(std::int32_t slot) {
        return records_.at(static_cast<std::size_t>(slot));
    }
    void StoreToHistory(std::int32_t slot) override { record(slot) = state_; }
    void LoadFromHistory(std::int32_t slot) override { load_(record(slot)); }
    bool CompareWithHistory(std::int32_t slot) override { return state_ != record(slot); }

    const State& state_;
    std::function<void(const State&)> load_;
    std::vector<State> records_;
    HistoryHelper helper_{*this};
};

}  // namespace ormala
