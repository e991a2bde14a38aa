#include "e2e/support/DesktopWindow.h"

#include <algorithm>
#include <array>
#include <functional>
#include <map>
#include <utility>

#include "e2e/support/StageFailure.h"
#include "e2e/support/placedWindows.h"
#include "support/win/WideText.h"

namespace ormala::test {

namespace {

constexpr UINT answerTime = 2000;
constexpr std::size_t longestName = 256;

BOOL CALLBACK collect(HWND handle, LPARAM windows) {
    reinterpret_cast<std::vector<DesktopWindow>*>(windows)->emplace_back(handle);
    return TRUE;
}

DesktopWindow firstOf(const std::vector<DesktopWindow>& windows, auto predicate) {
    const auto found = std::find_if(windows.begin(), windows.end(), predicate);
    return found == windows.end() ? DesktopWindow() : *found;
}

/// The first one inside, at any depth. Those behind it are not looked for.
DesktopWindow firstInside(HWND around, const std::function<bool(const DesktopWindow&)>& wanted) {
    struct Search {
        const std::function<bool(const DesktopWindow&)>& wanted;
        DesktopWindow found;
    } search{wanted, {}};
    const auto look = [](HWND handle, LPARAM object) -> BOOL {
        auto& self = *reinterpret_cast<Search*>(object);
        if (!self.wanted(DesktopWindow(handle))) {
            return TRUE;
        }
        self.found = DesktopWindow(handle);
        return FALSE;
    };
    EnumChildWindows(around, look, reinterpret_cast<LPARAM>(&search));
    return search.found;
}

DWORD styleBits(HWND handle, int index) {
    return static_cast<DWORD>(GetWindowLongPtrW(handle, index));
}

ATOM atomIn(HWND window, LPCWSTR property) {
    return static_cast<ATOM>(reinterpret_cast<UINT_PTR>(GetPropW(window, property)));
}

/// The windows that carry a name, found without asking each for the text of its own.
class Named {
  public:
    explicit Named(std::string_view name)
        : property_(GlobalFindAtomW(L"Name")), name_(GlobalFindAtomW(wide(name).c_str())) {}

    bool operator()(const DesktopWindow& window) const {
        return property_ != 0 && name_ != 0 &&
               atomIn(window.handle(), MAKEINTATOM(property_)) == name_;
    }

  private:
    ATOM property_;
    ATOM name_;
};

/// Where controls were found. To look for one again takes as many requests as there are windows,
/// and a scenario reads the same ones over and over.
class FoundControls {
  public:
    static FoundControls& instance() {
        static FoundControls found;
        return found;
    }

    DesktopWindow in(const DesktopWindow& around, std::string_view name) {
        const Named isNamed(name);
        DesktopWindow& known = known_[{around.handle(), std::string(name)}];
        // One out of sight may be another one's that has gone there.
        const bool stays = IsChild(around.handle(), known.handle()) != FALSE && known.isVisible() &&
                           isNamed(known);
        if (!stays) {
            known = firstInside(around.handle(), isNamed);
        }
        return known;
    }

