#pragma once

#include <optional>
#include <string>

#include "platform/win/StandardControl.h"
#include "widgets/ListChoice.h"

namespace ormala {

/// The base of controls with a list that drops down and only proposes: leaving it keeps what was.
class DropList : public StandardControl {
  public:
    ~DropList() override { destroy(); }

    void setEnabled(bool enabled);
    /// The row in the list, -1 for none.
    [[nodiscard]] int selected() const;
    /// To be called with the notifications that its parent gets from it.
    void notified(int notification);

  protected:
    std::optional<LRESULT> onMessage(UINT message, WPARAM wParam, LPARAM lParam) override;
    [[nodiscard]] bool isEnabled() const { return IsWindowEnabled(handle()) != FALSE; }
    [[nodiscard]] std::string rowText(int row) const;
    [[nodiscard]] ListChoice& choice() { return choice_; }

  private:
    /// A row that the user has reached without the list.
    virtual void rowReached(int /*row*/) {}
    virtual void otherNotification(int /*notification*/) {}
    /// The list has gone, but perhaps the system has not told all of its end.
    virtual void listClosed() {}
    /// Now it has.
    virtual void settled() = 0;

    ListChoice choice_;
};

}  // namespace ormala
