#pragma once

#include <optional>
#include <string>

#include "app/ViewState.h"
#include "app/menuDesign.h"
#include "base/Event.h"
#include "platform/win/Window.h"
#include "platform/win/handles.h"

namespace ormala {

/// The popup menus of windows that have no border and thus cannot have a menu of their own. It is
/// never shown itself.
class frmMenu : public Window {
  public:
    frmMenu();
    ~frmMenu() override { destroy(); }

    /// Checks what is on, and the magnification that is in force.
    void showState(const ViewState& state) const;
    [[nodiscard]] bool isChecked(Command entry) const;
    void setEnabled(Command entry, bool enabled) const;
    [[nodiscard]] bool isEnabled(Command entry) const;

    /// For tests and screen readers: the menu of the worksheet and that of the magnifier.
    [[nodiscard]] HMENU mnuPopup() const { return mnuPopup_.get(); }
    [[nodiscard]] HMENU mnuLens() const { return mnuLens_; }

    /// Shows one of the menus at a point of the screen until the user has chosen or left it. The
    /// owner gets the keyboard and has it afterwards.
    static std::optional<Command> popUp(HMENU menu, HWND owner, POINT at);

  private:
    std::optional<LRESULT> onMessage(UINT, WPARAM, LPARAM) override { return std::nullopt; }
    void ApplyLanguage() const;

    Handle<HMENU, &DestroyMenu> mnuPopup_;
    /// Submenus, which go with it.
    HMENU mnuLens_ = nullptr;
    HMENU mnuLensMagnification_ = nullptr;
    Subscription languageChange_;
};

}  // namespace ormala
