#include "e2e/PanelScene.h"

#include <gtest/gtest.h>

#include <algorithm>

#include "e2e/clickToFront.h"
#include "e2e/support/StageFailure.h"

namespace ormala::test {

namespace {

/// The number form of the settings files.
std::string number(int value) {
    return (value < 0 ? "" : " ") + std::to_string(value);
}

/// English texts also on a system that speaks another language, and the control window beside the
/// worksheet's first place, near the right edge of the screen: where one lies over the other, the
/// display may have them in another order than the program for a moment, and a click goes to the
/// wrong one.
SettingsFile prepared(SettingsFile options) {
    if (!options.value("Options", "Language")) {
        options.set("Options", "Language", " 9");
    }
    if (!options.value("FormSettings", "Left")) {
        // Of a window that is wider than that a start brings the rest back onto the screen.
        constexpr int room = 350;
        options.set("FormSettings", "Left", number(screen::primaryMonitor().right - room));
    }
    return options;
}

/// The name field of the system's file dialogs.
constexpr int fileNameField = 1148;

}  // namespace

bool isPanel(const DesktopWindow& window) {
    const std::string name = window.className();
    return (name == "ctlSetRatioGrid" || name == "ctlSetMeasure") && window.hasStyle(WS_VISIBLE);
}

std::string localised(std::string_view text) {
    wchar_t separator[8]{};
    GetLocaleInfoEx(LOCALE_NAME_USER_DEFAULT, LOCALE_SDECIMAL, separator, 8);
    std::string local(text);
    for (std::size_t i = 1; i + 1 < local.size(); ++i) {
        const auto digit = [&](std::size_t at) { return local[at] >= '0' && local[at] <= '9'; };
        if (local[i] == '.' && digit(i - 1) && digit(i + 1)) {
            local[i] = static_cast<char>(separator[0]);
        }
    }
    return local;
}

std::string ToolSet::nextSection() {
    return "Tool " + std::to_string(++count_);
}

ToolSet& ToolSet::stencil(const ScreenRect& rect) {
    const std::string section = nextSection();
    file_.set(section, "Type", " 0");
    file_.set(section, "RectBoundTop", number(rect.top));
    file_.set(section, "RectBoundRight", number(rect.right));
    file_.set(section, "RectBoundBottom", number(rect.bottom));
    file_.set(section, "RectBoundLeft", number(rect.left));
    return *this;
}

ToolSet& ToolSet::measure(const Line& a, const Line& b, bool connected, int toolNumber) {
    const std::string section = nextSection();
    file_.set(section, "Type", " 1");
    file_.set(section, "Connected", connected ? "-1" : " 0");
    const auto setPoint = [&](const std::string& line, const char* index, ScreenPoint point) {
        file_.set(section, line + "X" + index, number(point.x));
        file_.set(section, line + "Y" + index, number(point.y));
    };
    setPoint("A", "1", a.first);
    setPoint("A", "2", a.second);
    setPoint("B", "1", b.first);
    setPoint("B", "2", b.second);
    file_.set(section, "Number", number(toolNumber));
    return *this;
}

PanelScene::PanelScene(const SettingsFile& tools, const SettingsFile& options,
                       const BackdropLook& look)
    : backdrop_(look) {
    tools.write(data_.toolsFile());
    prepared(options).write(data_.optionsFile());
    start();
}

void PanelScene::start() {
    program_ = std::make_unique<Program>(data_);
    program_->waitUntilReady();
    bringControlWindowForward();
}

void PanelScene::bringControlWindowForward() const {
    if (worksheet().isVisible() && !settings().isMinimised()) {
        bringInFrontOf(worksheet(), settings());
    }
}

void PanelScene::restart() {
    EXPECT_EQ(program_->close(), 0U);
    startAgain();
}

void PanelScene::startAgain() {
    program_.reset();
    start();
}

ScreenPoint PanelScene::onScreen(ScreenPoint sheet) const {
    return worksheet().at(sheet.x, sheet.y);
}

std::vector<DesktopWindow> PanelScene::panels() const {
    std::vector<DesktopWindow> found;
    const HWND list = settings().named("picInner").handle();
    for (HWND child = GetWindow(list, GW_CHILD); child != nullptr;
         child = GetWindow(child, GW_HWNDNEXT)) {
        if (const DesktopWindow window(child); isPanel(window)) {
            found.push_back(window);
        }
    }
    std::ranges::sort(found, {}, [](const DesktopWindow& window) { return window.rect().top; });
    return found;
}

DesktopWindow PanelScene::panel(std::size_t index) const {
    const auto found = panels();
    if (index >= found.size()) {
        throw StageFailure("There is no panel " + std::to_string(index));
    }
    return found[index];
}

DesktopWindow PanelScene::control(std::string_view name) const {
    return control(settings(), name);
}

void PanelScene::scrollIntoView(const DesktopWindow& panel) {
    const ScreenRect view = DesktopWindow(GetParent(GetParent(panel.handle()))).rect();
    Mouse mouse;
    mouse.moveTo(view.center());
    int turned = 0;
    const bool came = waitUntil([&] {
        const ScreenRect place = panel.rect();
        const bool above = place.top < view.top && place.bottom < view.bottom;
        const bool below = place.bottom > view.bottom && place.top > view.top;
        const int turn = above ? 1 : below ? -1 : 0;
        // A notch may lead past a view that is hardly higher than the panel, and the next one back.
        const bool passed = turn != 0 && turn == -turned;
        const bool isSeen = place.top < view.bottom && place.bottom > view.top;
        if (turn == 0 || (passed && isSeen)) {
            return true;
        }
        turned = turn;
        mouse.wheel(turn);
        return false;
    });
    EXPECT_TRUE(came) << "a panel does not come into view";
}

void PanelScene::bringIntoSight(const DesktopWindow& control) {
    HWND panel = control.handle();
    while (panel != nullptr && !isPanel(DesktopWindow(panel))) {
        panel = GetParent(panel);
    }
    if (panel == nullptr) {
        return;
    }
    const ScreenRect view = DesktopWindow(GetParent(GetParent(panel))).rect();
    const auto isSeen = [&] { return view.contains(control.center()); };
    Mouse mouse;
    while (!isSeen()) {
        const ScreenPoint before = control.center();
        mouse.moveTo(view.center());
        mouse.wheel(before.y < view.top ? 1 : -1);
        requireSoon("a list that scrolls", [&] { return control.center() != before; });
        // Its glide goes on for a while.
        screen::waitUntilStill(view);
    }
}

DesktopWindow PanelScene::control(const DesktopWindow& panel, std::string_view name) {
    DesktopWindow found;
    const auto exists = [&] { return (found = panel.named(name)).exists(); };
    // Those beside the ones in view get their controls when there is nothing else to do.
    constexpr milliseconds rest{300};
    if (!exists() && isPanel(panel) && !waitUntil(exists, rest)) {
        scrollIntoView(panel);
        waitUntil(exists);
    }
    if (!found.exists()) {
        throw StageFailure("There is no control " + std::string(name));
    }
    return found;
}

bool PanelScene::waitForPanels(std::size_t count) const {
    return waitUntil([&] { return panels().size() == count; });
}

bool PanelScene::says(const DesktopWindow& panel, std::string_view name, std::string_view text) {
    const DesktopWindow label = control(panel, name);
    const std::string expected = localised(text);
    if (waitUntil([&] { return label.text() == expected; })) {
        return true;
    }
    ADD_FAILURE() << name << " says '" << label.text() << "', not '" << expected << "'";
    return false;
}

void PanelScene::press(const DesktopWindow& control) {
    bringIntoSight(control);
    mouse.click(control.center());
}

void PanelScene::answerFileDialog(std::string_view title, const std::filesystem::path& path) {
    const DesktopWindow dialog = waitForTopLevel(program_->process().id(), "#32770", title);
    typeFileName(dialog, path);
    dialog.waitUntilClosed();
}

void PanelScene::typeFileName(const DesktopWindow& dialog, const std::filesystem::path& path) {
    const std::u8string name = path.u8string();
    dialog.item(fileNameField).setText({reinterpret_cast<const char*>(name.data()), name.size()});
    dialog.post(WM_COMMAND, IDOK);
}

void PanelScene::cancelFileDialog(std::string_view title) {
    const DesktopWindow dialog = waitForTopLevel(program_->process().id(), "#32770", title);
    dialog.post(WM_COMMAND, IDCANCEL);
    dialog.waitUntilClosed();
}

}  // namespace ormala::test
