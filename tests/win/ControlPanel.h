#pragma once

#include <string>
#include <vector>

#include "platform/win/Window.h"
#include "win/TestSheet.h"

namespace ormala {

/// A dark panel that holds the controls of a test and notes the mouse messages it gets.
class ControlPanel : public Window {
  public:
    explicit ControlPanel(PixelSize size = {300, 200});
    ~ControlPanel() override { destroy(); }

    struct MouseNote {
        UINT message = 0;
        int x = 0;
        int y = 0;

        bool operator==(const MouseNote&) const = default;
    };
    std::vector<MouseNote> mouse;

    /// What the panel shows once it and its controls have painted.
    PixelMap shown() const;

    static constexpr COLORREF ground = RGB(96, 96, 96);

  private:
    std::optional<LRESULT> onMessage(UINT message, WPARAM wParam, LPARAM lParam) override;
};

std::string windowText(HWND window);
std::string windowClass(HWND window);

/// How many tip windows this thread has.
int tipWindowCount();

}  // namespace ormala
