#include "toolkit/win/UncoveredPanels.h"

#include <algorithm>

#include "platform/win/OriginScope.h"
#include "platform/win/fills.h"
#include "platform/win/regions.h"
#include "widgets/lookColors.h"

namespace ormala {

namespace {

bool drawPanel(HDC context, HWND content, const PanelWindow& panel, const PixelRect& part) {
    const PixelRect box = placeIn(content, panel.handle());
    const PixelRect inside = box.intersected(part);
    if (inside.empty()) {
        return true;
    }
    const OriginScope origin(context, box.left, box.top);
    return panel.drawPart(context, {inside.left - box.left, inside.top - box.top,
                                    inside.right - box.left, inside.bottom - box.top});
}

}  // namespace

void UncoveredPanels::show(HWND content, const std::vector<PanelWindow*>& panels,
                           const PixelRect& part, const PixelRect& done) {
    if (part.empty() || IsWindowVisible(content) == FALSE ||
        !picture_.resize({part.width(), part.height()})) {
        return;
    }
    const HDC picture = picture_.context();
    const OriginScope origin(picture, -part.left, -part.top);
    fillRect(picture, toRect(part), dark::ground);
    const bool isDrawn = std::ranges::all_of(panels, [&](const PanelWindow* panel) {
        return !panel->isVisible() || drawPanel(picture, content, *panel, part);
    });
    if (!isDrawn) {
        return;
    }
    const UnclippedContext context(content);
    BitBlt(context.get(), part.left, part.top, part.width(), part.height(), picture, part.left,
           part.top, SRCCOPY);
    const RECT painted = toRect(done);
    RedrawWindow(content, &painted, nullptr, RDW_VALIDATE | RDW_NOERASE | RDW_ALLCHILDREN);
}

}  // namespace ormala
