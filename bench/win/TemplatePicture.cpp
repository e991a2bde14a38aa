#include <vector>

#include "Figures.h"
#include "benchmarks.h"
#include "win/LayeredPicture.h"

namespace ormala::bench {

namespace {

/// Lines that the system can key out too.
constexpr int fewLines = 8;
constexpr PixelRect tool{600, 400, 800, 550};

/// A change of that part of the picture, until the system has it.
double change(LayeredPicture& window, const PixelRect& area) {
    std::vector<double> times;
    for (int i = 0; i < 15; ++i) {
        window.fill({tool.left, tool.top, tool.right, tool.top + 2},
                    i % 2 == 0 ? LayeredPicture::ink : LayeredPicture::key);
        times.push_back(elapsed([&] { window.paint(area); }));
    }
    return median(times);
}

}  // namespace

void templatePicture(PixelSize size) {
    const RECT place{0, 0, size.width, size.height};
    const std::string where =
        ", " + std::to_string(size.width) + " x " + std::to_string(size.height);
    const struct {
        std::string name;
        PixelRect area;
    } changes[] = {{"change of 200 x 150 of a template" + where, tool},
                   {"change of all of a template" + where, {0, 0, size.width, size.height}}};
    for (const auto& [name, area] : changes) {
        double keyed = 0;
        {
            LayeredPicture window(place, std::nullopt);
            window.drawLines(fewLines);
            window.paint(window.all());
            keyed = change(window, area);
        }
        LayeredPicture window(place, 0);
        window.drawLines(fewLines);
        window.paint(window.all());
        report(name + " by pixels", change(window, area), "ms", {keyed, "the same by a key"});
        window.drawLines(2000);
        window.paint(window.all());
        report(name + ", 2,000 lines, by pixels", change(window, area), "ms",
               {keyed, "few lines by a key"});
    }
}

}  // namespace ormala::bench