  private:
    std::map<std::pair<HWND, std::string>, DesktopWindow> known_;
};

std::string described(const DesktopWindow& window) {
    return window.exists() ? window.className() + " \"" + window.text() + '"' : "(gone)";
}

}  // namespace

std::string DesktopWindow::className() const {
    std::array<wchar_t, longestName> buffer{};
    const int length = GetClassNameW(handle_, buffer.data(), static_cast<int>(buffer.size()));
    return narrow({buffer.data(), static_cast<std::size_t>(length)});
}

std::string DesktopWindow::name() const {
    const ATOM atom = atomIn(handle_, L"Name");
    std::array<wchar_t, longestName> buffer{};
    const UINT length =
        atom == 0 ? 0 : GlobalGetAtomNameW(atom, buffer.data(), static_cast<int>(buffer.size()));
    return narrow({buffer.data(), length});
}

std::string DesktopWindow::text() const {
    const auto length = send(WM_GETTEXTLENGTH).value_or(0);
    // A window may say less than it has, as a tip does.
    constexpr LRESULT leastRoom = 1024;
    std::wstring buffer(static_cast<std::size_t>(std::max(length + 1, leastRoom)), L'\0');
    const auto copied =
        send(WM_GETTEXT, buffer.size(), reinterpret_cast<LPARAM>(buffer.data())).value_or(0);
    buffer.resize(std::min(buffer.size(), static_cast<std::size_t>(copied)));
    return narrow(buffer);
}

DWORD DesktopWindow::processId() const {
    DWORD id = 0;
    GetWindowThreadProcessId(handle_, &id);
    return id;
}

bool DesktopWindow::hasProperty(const wchar_t* property) const {
    return GetPropW(handle_, property) != nullptr;
}

ScreenRect DesktopWindow::rect() const {
    RECT rect{};
    GetWindowRect(handle_, &rect);
    return screenRect(rect);
}

ScreenRect DesktopWindow::clientRect() const {
    RECT rect{};
    GetClientRect(handle_, &rect);
    POINT origin{};
    ClientToScreen(handle_, &origin);
    OffsetRect(&rect, origin.x, origin.y);
    return screenRect(rect);
}

bool DesktopWindow::hasStyle(DWORD bits) const {
    return (styleBits(handle_, GWL_STYLE) & bits) == bits;
}

bool DesktopWindow::hasExtendedStyle(DWORD bits) const {
    return (styleBits(handle_, GWL_EXSTYLE) & bits) == bits;
}

Layering DesktopWindow::layering() const {
    COLORREF key = 0;
    BYTE alpha = 0;
    DWORD flags = 0;
    Layering layering;
    if (GetLayeredWindowAttributes(handle_, &key, &alpha, &flags) != 0) {
        if ((flags & LWA_COLORKEY) != 0) {
            layering.key = key;
        }
        if ((flags & LWA_ALPHA) != 0) {
            layering.alpha = alpha;
        }
    }
    return layering;
}

std::vector<DesktopWindow> DesktopWindow::descendants() const {
    std::vector<DesktopWindow> windows;
    EnumChildWindows(handle_, collect, reinterpret_cast<LPARAM>(&windows));
    return windows;
}

DesktopWindow DesktopWindow::child(std::string_view className, std::string_view name) const {
    const Named isNamed(name);
    return firstInside(handle_, [&](const DesktopWindow& window) {
        return (name.empty() || isNamed(window)) && window.className() == className;
    });
}

DesktopWindow DesktopWindow::named(std::string_view name) const {
    return FoundControls::instance().in(*this, name);
}

void DesktopWindow::activate() const {
    using Clock = std::chrono::steady_clock;
    static constexpr milliseconds patience{500};
    SetForegroundWindow(handle_);
    requireSoon("foreground for " + described(*this), [this, asked = Clock::now()]() mutable {
        // A window that comes to the screen late can take it away; whoever plays then asks again.
        if (!isForeground() && Clock::now() - asked > patience) {
            SetForegroundWindow(handle_);
            asked = Clock::now();
        }
        return isForeground();
    });
    settle();
}

bool DesktopWindow::settle() const {
    return send(WM_NULL).has_value();
}

std::optional<LRESULT> DesktopWindow::send(UINT message, WPARAM wParam, LPARAM lParam) const {
    DWORD_PTR result = 0;
    if (SendMessageTimeoutW(handle_, message, wParam, lParam, SMTO_ABORTIFHUNG, answerTime,
                            &result) == 0) {
        return std::nullopt;
    }
    return static_cast<LRESULT>(result);
}

void DesktopWindow::post(UINT message, WPARAM wParam, LPARAM lParam) const {
    PostMessageW(handle_, message, wParam, lParam);
}

void DesktopWindow::setText(std::string_view text) const {
    send(WM_SETTEXT, 0, reinterpret_cast<LPARAM>(wide(text).c_str()));
}

void DesktopWindow::waitUntilVisible(milliseconds deadline) const {
    requireSoon(
        "sight of " + described(*this), [this] { return isVisible(); }, deadline);
}

void DesktopWindow::waitUntilHidden(milliseconds deadline) const {
    requireSoon(
        "end of the sight of " + described(*this), [this] { return !isVisible(); }, deadline);
}

void DesktopWindow::waitUntilClosed(milliseconds deadline) const {
    requireSoon(
        "closing of " + described(*this), [this] { return !exists(); }, deadline);
}

void DesktopWindow::waitForText(std::string_view text, milliseconds deadline) const {
    requireSoon(
        "text \"" + std::string(text) + "\" in " + described(*this),
        [&] { return this->text() == text; }, deadline);
}

std::vector<DesktopWindow> topLevelWindows(std::optional<DWORD> processId) {
    std::vector<DesktopWindow> windows;
    EnumWindows(collect, reinterpret_cast<LPARAM>(&windows));
    std::erase_if(windows, [&](const DesktopWindow& window) {
        return processId && window.processId() != *processId;
    });
    return windows;
}

std::vector<DesktopWindow> topLevelWindows(DWORD processId, std::string_view className) {
    const std::wstring wanted = wide(className);
    std::vector<DesktopWindow> windows;
    for (HWND each = FindWindowExW(nullptr, nullptr, wanted.c_str(), nullptr); each != nullptr;
         each = FindWindowExW(nullptr, each, wanted.c_str(), nullptr)) {
        if (const DesktopWindow window(each); window.processId() == processId) {
            windows.push_back(window);
        }
    }
    return windows;
}

DesktopWindow findTopLevel(DWORD processId, std::string_view className, std::string_view text) {
    auto windows = topLevelWindows(processId, className);
    std::stable_partition(windows.begin(), windows.end(),
                          [](const DesktopWindow& window) { return window.isVisible(); });
    return firstOf(windows, [&](const DesktopWindow& window) {
        return text.empty() || window.text() == text;
    });
}

DesktopWindow waitForTopLevel(DWORD processId, std::string_view className, std::string_view text,
                              milliseconds deadline) {
    DesktopWindow window;
    requireSoon(
        "window " + std::string(className) + " \"" + std::string(text) + '"',
        [&] {
            window = findTopLevel(processId, className, text);
            return window.isVisible();
        },
        deadline);
    window.settle();
    waitUntilPlaced({window});
    return window;
}

std::string shownTip(DWORD processId) {
    return firstOf(topLevelWindows(processId, "tooltips_class32"),
                   [](const DesktopWindow& window) { return window.isVisible(); })
        .text();
}

}  // namespace ormala::test
