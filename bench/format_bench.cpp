#include "document/page_file.h"

#include <benchmark/benchmark.h>

#include <chrono>
#include <fstream>
#include <functional>
#include <iterator>

namespace corvanta {
namespace {

std::string sample(const char *name)
{
    std::ifstream in(std::string(CORVANTA_TEST_DATA "/pages/") + name, std::ios::binary);
    return {std::istreambuf_iterator<char>(in), {}};
}

// Runs an action on a sample of so many bytes and counts nanoseconds per byte.
void measure(benchmark::State &state, std::size_t bytes, const std::function<void()> &action)
{
    const auto start = std::chrono::steady_clock::now();
    for (auto _ : state)
        action();
    const std::chrono::duration<double, std::nano> taken = std::chrono::steady_clock::now() - start;
    state.counters["ns_per_byte"] =
        taken.count() / static_cast<double>(state.iterations()) / static_cast<double>(bytes);
}

void decode(benchmark::State &state, const char *name)
{
    const std::string bytes = sample(name);
    measure(state, bytes.size(), [&] {
        Page p;
        parsePage(p, bytes);
        benchmark::DoNotOptimize(p);
    });
}

void encode(benchmark::State &state, const char *name)
{
    Page p;
    const std::string bytes = sample(name);
    parsePage(p, bytes);
    measure(state, bytes.size(), [&] { benchmark::DoNotOptimize(serialisePage(p)); });
}

BENCHMARK_CAPTURE(decode, largest, "largest.ods");
BENCHMARK_CAPTURE(encode, largest, "largest.ods");
BENCHMARK_CAPTURE(decode, menu, "menu.ods");
BENCHMARK_CAPTURE(encode, menu, "menu.ods");

} // namespace
} // namespace corvanta
