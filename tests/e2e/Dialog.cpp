#include "e2e/Dialog.h"

#include "e2e/ToolPanel.h"
#include "e2e/support/StageFailure.h"

namespace ormala::test {

namespace {

/// Where the letters go to: the control or the edit field in it.
DesktopWindow fieldOf(const DesktopWindow& control) {
    const DesktopWindow found = control.child("Edit");
    return found.exists() ? found : control;
}

}  // namespace

std::string indexed(std::string_view name, int index) {
    return std::string(name) + "(" + std::to_string(index) + ")";
}

Dialog::Dialog(PanelScene& scene, std::string_view className)
    : scene_(scene), window_(scene.program().waitForWindow(className)) {
    requireSoon("front for the dialog", [this] {
        const ScreenPoint center = window_.center();
        const HWND seen = WindowFromPoint({center.x, center.y});
        return DesktopWindow(GetAncestor(seen, GA_ROOT)) == window_;
    });
}

bool Dialog::isOn(std::string_view name) const {
    return control(name).send(BM_GETCHECK) == BST_CHECKED;
}

ScreenPoint Dialog::row(std::string_view list, int index) const {
    const DesktopWindow rows = control(list);
    const auto height = static_cast<int>(rows.send(LB_GETITEMHEIGHT).value());
    return rows.at(30, index * height + height / 2);
}

void Dialog::leave(std::string_view name) const {
    press(name);
    window_.waitUntilHidden();
}

void Dialog::leaveByKey(WORD key) const {
    keyboard::press(key);
    window_.waitUntilHidden();
}

void Dialog::enter(std::string_view name, std::string_view text) const {
    const DesktopWindow field = fieldOf(control(name));
    focusByTab(field);
    // Wine may let go of Shift when it looks at the real keyboard.
    constexpr milliseconds eachTry{1000};
    requireSoon(std::string(text) + " in " + std::string(name), [&] {
        keyboard::press(VK_END);
        keyboard::press(VK_HOME, Modifiers::Shift);
        keyboard::type(text);
        return waitUntil([&] { return field.text() == text; }, eachTry);
    });
}

}  // namespace ormala::test
