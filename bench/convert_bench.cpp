#include "converter/html_template.h"
#include "document/page_file.h"

#include <benchmark/benchmark.h>

#include <fstream>
#include <iterator>

namespace corvanta {
namespace {

// A page's bytes to its template's; the largest page is to take less than 2 ms.
void convert(benchmark::State &state, const char *name)
{
    const std::filesystem::path folder = CORVANTA_TEST_DATA "/pages";
    std::ifstream in(folder / name, std::ios::binary);
    const std::string bytes{std::istreambuf_iterator<char>(in), {}};
    for (auto _ : state) {
        Page p;
        parsePage(p, bytes);
        benchmark::DoNotOptimize(htmlTemplate(p, folder));
    }
}

BENCHMARK_CAPTURE(convert, largest, "largest.ods")->Unit(benchmark::kMillisecond);
BENCHMARK_CAPTURE(convert, menu, "menu.ods")->Unit(benchmark::kMillisecond);

} // namespace
} // namespace corvanta
