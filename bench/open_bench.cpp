#include "canvas/ui/editform.h"
#include "document/page_file.h"
#include "platform/paths.h"
#include "platform/qt/fonts.h"

#include <QApplication>
#include <QPixmap>
#include <benchmark/benchmark.h>

namespace corvanta {
namespace {

// From the file to the painted canvas window.
void openAndPaint(benchmark::State &state, const char *name)
{
    Editform form;
    const std::string path = drivePath(std::string(CORVANTA_TEST_DATA "/pages/") + name);
    newPage();
    form.show();
    editing().msgflag = false;
    for (auto _ : state) {
        openPage(path);
        benchmark::DoNotOptimize(form.grab());
    }
    newPage();
}

BENCHMARK_CAPTURE(openAndPaint, largest, "largest.ods")->Unit(benchmark::kMillisecond);
BENCHMARK_CAPTURE(openAndPaint, menu, "menu.ods")->Unit(benchmark::kMillisecond);

} // namespace
} // namespace corvanta

int main(int argc, char **argv)
{
    qputenv("QT_QPA_PLATFORM", "offscreen");
    QApplication application(argc, argv);
    corvanta::registerFontSubstitutions();
    benchmark::Initialize(&argc, argv);
    benchmark::RunSpecifiedBenchmarks();
    return 0;
}
