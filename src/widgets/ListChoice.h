#pragma once

#include <optional>
#include <utility>

namespace ormala {

/// What a list that drops down decides. It only proposes: going through its rows chooses none of
/// them, the user's taking one does. The system tells of rows and of the end in any order.
class ListChoice {
  public:
    [[nodiscard]] bool isOpen() const { return open_; }

    /// The list comes up.
    void opened() {
        *this = {};
        open_ = true;
    }
    /// The user goes on typing above the open list.
    void typed() { row_.reset(); }
    /// The user has gone to a row or clicked it. False if that was without the list.
    bool reached(int row) {
        const bool ofList = open_ || settling_;
        if (ofList) {
            row_ = row;
        }
        return ofList;
    }
    /// The user has taken the row, or has left the list without.
    void ended(bool taken) { taken_ = taken; }
    /// The list is gone. A row may still be told of until all has settled.
    void closed() {
        open_ = false;
        settling_ = true;
    }
    /// Once all has been told. False if another list has come up since, or none has closed.
    bool settle() { return std::exchange(settling_, false); }

    /// The row that the user has taken, nothing if all stays as it was.
    [[nodiscard]] std::optional<int> chosen() const { return taken_ ? row_ : std::nullopt; }

  private:
    bool open_ = false;
    bool taken_ = false;
    bool settling_ = false;
    std::optional<int> row_;
};

}  // namespace ormala
