#include "app/win/shell/partsOfProgram.h"

#include "widgets/win/tabStops.h"

namespace ormala {

namespace {

bool isActive(const Window& window) {
    return GetActiveWindow() == window.handle();
}

bool isShown(const Window& window) {
    return window.isVisible() && IsIconic(window.handle()) == FALSE;
}

}  // namespace

std::vector<WindowPart> partsOfProgram(frmSettings& settings, ToolsPane& tools,
                                       frmWorksheet& worksheet, frmResizer& resizer,
                                       frmLens& lens) {
    return {
        {[&] { return isShown(settings); },
         [&] { return isActive(settings) && !tools.hasKeyboard(); },
         [&] {
             SetForegroundWindow(settings.handle());
             SetFocus(nextTabStop(settings.handle(), nullptr, false));
         }},
        {[&] { return isShown(settings) && tools.canTakeKeyboard(); },
         [&] { return isActive(settings) && tools.hasKeyboard(); },
         [&] {
             SetForegroundWindow(settings.handle());
             tools.takeKeyboard();
         }},
        // In the other modes no key reaches it.
        {[&] { return worksheet.isVisible() && worksheet.Clickable(); },
         [&] { return isActive(worksheet) || isActive(resizer); },
         [&] { SetForegroundWindow(worksheet.handle()); }},
        {[&] { return lens.isVisible(); }, [&] { return isActive(lens); },
         [&] { SetForegroundWindow(lens.handle()); }},
    };
}

}  // namespace ormala
