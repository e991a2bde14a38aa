#include <windows.h>

#include <psapi.h>

#include <cstdio>
#include <functional>
#include <string>
#include <vector>

#include "Figures.h"
#include "ProcessorTime.h"
#include "benchmarks.h"
#include "support/win/Wait.h"
#include "win/LensStage.h"

namespace ormala::bench {

namespace {

/// Where the mouse rests, so that nothing that is captured lies under the magnifier.
constexpr PixelPoint corner{1, 1};

/// A window that shows what a plain program would: the captured rectangle, stretched.
class PlainStretch : public Window {
  public:
    PlainStretch(PixelSize image, int factor)
        : image_(image), source_{image.width / factor, image.height / factor} {
        captured_.resize(source_);
        stretched_.resize(image);
        WindowDesign design;
        design.className = L"PlainStretch";
        design.style = WS_POPUP;
        design.extendedStyle = WS_EX_TOPMOST | WS_EX_TOOLWINDOW;
        design.place = {300, 60, 300 + image.width, 60 + image.height};
        create(design);
        ShowWindow(handle(), SW_SHOWNA);
    }
    ~PlainStretch() override { destroy(); }

    void run(PixelPoint from) const {
        {
            const WindowContext screen(nullptr);
            BitBlt(captured_.context(), 0, 0, source_.width, source_.height, screen.get(), from.x,
                   from.y, SRCCOPY);
        }
        StretchBlt(stretched_.context(), 0, 0, image_.width, image_.height, captured_.context(), 0,
                   0, source_.width, source_.height, SRCCOPY);
        const WindowContext window(handle());
        BitBlt(window.get(), 0, 0, image_.width, image_.height, stretched_.context(), 0, 0,
               SRCCOPY);
    }

  private:
    std::optional<LRESULT> onMessage(UINT, WPARAM, LPARAM) override { return std::nullopt; }

