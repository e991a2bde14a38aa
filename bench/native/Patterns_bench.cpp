#include <benchmark/benchmark.h>

#include "modAPI/transforms.h"
#include "stencil/PatternCurves.h"

// All patterns turned into worksheet pixels, beside three rotations of as many points.

namespace ormala {
namespace {

class Counter : public PatternReceiver {
  public:
    void segment(Point p1, Point p2) override {
        benchmark::DoNotOptimize(p1);
        benchmark::DoNotOptimize(p2);
        points += 2;
    }
    void polyline(std::span<const Point> list) override {
        benchmark::DoNotOptimize(list.data());
        points += list.size();
    }
    void bezier(const BezierEllipse& list) override {
        benchmark::DoNotOptimize(list);
        points += list.size();
    }

    std::size_t points = 0;
};

std::size_t drawAll() {
    Counter counter;
    PatternCurves curves;
    const PatternPlacement placement{0.3, {100, 80, 700, 480}, 0.7, 2};
    for (const PatternRecord& pattern : PatternTable::instance().records()) {
        curves.draw(pattern, placement, counter);
    }
    return counter.points;
}

void patterns(benchmark::State& state) {
    for (auto _ : state) {
        benchmark::DoNotOptimize(drawAll());
    }
}
BENCHMARK(patterns)->Name("patterns/work");

void rotations(benchmark::State& state) {
    const std::size_t count = 3 * drawAll();
    for (auto _ : state) {
        Point point{700, 480};
        for (std::size_t i = 0; i < count; ++i) {
            point = RotatePoint(400, 280, point.x, point.y, 0.7);
            benchmark::DoNotOptimize(point);
        }
    }
}
BENCHMARK(rotations)->Name("patterns/limit");

}  // namespace
}  // namespace ormala
