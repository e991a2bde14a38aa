#pragma once

#include <optional>

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
    /// The user has gone to a row or clicked it.
    void reached(int row) { row_ = row; }
    /// The user has taken the row, or has left the list without.
    void ended(bool taken) { taken_ = taken; }
    /// The list is gone. A row may still be told of after that.
    void closed() { open_ = false; }

    /// The row that the user has taken, nothing if all stays as it was.
    [[nodiscard]] std::optional<int> chosen() const { return taken_ ? row_ : std::nullopt; }

  private:
    bool open_ = false;
    bool taken_ = false;
    std::optional<int> row_;
};

}  // namespace ormala
