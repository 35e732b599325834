#include "bench/full_page.h"
#include "platform/qt/fonts.h"

#include <benchmark/benchmark.h>

// A drag in the canvas window, from the mouse's event to the painted screen, over pages of few and of many objects.
namespace corvanta {
namespace {

constexpr int steps = 100;
constexpr QPoint start(10, 10);

void dragObjectOverPage(benchmark::State &state)
{
    Editform form;
    fillPage(state.range(0));
    form.applyPageLayout();
    form.show();
    QCoreApplication::processEvents();
    auto &widget = *form.findChild<QWidget *>("but1");
    for (auto _ : state) {
        sendMouse(widget, QEvent::MouseButtonPress, start);
        for (int i = 1; i <= steps; ++i)
            sendMouse(widget, QEvent::MouseMove, start + QPoint(i * 6 % 600, i % 60));
        state.PauseTiming();
        cancelGesture();
        sendMouse(widget, QEvent::MouseButtonRelease, start);
        state.ResumeTiming();
    }
    state.counters["time_per_step"] = benchmark::Counter(static_cast<double>(state.iterations()) * steps,
                                                         benchmark::Counter::kIsRate | benchmark::Counter::kInvert);
    newPage();
}
BENCHMARK(dragObjectOverPage)->Arg(10)->Arg(257)->Unit(benchmark::kMillisecond);

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