    PixelSize image_;
    PixelSize source_;
    BackBuffer captured_;
    BackBuffer stretched_;
};

void moveMouse(PixelPoint place) {
    SetCursorPos(place.x, place.y);
    test::pause(test::milliseconds(1));
}

/// Times frames around a mouse that moves, so that the captured rectangle starts where it is told.
void timeFrames(PixelSize source, std::vector<double>& times,
                const std::function<void(PixelPoint from)>& frame) {
    constexpr int rounds = 30;
    test::pause(test::milliseconds(100));
    for (int i = 0; i < rounds; ++i) {
        const PixelPoint from{2 + i % 2 * 3, 2 + i % 3};
        moveMouse({source.width / 2 + from.x, source.height / 2 + from.y});
        times.push_back(elapsed([&] {
            frame(from);
            GdiFlush();
        }));
    }
}

/// Each frame shows another part of the screen than the one before.
void frames(const LensOptions& options, PixelSize image, double mostRatio,
            const std::string& what) {
    constexpr int blocks = 6;
    const LensBackdrop backdrop;
    NotedLensCommands commands;
    const PixelSize source{image.width / options.factor, image.height / options.factor};
    frmLens lens(commands);
    lens.setOptions(options);
    SetWindowPos(lens.handle(), HWND_TOPMOST, 300, 60, 0, 0, SWP_NOSIZE | SWP_NOACTIVATE);
    sizeLensImage(lens, image);
    const PlainStretch stretch(image, options.factor);
    std::vector<double> plain;
    std::vector<double> lensFrames;
    for (int block = 0; block < blocks; ++block) {
        // In turns, so that both meet the same state of the machine, and never one over the other.
        stretch.setVisible(false);
        lens.show(nullptr);
        KillTimer(lens.handle(), frmLens::tmrMain);
        timeFrames(source, lensFrames, [&](PixelPoint) { lens.Update(); });
        lens.hide();
        stretch.setVisible(true);
        timeFrames(source, plain, [&](PixelPoint from) { stretch.run(from); });
    }
    report(what + ", factor " + std::to_string(options.factor) + ", " +
               std::to_string(image.width) + " x " + std::to_string(image.height),
           median(lensFrames), "ms", {median(plain), "plain capture and stretch", mostRatio});
}

constexpr int idleSeconds = 10;

/// Processor time of the magnifier in a time in which nothing happens.
void idleLens(bool shown) {
    NotedLensCommands commands;
    const LensBackdrop backdrop;
    frmLens lens(commands);
    SetWindowPos(lens.handle(), nullptr, 500, 300, 0, 0,
                 SWP_NOSIZE | SWP_NOZORDER | SWP_NOACTIVATE);
    moveMouse(corner);
    if (shown) {
        lens.show(nullptr);
    }
    test::pause(test::milliseconds(500));
    const double before = processorTime();
    idleFor(idleSeconds * 1000);
    const double used = processorTime() - before;
    const double onePerCent = idleSeconds * 1000 / 100.0;
    if (shown) {
        report("10 s of the magnifier, nothing changing", used, "ms",
               {1.5 * onePerCent, "one and a half per cent of a core", 1});
    } else {
        report("10 s of the magnifier, hidden", used, "ms",
               {onePerCent / 2, "half a per cent of a core", 1});
    }
}

/// How many frames of the timer come in a second, each of another picture.
void frameRate() {
    const LensBackdrop backdrop;
    NotedLensCommands commands;
    frmLens lens(commands);
    lens.show(nullptr);
    const int before = commands.refreshes;
    int moves = 0;
    const auto hasShownAll = [&] {
        SetCursorPos(100 + ++moves % 50, 100);
        return commands.refreshes >= before + 2;
    };
    const double time = elapsed([&] { test::waitUntil(hasShownAll, test::milliseconds(30000)); });
    constexpr double frames = 600;
    std::printf("%-46s %9.1f per second\n", "frames of the magnifier", frames * 1000 / time);
    std::fflush(stdout);
}

struct Resources {
    std::size_t bytes = 0;
    /// Of the wrappers: held now, and taken from the start on.
    long held = 0;
    long taken = 0;
};

Resources resources() {
    PROCESS_MEMORY_COUNTERS counters{};
    GetProcessMemoryInfo(GetCurrentProcess(), &counters, sizeof counters);
    return {counters.PagefileUsage, HandleCount::held(), HandleCount::taken()};
}

}  // namespace

void lens() {
    constexpr PixelSize images[] = {{300, 300}, {1600, 1000}};
    for (const PixelSize image : images) {
        for (const int factor : {1, 4, 10}) {
            frames(bareLens(factor), image, 1.1, "bare magnifier");
            frames(fullLens(factor), image, 1.4, "magnifier with all");
        }
    }
    frameRate();
    idleLens(true);
    idleLens(false);
}

void lensSoak() {
    const LensBackdrop backdrop;
    NotedLensCommands commands;
    frmLens lens(commands);
    KillTimer(lens.handle(), frmLens::tmrMain);
    lens.show(nullptr);
    constexpr int soakFrames = 100000;
    const auto run = [&lens](int count) {
        for (int i = 0; i < count; ++i) {
            // Another mark each time, so that each frame is drawn.
            LensOptions options = lens.options();
            if (i % 1000 == 0) {
                options.factor = 1 + i / 1000 % mostFactor;
                lens.setOptions(options);
                test::pause(test::milliseconds(1));
            }
            lens.mnuLensHotSpot_Click();
        }
    };
    run(2000);
    const Resources before = resources();
    run(soakFrames);
    const Resources after = resources();
    std::printf(
        "%d frames: %zu KB before, %zu KB after; handles %ld, %ld, of %ld taken meanwhile\n",
        soakFrames, before.bytes / 1024, after.bytes / 1024, before.held, after.held,
        after.taken - before.taken);
}

}  // namespace ormala::bench
