#include "e2e/support/Backdrop.h"

#include <utility>

#include "e2e/support/Program.h"
#include "e2e/support/StageFailure.h"
#include "support/win/Screen.h"
#include "support/win/WideText.h"

namespace ormala::test {

namespace {

std::vector<std::wstring> arguments(const BackdropLook& look, const BackdropOptions& options) {
    std::vector<std::wstring> list{wide(textOf(look))};
    if (!options.tip.empty()) {
        list.insert(list.end(), {L"--tip", wide(options.tip)});
    }
    if (!options.question.empty()) {
        list.insert(list.end(), {L"--question", wide(options.question)});
    }
    return list;
}

struct LeftBehind {
    std::unique_ptr<ChildProcess> process;
    DesktopWindow window;
    ScreenRect place;
};

LeftBehind& leftBehind() {
    static LeftBehind last;
    return last;
}

}  // namespace

bool Backdrop::takeOver() {
    LeftBehind last = std::exchange(leftBehind(), {});
    const bool serves =
        plain_ && last.process && last.process->isRunning() && last.window.isVisible() &&
        last.window.rect() == last.place &&
        last.window.send(RegisterWindowMessageW(backdropLookMessage),
                         static_cast<WPARAM>(look_.pattern), static_cast<LPARAM>(look_.color));
    if (serves) {
        process_ = std::move(last.process);
        window_ = last.window;
        place_ = last.place;
        window_.activate();
    }
    return serves;
}

void Backdrop::startAnew(const BackdropOptions& options) {
    process_ = std::make_unique<ChildProcess>(testProgramFolder() / "backdrop.exe",
                                              arguments(look_, options));
    window_ = waitForTopLevel(process_->id(), narrow(backdropClass));
    place_ = window_.rect();
}

Backdrop::Backdrop(const BackdropLook& look, const BackdropOptions& options)
    : look_(look), plain_(options.tip.empty() && options.question.empty()) {
    if (!takeOver()) {
        startAnew(options);
    }
    const ScreenRect shown = rect();
    // The first and the last pixel: other windows may already lie over the rest.
    requireSoon("backdrop on the screen", [&] {
        const ScreenPoint last{shown.right - 1, shown.bottom - 1};
        return report().painted > 0 && screen::pixel(shown.origin()) == colorAt(shown.origin()) &&
               screen::pixel(last) == colorAt(last);
    });
}

Backdrop::~Backdrop() {
    if (plain_ && process_->isRunning()) {
        leftBehind() = {std::move(process_), window_, place_};
    } else {
        close();
    }
}

Color Backdrop::colorAt(ScreenPoint point) const {
    return backdropColor(look_, point.x, point.y);
}

Picture Backdrop::picture(const ScreenRect& rect) const {
    std::vector<Color> pixels;
    for (int y = rect.top; y < rect.bottom; ++y) {
        for (int x = rect.left; x < rect.right; ++x) {
            pixels.push_back(colorAt({x, y}));
        }
    }
    return {rect, std::move(pixels)};
}

BackdropReport Backdrop::report() const {
    return reportFromText(window_.text());
}

void Backdrop::reset() const {
    window_.send(RegisterWindowMessageW(backdropResetMessage));
}

BackdropReport Backdrop::waitFor(const std::string& what,
                                 const std::function<bool(const BackdropReport&)>& wanted,
                                 milliseconds deadline) const {
    BackdropReport last;
    requireSoon(
        what + " at the backdrop",
        [&] {
            last = report();
            return wanted(last);
        },
        deadline);
    return last;
}

bool Backdrop::close() {
    window_.post(WM_CLOSE);
    return process_->waitForExit(milliseconds(3000)) == 0U;
}

}  // namespace ormala::test
