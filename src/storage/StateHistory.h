#pragma once

#include <cstddef>
#include <cstdint>
#include <functional>
#include <stdexcept>
#include <utility>
#include <vector>

#include "storage/HistoryHelper.h"

namespace ormala {

/// Undo and redo of a tool whose state is a value that can be compared: the ring with its records,
/// whose memory grows with the steps. Owned by the tool.
template <class State>
class StateHistory : private HistorySlots {
  public:
    static constexpr int slots = 1000;

    /// `state` is the tool's, and `load` puts a record into its place.
    StateHistory(const State& state, std::function<void(const State&)> load)
        : state_(state), load_(std::move(load)) {
        helper_.Initialize(slots - 1);
    }
    StateHistory(const StateHistory&) = delete;
    StateHistory& operator=(const StateHistory&) = delete;

    [[nodiscard]] HistoryHelper& helper() { return helper_; }

  private:
    /// Records are made as the ring reaches them. Valid until the next step.
    [[nodiscard]] State& record(std::int32_t slot) {
        if (slot < 0 || slot >= slots) {
            throw std::out_of_range("a history has no such slot");
        }
        const auto index = static_cast<std::size_t>(slot);
        if (index >= records_.size()) {
            records_.resize(index + 1);
        }
        return records_[index];
    }
    void StoreToHistory(std::int32_t slot) override { record(slot) = state_; }
    void LoadFromHistory(std::int32_t slot) override {
        const State stored = record(slot);
        load_(stored);
    }
    bool CompareWithHistory(std::int32_t slot) override { return state_ != record(slot); }

    const State& state_;
    std::function<void(const State&)> load_;
    std::vector<State> records_;
    HistoryHelper helper_{*this};
};

}  // namespace ormala
