#include "document/events.h"
#include "document/history.h"
#include "document/objects.h"
#include "document/page_file.h"
#include "platform/paths.h"

#include <algorithm>
#include <benchmark/benchmark.h>

// A step of the history and an undo on the largest page.
namespace corvanta {
namespace {

void openLargest()
{
    startHistory();
    editing().msgflag = false;
    openPage(drivePath(CORVANTA_TEST_DATA "/pages/largest.ods"));
}

void step(benchmark::State &state)
{
    openLargest();
    const std::size_t before = historyMemory();
    std::int64_t steps = 0;
    for (auto _ : state) {
        pageEdited("Move");
        ++steps;
    }
    state.counters["bytes_per_step"] = static_cast<double>(historyMemory() - before) /
                                       static_cast<double>(std::min<std::int64_t>(steps, historySteps));
    stopHistory();
    newPage();
}
BENCHMARK(step)->Unit(benchmark::kMicrosecond);

void undoAndRedo(benchmark::State &state)
{
    openLargest();
    setObjectGeometry(0, 1, 1, 20, 20);
    pageEdited("Move");
    for (auto _ : state) {
        undoEdit();
        redoEdit();
    }
    stopHistory();
    newPage();
}
BENCHMARK(undoAndRedo)->Unit(benchmark::kMicrosecond);

} // namespace
} // namespace corvanta
