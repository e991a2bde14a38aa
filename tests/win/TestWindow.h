#pragma once

#include "platform/win/Window.h"

namespace ormala {

/// A window that holds what is tested.
class TestWindow : public Window {
  public:
    explicit TestWindow(RECT place = {300, 200, 700, 500}) {
        WindowDesign design;
        design.className = L"TestWindow";
        design.style = WS_POPUP | WS_VISIBLE | WS_CLIPCHILDREN;
        design.place = place;
        create(design);
        SetForegroundWindow(handle());
    }
    ~TestWindow() override { destroy(); }

  private:
    std::optional<LRESULT> onMessage(UINT, WPARAM, LPARAM) override { return std::nullopt; }
};

}  // namespace ormala
