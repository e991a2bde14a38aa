#include <benchmark/benchmark.h>

#include "stencil/ctlRatioGrid.h"
#include "support/OwnToolSettings.h"
#include "support/QuietToolHost.h"

// All that a step of a drag computes without painting, beside the drawing of the same stencil into
// nothing.

namespace ormala {
namespace {

class EmptyHost : public QuietToolHost {
  public:
    void repaint(const OverlayItem& /*item*/, const DirtyRegion& region) override {
        benchmark::DoNotOptimize(region.rects().data());
    }
};

class EmptyCanvas : public Canvas {
  public:
    PixelRect visible() const override { return {0, 0, 1920, 1080}; }
    void line(const Pen&, PixelPoint from, PixelPoint to) override {
        benchmark::DoNotOptimize(from);
        benchmark::DoNotOptimize(to);
    }
    void polyline(const Pen&, std::span<const PixelPoint> points) override {
        benchmark::DoNotOptimize(points.data());
    }
    void bezier(const Pen&, std::span<const PixelPoint> points) override {
        benchmark::DoNotOptimize(points.data());
    }
    void shape(const ShapeFace& face) override { benchmark::DoNotOptimize(face); }
    void text(const PixelRect& box, const TextFace&) override { benchmark::DoNotOptimize(box); }
};

struct Stencil {
    EmptyHost host;
    OwnToolSettings settings;
    SpecialRatios ratios{[](int, std::string_view text) { return std::string(text); }, {}};
    ctlRatioGrid tool{host, settings, ratios};

    Stencil() {
        tool.resize({1920, 1080});
        tool.setEditMode(true);
        PatternList patterns;
        const int indices[] = {6, 7, 10, 14, 15};
        for (std::size_t i = 0; i < patterns.size(); ++i) {
            patterns[i].Pattern = indices[i];
        }
        tool.setPatternList(patterns);
        tool.setRectBound({660, 340, 1259, 739});
    }
};

void dragStep(benchmark::State& state) {
    Stencil stencil;
    const Point at = stencil.tool.grips()[0].center();
    MouseInput input{mouseButton::left, 0, static_cast<float>(at.x), static_cast<float>(at.y)};
    stencil.tool.mouseDown(input, {});
    float step = 1;
    for (auto _ : state) {
        input.x += step;
        step = -step;
        stencil.tool.mouseMove(input, {});
    }
}
BENCHMARK(dragStep)->Name("step of a drag/work");

void drawing(benchmark::State& state) {
    const Stencil stencil;
    EmptyCanvas canvas;
    for (auto _ : state) {
        stencil.tool.draw(canvas);
    }
}
BENCHMARK(drawing)->Name("step of a drag/limit");

}  // namespace
}  // namespace ormala
