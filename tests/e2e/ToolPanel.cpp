#include "e2e/ToolPanel.h"

#include <algorithm>
#include <cctype>
#include <cmath>
#include <cstdlib>

#include "e2e/support/StageFailure.h"

namespace ormala::test {

namespace {

bool isGerman() {
    wchar_t name[LOCALE_NAME_MAX_LENGTH]{};
    GetUserDefaultLocaleName(name, LOCALE_NAME_MAX_LENGTH);
    return std::wstring_view(name).starts_with(L"de");
}

}  // namespace

SettingsFile userOptions() {
    SettingsFile options;
    options.set("Options", "Language", isGerman() ? " 1031" : " 9");
    options.set("Options", "GridSizeX", " 40");
    options.set("Options", "GridSizeY", " 30");
    options.set("Options", "GridOffsetX", " 0");
    options.set("Options", "GridOffsetY", " 0");
    return options;
}

ToolPanel::ToolPanel(PanelScene& scene, std::size_t index)
    : scene_(scene), panel_(scene.panel(index)) {}

DesktopWindow ToolPanel::control(std::string_view name) const {
    return PanelScene::control(panel_, name);
}

bool ToolPanel::isDown(std::string_view name) const {
    return control(name).send(BM_GETCHECK) == BST_CHECKED;
}

void ToolPanel::press(std::string_view name, Modifiers modifiers) const {
    const DesktopWindow button = control(name);
    PanelScene::bringIntoSight(button);
    scene_.mouse.click(button.center(), MouseButton::Left, modifiers);
}

void ToolPanel::pressByKeys(std::string_view name, Modifiers modifiers) const {
    scene_.settings().activate();
    focusByTab(control(name));
    keyboard::press(VK_SPACE, modifiers);
}

double ToolPanel::number(std::string_view label) const {
    std::string text = control(label).text();
    const auto isPart = [](char letter) {
        return letter == '-' || std::isdigit(static_cast<unsigned char>(letter)) != 0;
    };
    text.erase(text.begin(), std::ranges::find_if(text, isPart));
    std::ranges::replace(text, ',', '.');
    return text.empty() ? NAN : std::strtod(text.c_str(), nullptr);
}

testing::AssertionResult ToolPanel::shows(std::string_view label, double expected) const {
    constexpr double lastDigit = 1e-9;
    if (waitUntil([&] { return std::abs(number(label) - expected) < lastDigit; })) {
        return testing::AssertionSuccess();
    }
    return testing::AssertionFailure()
           << label << " says '" << control(label).text() << "', not " << expected;
}

DesktopWindow focusedWindow() {
    GUITHREADINFO info{};
    info.cbSize = sizeof(info);
    GetGUIThreadInfo(0, &info);
    return DesktopWindow(info.hwndFocus);
}

void focusByTab(const DesktopWindow& control) {
    constexpr int mostControls = 120;
    for (int i = 0; focusedWindow() != control; ++i) {
        const DesktopWindow former = focusedWindow();
        keyboard::press(VK_TAB);
        const bool moved = waitUntil([&] { return focusedWindow() != former; });
        if (!moved || i == mostControls) {
            throw StageFailure("The Tab key does not lead to " + control.name());
        }
    }
}

}  // namespace ormala::test
