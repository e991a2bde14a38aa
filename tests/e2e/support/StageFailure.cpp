#include "e2e/support/StageFailure.h"

#include <gtest/gtest.h>

#include <cstdlib>
#include <fstream>
#include <memory>

#include "e2e/support/DesktopWindow.h"
#include "support/win/PngFile.h"
#include "support/win/Screen.h"

namespace ormala::test {

namespace {

std::string currentTestName() {
    const auto* test = testing::UnitTest::GetInstance()->current_test_info();
    return test == nullptr ? "stage" : std::string(test->test_suite_name()) + '.' + test->name();
}

void describeWindows(std::ostream& out) {
    for (const DesktopWindow& window : topLevelWindows()) {
        if (window.isVisible()) {
            out << window.className() << " \"" << window.text() << "\" " << window.rect()
                << (window.isTopmost() ? " topmost" : "")
                << (window.isForeground() ? " foreground" : "") << '\n';
        }
    }
}

std::string classOf(HWND window) {
    return window == nullptr ? "none" : DesktopWindow(window).className();
}

/// Who gets what the mouse does, and the keys.
void describeInput(std::ostream& out) {
    POINT mouse{};
    GetCursorPos(&mouse);
    const HWND under = WindowFromPoint(mouse);
    GUITHREADINFO info{};
    info.cbSize = sizeof(info);
    GetGUIThreadInfo(0, &info);
    out << "mouse at " << ScreenPoint{mouse.x, mouse.y} << " over " << classOf(under) << " of "
        << classOf(GetAncestor(under, GA_ROOT)) << ", held by " << classOf(info.hwndCapture)
        << ", keyboard at " << classOf(info.hwndFocus) << '\n';
}

void dropArtefacts() {
    if (const auto folder = artefactFolder()) {
        std::filesystem::remove(*folder / (currentTestName() + ".png"));
        std::filesystem::remove(*folder / (currentTestName() + ".txt"));
    }
}

/// A test that is tried again may pass then.
void setArtefactsAside() {
    const auto folder = artefactFolder();
    for (const char* const kind : {".png", ".txt"}) {
        const std::string name = currentTestName();
        if (folder && std::filesystem::exists(*folder / (name + kind))) {
            std::filesystem::rename(*folder / (name + kind),
                                    *folder / (name + " (earlier)" + kind));
        }
    }
}

class ArtefactKeeper : public testing::EmptyTestEventListener {
    void OnTestStart(const testing::TestInfo&) override { setArtefactsAside(); }

    void OnTestPartResult(const testing::TestPartResult& result) override {
        if (result.failed()) {
            keepArtefacts();
        }
    }

    /// A failure that the test expected leaves none.
    void OnTestEnd(const testing::TestInfo& info) override {
        if (info.result()->Passed()) {
            dropArtefacts();
        }
    }
};

}  // namespace

void failStage(const std::string& message) {
    keepArtefacts();
    throw StageFailure(message);
}

void requireSoon(const std::string& what, const std::function<bool()>& predicate,
                 milliseconds deadline) {
    if (!waitUntil(predicate, deadline)) {
        failStage("no " + what);
    }
}

std::optional<std::filesystem::path> artefactFolder() {
    const wchar_t* name = _wgetenv(L"ORMALA_ARTIFACTS");
    if (name == nullptr || *name == L'\0') {
        return std::nullopt;
    }
    const std::filesystem::path folder(name);
    std::filesystem::create_directories(folder);
    return folder;
}

void keepArtefacts() {
    const auto folder = artefactFolder();
    const std::string name = currentTestName();
    if (!folder || std::filesystem::exists(*folder / (name + ".png"))) {
        return;
    }
    savePng(screen::capture(screen::virtualScreen()), *folder / (name + ".png"));
    std::ofstream list(*folder / (name + ".txt"));
    describeWindows(list);
    describeInput(list);
}

void keepArtefactsOfFailures() {
    testing::UnitTest::GetInstance()->listeners().Append(
        std::make_unique<ArtefactKeeper>().release());
}

}  // namespace ormala::test
