#include "canvas/gestures.h"
#include "document/objects.h"
#include "document/page_file.h"

#include <benchmark/benchmark.h>

// A drag over pages of few and of many objects: the time per processed move is to be alike.
namespace corvanta {
namespace {

constexpr int steps = 1000, pageSide = 2000;

// Objects in rows of 20; the dragged one crosses the top rows, which both pages have alike.
void fillPage(std::int64_t count)
{
    newPage();
    page().bkgwd = page().bkght = pageSide;
    for (std::int16_t i = 0; i < count; ++i) {
        const std::int16_t index = addObject(i % 2 ? Kind::TextBox : Kind::Button);
        setObjectGeometry(index, toPixels(i / 20 * 120), toPixels(i % 20 * 95), 25, 85);
    }
}

void moveObjectOverPage(benchmark::State &state)
{
    fillPage(state.range(0));
    std::int64_t repaints = 0;
    canvasEvents() = {};
    canvasEvents().drawOutline.listen([](const Rect &r) { benchmark::DoNotOptimize(r.left); });
    canvasEvents().repaintUnder.listen([&](std::int16_t) { ++repaints; });
    for (auto _ : state) {
        state.PauseTiming();
        cancelGesture();
        pressObject(0, {.at = {10, 10}, .left = true});
        state.ResumeTiming();
        for (int i = 1; i <= steps; ++i)
            moveObject({.at = {10 + i % 700, 10 + i % 60}, .left = true});
    }
    cancelGesture();
    state.counters["time_per_step"] = benchmark::Counter(static_cast<double>(state.iterations()) * steps,
                                                         benchmark::Counter::kIsRate | benchmark::Counter::kInvert);
    state.counters["repaints_per_step"] =
        static_cast<double>(repaints) / (static_cast<double>(state.iterations()) * steps);
    canvasEvents() = {};
    newPage();
}
BENCHMARK(moveObjectOverPage)->Arg(10)->Arg(257);

} // namespace
} // namespace corvanta
