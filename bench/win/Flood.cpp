#include <algorithm>
#include <vector>

#include "Figures.h"
#include "app/win/shell/Program.h"
#include "benchmarks.h"
#include "e2e/support/AppDataFolder.h"
#include "platform/win/FairMessages.h"
#include "stencil/ctlRatioGrid.h"

namespace ormala::bench {

namespace {

constexpr int floodedTools = 33;
constexpr ULONGLONG floodTime = 5000;

/// The program with 33 stencils, whose drag never comes to an end: each move of the mouse is
/// followed by the next one as soon as it has been handled, faster than any mouse.
class FloodedDrag {
  public:
    FloodedDrag() {
        program_.tools().tools().RemoveAllTools();
        for (int i = 0; i < floodedTools; ++i) {
            program_.execute(Command::addStencil);
        }
        program_.execute(Command::crossHair);
        program_.execute(Command::lens);
        const auto* stencil =
            dynamic_cast<const ctlRatioGrid*>(program_.worksheet().sheet().GetFirstControl(0));
        const Rect bound = stencil->RectBound();
        place_ = {static_cast<int>((bound.left + bound.right) / 2),
                  static_cast<int>((bound.top + bound.bottom) / 2)};
        SendMessageW(sheet(), WM_LBUTTONDOWN, MK_LBUTTON, at(0));
        move();
    }
    ~FloodedDrag() { SendMessageW(sheet(), WM_LBUTTONUP, 0, at(moves_)); }
    FloodedDrag(const FloodedDrag&) = delete;
    FloodedDrag& operator=(const FloodedDrag&) = delete;

    /// Milliseconds from one frame of the magnifier to the next.
    std::vector<double> frames() {
        std::vector<double> times;
        FairMessages messages;
        MSG message{};
        const HWND lens = program_.view().lens().lens().handle();
        const ULONGLONG end = GetTickCount64() + floodTime;
        ULONGLONG last = 0;
        while (GetTickCount64() < end && messages.next(message)) {
            DispatchMessageW(&message);
            if (message.hwnd == sheet() && message.message == WM_MOUSEMOVE) {
                move();
            } else if (message.hwnd == lens && message.message == WM_TIMER) {
                const ULONGLONG now = GetTickCount64();
                if (last != 0) {
                    times.push_back(static_cast<double>(now - last));
                }
                last = now;
            }
        }
        return times;
    }
    [[nodiscard]] int moves() const { return moves_; }

  private:
    [[nodiscard]] HWND sheet() { return program_.worksheet().handle(); }
    [[nodiscard]] LPARAM at(int step) const {
        constexpr int way = 60;
        const int aside = step % (2 * way);
        return MAKELPARAM(place_.x + std::min(aside, 2 * way - aside), place_.y);
    }
    void move() { PostMessageW(sheet(), WM_MOUSEMOVE, MK_LBUTTON, at(++moves_)); }

    test::AppDataFolder folder_;
    Program program_{false};
    PixelPoint place_;
    int moves_ = 0;
};

}  // namespace

void flood() {
    FloodedDrag drag;
    const std::vector<double> times = drag.frames();
    double sum = 0;
    for (const double time : times) {
        sum += time;
    }
    constexpr double sixtieth = 1000.0 / 60;
    report("between two frames of the magnifier in a flood",
           sum / static_cast<double>(std::max<std::size_t>(times.size(), 1)), "ms",
           {sixtieth, "a sixtieth of a second", 1});
    report("a painted step of the drag in that flood",
           static_cast<double>(floodTime) / std::max(drag.moves(), 1), "ms",
           {sixtieth, "a sixtieth of a second", 1});
}

}  // namespace ormala::bench
