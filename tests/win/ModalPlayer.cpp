#include "win/ModalPlayer.h"

#include <gtest/gtest.h>

#include <cstdint>

#include "platform/win/controlName.h"
#include "platform/win/text.h"

namespace ormala {

namespace {

constexpr UINT tickLength = 20;

/// A loop that lets timers have their turn may come to one before a key that was pressed earlier.
bool keysAreWaiting() {
    MSG message{};
    return PeekMessageW(&message, nullptr, WM_KEYFIRST, WM_KEYLAST, PM_NOREMOVE) != FALSE;
}

}  // namespace

ModalPlayer::ModalPlayer() {
    WindowDesign design;
    design.className = L"ModalPlayer";
    create(design);
    SetTimer(handle(), 1, tickLength, nullptr);
}

ModalPlayer::~ModalPlayer() {
    EXPECT_TRUE(done()) << "The player did not come to its end.";
    destroy();
}

ModalPlayer& ModalPlayer::until(std::string what, std::function<bool()> happened) {
    steps_.push_back({std::move(what), std::move(happened)});
    return *this;
}

ModalPlayer& ModalPlayer::then(std::function<void()> step) {
    return until("a step", [step = std::move(step)] {
        step();
        return true;
    });
}

ModalPlayer& ModalPlayer::key(int virtualKey) {
    return then([virtualKey] {
        PostMessageW(GetFocus(), WM_KEYDOWN, static_cast<WPARAM>(virtualKey), 1);
        PostMessageW(GetFocus(), WM_KEYUP, static_cast<WPARAM>(virtualKey), 1);
    });
}

ModalPlayer& ModalPlayer::untilActive(const std::string& className) {
    return until(className + " is active", [className] {
        const HWND active = GetActiveWindow();
        return active != nullptr && IsWindowVisible(active) != FALSE &&
               classNameOf(active) == className;
    });
}

std::optional<LRESULT> ModalPlayer::onMessage(UINT message, WPARAM /*wParam*/, LPARAM /*lParam*/) {
    if (message != WM_TIMER) {
        return std::nullopt;
    }
    if (givenUp_) {
        giveUp();
    } else if (done()) {
        // Only a window that was to be closed keeps a loop running that long.
        waitInVain("the end");
    } else if (keysAreWaiting()) {
        waitInVain("the handling of a key");
    } else {
        playNext();
    }
    return 0;
}

void ModalPlayer::playNext() {
    // A step may run a message loop of its own, in which the next ones are played.
    const std::size_t step = next_++;
    const auto happened = steps_[step].happened;
    if (happened()) {
        ticks_ = 0;
        return;
    }
    next_ = step;
    waitInVain(steps_[step].what);
}

void ModalPlayer::waitInVain(const std::string& what) {
    if (++ticks_ * static_cast<std::int64_t>(tickLength) > test::usualDeadline.count()) {
        ADD_FAILURE() << "Waited in vain for: " << what;
        givenUp_ = true;
    }
}

void ModalPlayer::giveUp() {
    next_ = steps_.size();
    if (const HWND active = GetActiveWindow(); active != nullptr) {
        PostMessageW(active, WM_CLOSE, 0, 0);
    }
}

std::string classNameOf(HWND window) {
    wchar_t text[100]{};
    GetClassNameW(window, text, 100);
    return narrow(text);
}

HWND namedChild(HWND window, std::string_view name) {
    struct Search {
        std::string_view name;
        HWND found = nullptr;
    } search{name};
    EnumChildWindows(
        window,
        [](HWND child, LPARAM parameter) -> BOOL {
            auto& wanted = *reinterpret_cast<Search*>(parameter);
            if (controlName(child) != wanted.name) {
                return TRUE;
            }
            wanted.found = child;
            return FALSE;
        },
        reinterpret_cast<LPARAM>(&search));
    return search.found;
}

}  // namespace ormala
