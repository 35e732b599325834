#include "document/page_file.h"

#include <benchmark/benchmark.h>

#include <fstream>
#include <iterator>

namespace corvanta {
namespace {

std::string sample(const char *name)
{
    std::ifstream in(std::string(CORVANTA_TEST_DATA "/pages/") + name, std::ios::binary);
    return {std::istreambuf_iterator<char>(in), {}};
}

// The time of the processor per byte of a page of so many bytes.
void countPerByte(benchmark::State &state, std::size_t bytes)
{
    using benchmark::Counter;
    state.counters["per_byte"] =
        Counter(static_cast<double>(bytes), Counter::kIsIterationInvariantRate | Counter::kInvert);
}

void decode(benchmark::State &state, const char *name)
{
    const std::string bytes = sample(name);
    for (auto _ : state) {
        Page p;
        parsePage(p, bytes);
        benchmark::DoNotOptimize(p);
    }
    countPerByte(state, bytes.size());
}

void encode(benchmark::State &state, const char *name)
{
    Page p;
    const std::string bytes = sample(name);
    parsePage(p, bytes);
    for (auto _ : state)
        benchmark::DoNotOptimize(serialisePage(p));
    countPerByte(state, bytes.size());
}

BENCHMARK_CAPTURE(decode, largest, "largest.ods");
BENCHMARK_CAPTURE(encode, largest, "largest.ods");
BENCHMARK_CAPTURE(decode, menu, "menu.ods");
BENCHMARK_CAPTURE(encode, menu, "menu.ods");

} // namespace
} // namespace corvanta
