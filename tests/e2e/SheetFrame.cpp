#include "e2e/SheetFrame.h"

namespace ormala::test {

namespace {

/// Between the frame's client area and the worksheet.
constexpr int margin = 5;

constexpr UINT keepOrder = SWP_NOZORDER | SWP_NOACTIVATE;

}  // namespace

DesktopWindow frameOf(const SheetScene& scene) {
    return scene.window("frmResizer");
}

ScreenRect holeOf(const SheetScene& scene) {
    const ScreenRect client = frameOf(scene).clientRect();
    return {client.left + margin, client.top + margin, client.right - margin,
            client.bottom - margin};
}

bool worksheetFits(const SheetScene& scene) {
    return waitUntil([&] { return scene.worksheet().rect() == holeOf(scene); });
}

ScreenPoint titleBarOf(const SheetScene& scene) {
    const ScreenRect frame = frameOf(scene).rect();
    const int height = frameOf(scene).clientRect().top - frame.top;
    return {frame.left + frame.width() / 3, frame.top + height / 2 + 1};
}

void place(const DesktopWindow& window, const ScreenRect& rect) {
    SetWindowPos(window.handle(), nullptr, rect.left, rect.top, rect.width(), rect.height(),
                 keepOrder);
    window.settle();
}

void moveTo(const DesktopWindow& window, ScreenPoint origin) {
    requireSoon("window where it was moved", [&] {
        SetWindowPos(window.handle(), nullptr, origin.x, origin.y, 0, 0, keepOrder | SWP_NOSIZE);
        window.settle();
        return window.rect().origin() == origin;
    });
    screen::waitUntilStill(window.rect());
}

}  // namespace ormala::test
