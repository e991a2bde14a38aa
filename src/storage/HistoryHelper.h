#pragma once

#include <cstdint>

namespace ormala {

/// The undo states of a tool, which answers when its history asks. Called within the operation of
/// the history; a slot lies between 0 and the highest slot.
class HistorySlots {
  public:
    virtual ~HistorySlots() = default;

    /// Copies the tool's state into the slot.
    virtual void StoreToHistory(std::int32_t slot) = 0;
    /// Copies the slot into the tool's state.
    virtual void LoadFromHistory(std::int32_t slot) = 0;
    /// Whether the tool's state differs from the slot.
    virtual bool CompareWithHistory(std::int32_t slot) = 0;
};

/// Undo and redo of one tool: the indices of a ring of slots that the tool owns. A full ring drops
/// its oldest state with each step, so that one state less than there are slots can be undone.
class HistoryHelper {
  public:
    /// The slots must outlive the history.
    explicit HistoryHelper(HistorySlots& slots) : slots_(slots) {}

    /// To be called before the first `Add`, with the number of the ring's last slot.
    void Initialize(std::int32_t highestSlot) { highestSlot_ = highestSlot; }

    /// Drops every step: the tool begins anew. To be followed by an initial `Add`.
    void discard() { oldest_ = newest_ = current_ = 0; }

    bool UndoPossible() const;
    void Undo();
    bool RedoPossible() const { return current_ != newest_; }
    void Redo();

    /// Adds the tool's state as a step, unless nothing has changed since the last one; the states
    /// that redo could reach are gone then. `initial` stores a new tool's first state and counts no
    /// step. Returns whether a state was stored.
    bool Add(bool initial);

    std::int32_t oldest() const { return oldest_; }
    std::int32_t newest() const { return newest_; }
    std::int32_t current() const { return current_; }

  private:
    std::int32_t after(std::int32_t slot) const { return slot == highestSlot_ ? 0 : slot + 1; }
    std::int32_t before(std::int32_t slot) const { return slot == 0 ? highestSlot_ : slot - 1; }

    HistorySlots& slots_;
    std::int32_t highestSlot_ = 0;
    std::int32_t oldest_ = 0;
    std::int32_t newest_ = 0;
    std::int32_t current_ = 0;
};

}  // namespace ormala
