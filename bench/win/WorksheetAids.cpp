#include <cstdio>
#include <string>
#include <vector>

#include "Figures.h"
#include "benchmarks.h"
#include "support/win/PaintCount.h"
#include "support/win/Wait.h"
#include "win/TestSheet.h"

namespace ormala::bench {

namespace {

constexpr PixelSize largeScreen{3840, 2160};
/// After it the cross hair may move again.
constexpr test::milliseconds longerThanTheLimit{25};

double repaint(TestSheet& sheet, const BackgroundGrid& grid) {
    sheet.aids.grid = grid;
    return elapsed([&] {
        sheet.window().aidsChanged();
        GdiFlush();
    });
}

}  // namespace

void gridRepaint() {
    TestSheet sheet(largeScreen);
    constexpr Grid steps{5, 5, 0, 0};
    const struct {
        const char* name;
        BackgroundGrid grid;
    } looks[] = {{"points", {true, 1, 2, 0x7D7D7D, steps}},
                 {"lines", {true, 2, 2, 0x7D7D7D, steps}},
                 {"dashed lines", {true, 2, 1, 0x7D7D7D, steps}},
                 {"wide lines", {true, 2, 4, 0x7D7D7D, steps}}};
    for (const auto& [name, grid] : looks) {
        std::vector<double> times;
        std::vector<double> plain;
        for (int i = 0; i < 40; ++i) {
            plain.push_back(repaint(sheet, {}));
            times.push_back(repaint(sheet, grid));
        }
        report("repaint of a grid of " + std::string(name) + ", 3840 x 2160", median(times), "ms",
               {median(plain), "the repaint without a grid", 1.5});
    }
}

void crossHairMoves() {
    TestSheet sheet(largeScreen);
    sheet.aids.crossHair = true;
    sheet.window().aidsChanged();
    const test::PaintCount repaints(sheet.window().handle());
    std::vector<double> times;
    std::vector<double> without;
    for (int i = 0; i < 200; ++i) {
        const int x = 100 + i * 37 % 1500;
        const int y = 100 + i * 23 % 800;
        SetCursorPos(20 + x, 20 + y);
        test::pause(longerThanTheLimit);
        times.push_back(elapsed([&] {
            sheet.mouse(WM_MOUSEMOVE, 0, x, y);
            GdiFlush();
        }));
        // Too early for another move of the lines.
        without.push_back(elapsed([&] { sheet.mouse(WM_MOUSEMOVE, 0, x, y); }));
    }
    std::printf("%-46s %9.3f ms   %.3f ms without it, %d repaints of the worksheet\n",
                "a move of the cross hair, 3840 x 2160", median(times), median(without),
                repaints.count());
    std::fflush(stdout);
}

}  // namespace ormala::bench
