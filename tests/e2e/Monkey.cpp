#include "e2e/Monkey.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <array>
#include <cmath>

#include "e2e/PanelScene.h"
#include "e2e/support/StageFailure.h"

namespace ormala::test {

namespace {

using Deed = MonkeyAction::Deed;
using Target = MonkeyAction::Target;

/// A window that has not answered by then hangs: in milliseconds.
constexpr UINT patience = 5000;
constexpr int frameMargin = 5;
/// A dialog is left after so many actions in it.
constexpr int longInDialog = 12;
/// Of the last actions, in what is told of a fault.
constexpr std::size_t traceLength = 25;
constexpr std::array ownDialogs{"frmOptions", "frmColor", "frmLineStyle", "frmPatternSelect",
                                "frmRatio",   "frmUnit",  "frmAbout"};

MouseButton buttonOf(Deed deed) {
    return deed == Deed::rightClick    ? MouseButton::Right
           : deed == Deed::middleClick ? MouseButton::Middle
                                       : MouseButton::Left;
}

/// Where a window manager has its hand in.
bool belongsToFrame(ScreenPoint point) {
    const DesktopWindow root(GetAncestor(WindowFromPoint({point.x, point.y}), GA_ROOT));
    const ScreenRect client = root.clientRect();
    const bool outside = point.x < client.left || point.x >= client.right || point.y < client.top ||
                         point.y >= client.bottom;
    return root.className() == "frmResizer" || (root.className().starts_with("frm") && outside);
}

/// As far as a mouse goes.
ScreenPoint onScreen(ScreenPoint point) {
    const ScreenRect screen = screen::primaryMonitor();
    return {std::clamp(point.x, screen.left, screen.right - 1),
            std::clamp(point.y, screen.top, screen.bottom - 1)};
}

/// All but the time and what a start mends: outside edit mode the control window comes back short,
/// and the height that it is to have again is cut where it would reach below the screen.
std::string lasting(SettingsFile file, const std::vector<std::string>& mended) {
    for (const std::string& section : mended) {
        for (const char* key : {"Left", "Top", "Right", "Bottom"}) {
            file.set(section, key, "");
        }
    }
    if (file.value("General", "Time")) {
        file.set("General", "Time", "");
    }
    if (file.value("Options", "Mode").value_or(" 0") != " 0") {
        file.set("FormSettings", "Bottom", "");
        file.set("Options", "EditModeFormHeight", "");
    }
    return file.text();
}

RECT workArea() {
    RECT work{};
    SystemParametersInfoW(SPI_GETWORKAREA, 0, &work, 0);
    return work;
}

RECT savedPlace(const SettingsFile& options, const char* section) {
    const auto side = [&](const char* key) {
        return static_cast<LONG>(options.number(section, key).value_or(0));
    };
    return {side("Left"), side("Top"), side("Right"), side("Bottom")};
}

/// Where a start puts the top of the control window, before the display has it.
LONG topAtStart(const SettingsFile& options) {
    const RECT work = workArea();
    const RECT saved = savedPlace(options, "FormSettings");
    RECT common{};
    IntersectRect(&common, &work, &saved);
    const bool elsewhere = common.right - common.left < 11 && common.bottom - common.top < 11;
    const LONG end = elsewhere ? screen::primaryMonitor().bottom : work.bottom;
    return std::max(std::min(saved.top, end - (saved.bottom - saved.top)), work.top);
}

/// The height that the control window is to have again is cut by a start where it would reach below
/// the screen.
void cutHeight(SettingsFile& options) {
    constexpr const char* key = "EditModeFormHeight";
    constexpr double twipsPerInch = 1440;
    const LONG room = screen::primaryMonitor().bottom - topAtStart(options);
    const double most = std::round(room * twipsPerInch / GetDpiForSystem());
    if (options.number("Options", key).value_or(0) > most) {
        options.set("Options", key, " " + std::to_string(std::lround(most)));
    }
}

/// The windows that reach beyond the screen, which come back onto it.
std::vector<std::string> beyondScreen(const SettingsFile& options) {
    const RECT work = workArea();
    std::vector<std::string> found;
    for (const char* section : {"FormSettings", "FormResizer", "FormLens"}) {
        const RECT saved = savedPlace(options, section);
        if (saved.left < work.left || saved.top < work.top || saved.right > work.right ||
            saved.bottom > work.bottom) {
            found.emplace_back(section);
        }
    }
    return found;
}

}  // namespace

Monkey::Monkey(std::uint32_t seed)
    : seed_(seed), actions_(seed), backdrop_({BackdropPattern::Solid, 0xC0C0C0}) {
    SettingsFile options;
    options.set("Options", "Language", " 9");
    options.set("Options", "LensVisible", "-1");
    options.write(data_.optionsFile());
    start();
}

void Monkey::start() {
    program_ = std::make_unique<Program>(data_);
    program_->waitUntilReady();
}

std::string Monkey::trace() const {
    std::string text = "again with tools/monkey " + std::to_string(seed_) + ", action " +
                       std::to_string(done_.size()) + ", the last ones being\n";
    const std::size_t from = done_.size() - std::min(done_.size(), traceLength);
    for (std::size_t i = from; i < done_.size(); ++i) {
        text += done_[i] + "\n";
    }
    return text;
}

void Monkey::play(int actions) {
    for (int i = 0; i < actions && !testing::Test::HasFailure(); ++i) {
        const MonkeyAction action = actions_.next();
        done_.push_back(textOf(action));
        try {
            act(action);
        } catch (const StageFailure& failure) {
            ADD_FAILURE() << failure.what() << '\n' << trace();
        }
        if (!program_->process().isRunning()) {
            // By its menu, which asks for it.
            EXPECT_EQ(program_->waitForExit(), 0U) << trace();
            start();
        }
        look();
    }
    try {
        if (!testing::Test::HasFailure()) {
            endAndCompare();
        }
    } catch (const StageFailure& failure) {
        ADD_FAILURE() << failure.what() << '\n' << trace();
    }
}

void Monkey::act(const MonkeyAction& action) {
    if (answerMenu(action) || answerBox() || leaveDialogAtLength()) {
        return;
    }
    if (action.deed == Deed::key || action.deed == Deed::type) {
        useKeys(action);
        return;
    }
    if (action.deed == Deed::windowState) {
        changeState(action);
        return;
    }
    if (action.deed == Deed::placeWindow) {
        placeWindow(action);
        return;
    }
    const ScreenRect area = target(action).clientRect();
    const ScreenPoint point = onScreen(
        {area.left + area.width() * action.x / 1000, area.top + area.height() * action.y / 1000});
    if (belongsToFrame(point)) {
        useDevice(action, point);
    } else {
        useMouse(action, point);
    }
}

void Monkey::useMouse(const MonkeyAction& action, ScreenPoint point) {
    const auto modifiers = static_cast<Modifiers>(action.modifiers);
    const ScreenPoint end = onScreen(point + ScreenPoint{action.dx, action.dy});
    switch (action.deed) {
        case Deed::move:
            mouse_.moveTo(point);
            break;
        case Deed::drag:
            mouse_.drag(point, end, 4, modifiers);
            break;
        case Deed::doubleClick:
            mouse_.doubleClick(point);
            break;
        case Deed::wheel:
            mouse_.moveTo(point);
            mouse_.wheel(action.count, modifiers);
            break;
        default:
            mouse_.click(point, buttonOf(action.deed), modifiers);
    }
}

void Monkey::useDevice(const MonkeyAction& action, ScreenPoint point) {
    if (action.deed == Deed::drag) {
        device_.drag(point, onScreen(point + ScreenPoint{action.dx, action.dy}), 4);
    } else if (action.deed == Deed::click) {
        device_.click(point);
    } else {
        device_.moveTo(point);
    }
}

void Monkey::useKeys(const MonkeyAction& action) const {
    const DesktopWindow front(GetForegroundWindow());
    if (front.processId() != program_->process().id()) {
        if (program_->settings().isMinimised()) {
            program_->settings().post(WM_SYSCOMMAND, SC_RESTORE);
        }
        // Without it the keys go to the program below, where they do no harm.
        SetForegroundWindow(program_->settings().handle());
    }
    if (action.deed == Deed::type) {
        keyboard::type(monkeyText(action.key));
        keyboard::press(action.count == 1 ? VK_TAB : VK_RETURN);
    } else {
        keyboard::press(static_cast<WORD>(action.key), static_cast<Modifiers>(action.modifiers),
                        action.count);
    }
}

void Monkey::changeState(const MonkeyAction& action) const {
    constexpr std::array states{SC_MINIMIZE, SC_RESTORE, SC_MAXIMIZE, SC_RESTORE};
    const DesktopWindow window =
        program_->window(action.target == Target::frame ? "frmResizer" : "frmSettings");
    const bool hasBox = action.target == Target::frame;
    const auto state = states[static_cast<std::size_t>(action.key)];
    if (window.isVisible() && window.isEnabled() && (state != SC_MAXIMIZE || hasBox) &&
        (state != SC_MINIMIZE || !hasBox)) {
        window.post(WM_SYSCOMMAND, static_cast<WPARAM>(state));
        window.settle();
    }
}

void Monkey::placeWindow(const MonkeyAction& action) const {
    const DesktopWindow window =
        program_->window(action.target == Target::frame ? "frmResizer" : "frmSettings");
    if (!window.isVisible() || window.isMinimised() || IsZoomed(window.handle()) != 0) {
        return;
    }
    const ScreenRect area = window.rect();
    const ScreenRect screen = screen::primaryMonitor();
    SetWindowPos(window.handle(), nullptr, screen.width() * action.x / 1400,
                 screen.height() * action.y / 1400, area.width() + action.dx / 4,
                 area.height() + action.dy / 4, SWP_NOZORDER | SWP_NOACTIVATE);
    window.settle();
}

bool Monkey::answerMenu(const MonkeyAction& action) const {
    if (!findTopLevel(program_->process().id(), "#32768").isVisible()) {
        return false;
    }
    constexpr std::array keys{VK_DOWN, VK_UP, VK_RETURN, VK_ESCAPE, VK_RIGHT};
    keyboard::press(static_cast<WORD>(keys[static_cast<std::size_t>(action.x) % keys.size()]));
    return true;
}

bool Monkey::answerBox() const {
    const DesktopWindow box = findTopLevel(program_->process().id(), "#32770");
    if (!box.isVisible()) {
        return false;
    }
    // A file dialog shows all of the machine, and nothing of it is to be touched.
    box.post(WM_COMMAND, box.item(IDNO).exists() ? IDNO : IDCANCEL);
    if (!waitUntil([&] { return !box.isVisible(); }, milliseconds{2000})) {
        box.post(WM_COMMAND, IDOK);
    }
    return true;
}

DesktopWindow Monkey::dialog() const {
    for (const char* name : ownDialogs) {
        const DesktopWindow window = program_->window(name);
        if (window.isVisible() && window.isEnabled()) {
            return window;
        }
    }
    return {};
}

bool Monkey::leaveDialogAtLength() {
    const DesktopWindow shown = dialog();
    actionsInDialog_ = shown.exists() ? actionsInDialog_ + 1 : 0;
    if (actionsInDialog_ <= longInDialog) {
        return false;
    }
    actionsInDialog_ = 0;
    shown.post(WM_CLOSE);
    return true;
}

DesktopWindow Monkey::target(const MonkeyAction& action) const {
    if (const DesktopWindow shown = dialog(); shown.exists()) {
        return shown;
    }
    const auto orControl = [&](const DesktopWindow& window) {
        return window.isVisible() ? window : program_->settings();
    };
    switch (action.target) {
        case Target::worksheet:
            return orControl(program_->worksheet());
        case Target::frame:
            return orControl(program_->window("frmResizer"));
        case Target::magnifier:
            return orControl(program_->window("frmLens"));
        case Target::panel: {
            const auto inside = program_->settings().descendants();
            std::vector<DesktopWindow> panels;
            std::ranges::copy_if(inside, std::back_inserter(panels), isPanel);
            return panels.empty()
                       ? program_->settings()
                       : panels[static_cast<std::size_t>(action.dx + 400) % panels.size()];
        }
        case Target::front: {
            const DesktopWindow front(GetForegroundWindow());
            return front.processId() == program_->process().id() ? front : program_->settings();
        }
        case Target::controlWindow:
            break;
    }
    return program_->settings();
}

std::vector<DesktopWindow> Monkey::shownWindows() const {
    std::vector<DesktopWindow> shown;
    for (const DesktopWindow& window : topLevelWindows(program_->process().id())) {
        if (window.isVisible() && window.className().starts_with("frm")) {
            shown.push_back(window);
        }
    }
    return shown;
}

void Monkey::look() const {
    for (const DesktopWindow& window : shownWindows()) {
        expectAnswers(window);
        expectOnScreen(window);
    }
    expectWorksheetInItsFrame();
}

void Monkey::expectAnswers(const DesktopWindow& window) const {
    DWORD_PTR result = 0;
    const auto answered =
        SendMessageTimeoutW(window.handle(), WM_NULL, 0, 0, SMTO_NORMAL, patience, &result);
    // It may have gone meanwhile.
    EXPECT_TRUE(answered != 0 || !window.exists()) << window.className() << " does not answer\n"
                                                   << trace();
}

void Monkey::expectOnScreen(const DesktopWindow& window) const {
    const auto seen = [&] {
        const ScreenRect area = window.rect();
        const ScreenRect all = screen::virtualScreen();
        return !window.isVisible() || window.isMinimised() ||
               window.className() == "frmCrossHair" ||
               (area.left < all.right && area.right > all.left && area.top < all.bottom &&
                area.bottom > all.top);
    };
    EXPECT_TRUE(waitUntil(seen)) << window.className() << " is off all screens, at "
                                 << window.rect() << "\n"
                                 << trace();
}

void Monkey::expectWorksheetInItsFrame() const {
    const DesktopWindow frame = program_->window("frmResizer");
    const DesktopWindow worksheet = program_->worksheet();
    const auto fits = [&] {
        if (!frame.isVisible() || frame.isMinimised() || IsZoomed(frame.handle()) != 0 ||
            !worksheet.isVisible()) {
            return true;
        }
        const ScreenRect client = frame.clientRect();
        return worksheet.rect() == ScreenRect{client.left + frameMargin, client.top + frameMargin,
                                              client.right - frameMargin,
                                              client.bottom - frameMargin};
    };
    EXPECT_TRUE(waitUntil(fits)) << "the worksheet, " << worksheet.rect()
                                 << ", has left its frame, " << frame.clientRect() << '\n'
                                 << trace();
}

void Monkey::comeToRest() {
    requireSoon("end of all dialogs and menus", [&] {
        const DesktopWindow menu = findTopLevel(program_->process().id(), "#32768");
        if (menu.isVisible()) {
            keyboard::press(VK_ESCAPE);
            return false;
        }
        if (answerBox()) {
            return false;
        }
        const DesktopWindow shown = dialog();
        if (shown.exists()) {
            shown.post(WM_CLOSE);
            shown.settle();
            return false;
        }
        return program_->settings().isEnabled();
    });
    if (program_->settings().isMinimised()) {
        program_->settings().post(WM_SYSCOMMAND, SC_RESTORE);
        waitUntil([&] { return !program_->settings().isMinimised(); });
    }
    mouse_.moveTo({3, 3});
    screen::waitUntilStill(program_->settings().rect());
}

std::vector<std::string> Monkey::panelTexts() const {
    std::vector<DesktopWindow> panels;
    std::ranges::copy_if(program_->settings().descendants(), std::back_inserter(panels), isPanel);
    std::ranges::sort(panels, {}, [](const DesktopWindow& panel) { return panel.rect().top; });
    std::vector<std::string> texts;
    for (const DesktopWindow& panel : panels) {
        std::string text = panel.className();
        for (const DesktopWindow& control : panel.descendants()) {
            // What is read off; other texts tell what a button would do now.
            if (control.name().starts_with("lbl") && control.hasStyle(WS_VISIBLE)) {
                text += " " + control.name() + "=" + control.text();
            }
        }
        texts.push_back(text);
    }
    return texts;
}

void Monkey::expectPanels(const std::vector<std::string>& shown) const {
    const auto panels = panelTexts();
    ASSERT_EQ(panels.size(), shown.size()) << trace();
    for (std::size_t i = 0; i < panels.size(); ++i) {
        // Out of view, where a low window has all of them, a panel may have no controls.
        const auto isBare = [](const std::string& text) {
            return text.find(' ') == std::string::npos;
        };
        const bool readable = !isBare(panels[i]) && !isBare(shown[i]);
        const auto part = [&](const std::string& text) {
            return readable ? text : text.substr(0, text.find(' '));
        };
        EXPECT_EQ(part(panels[i]), part(shown[i])) << trace();
    }
}

void Monkey::expectSavedTools() const {
    const SettingsFile saved = SettingsFile::read(data_.toolsFile());
    const auto panels = panelTexts();
    for (std::size_t i = 0; i <= panels.size(); ++i) {
        const auto type = saved.value("Tool " + std::to_string(i + 1), "Type");
        if (i == panels.size()) {
            EXPECT_FALSE(type.has_value()) << "a tool without a panel\n" << trace();
        } else {
            const char* expected = panels[i].starts_with("ctlSetRatioGrid") ? " 0" : " 1";
            EXPECT_EQ(type.value_or("none"), expected) << trace();
        }
    }
}

/// With the question about a set of tools that was changed, which is no document then.
void Monkey::end() {
    program_->requestClose();
    requireSoon(
        "end of the program",
        [&] { return !program_->process().isRunning() || (answerBox(), false); },
        milliseconds{30000});
    EXPECT_EQ(program_->waitForExit(), 0U) << trace();
}

void Monkey::endAndCompare() {
    comeToRest();
    const auto shown = panelTexts();
    end();
    const SettingsFile tools = SettingsFile::read(data_.toolsFile());
    SettingsFile options = SettingsFile::read(data_.optionsFile());
    start();
    expectSavedTools();
    expectPanels(shown);
    end();
    const auto mended = beyondScreen(options);
    cutHeight(options);
    EXPECT_EQ(lasting(SettingsFile::read(data_.toolsFile()), {}), lasting(tools, {})) << trace();
    EXPECT_EQ(lasting(SettingsFile::read(data_.optionsFile()), mended), lasting(options, mended))
        << trace();
}

}  // namespace ormala::test
