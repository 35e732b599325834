#include "canvas/ui/editform.h"
#include "document/objects.h"
#include "document/page_file.h"
#include "platform/qt/fonts.h"

#include <QApplication>
#include <QMouseEvent>
#include <benchmark/benchmark.h>

// A drag in the canvas window, from the mouse's event to the painted screen, over pages of few and of many objects.
namespace corvanta {
namespace {

constexpr int steps = 100, pageWidth = 700, pageHeight = 500; // pixels
constexpr QPoint start(10, 10);

// Objects in rows of 20; the dragged one crosses the top rows, which both pages have alike.
void fillPage(std::int64_t count)
{
    newPage();
    page().bkgwd = pageWidth;
    page().bkght = pageHeight;
    for (std::int16_t i = 0; i < count; ++i) {
        const std::int16_t index = addObject(i % 2 ? Kind::TextBox : Kind::Button);
        setObjectGeometry(index, toPixels(i / 20 * 38), toPixels(i % 20 * 35), 25, 32);
    }
}

void sendMouse(QWidget &widget, QEvent::Type type, QPoint at)
{
    const bool move = type == QEvent::MouseMove;
    const Qt::MouseButtons held = type == QEvent::MouseButtonRelease ? Qt::NoButton : Qt::LeftButton;
    QMouseEvent event(type, at, widget.mapToGlobal(at), move ? Qt::NoButton : Qt::LeftButton, held, Qt::NoModifier);
    QCoreApplication::sendEvent(&widget, &event);
    QCoreApplication::processEvents(); // paints
}

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
// The first one over a page, which makes all markers.
void selectAllByBand(benchmark::State &state)
{
    for (auto _ : state) {
        state.PauseTiming();
        {
            Editform form;
            fillPage(state.range(0));
            form.applyPageLayout();
            form.show();
            QCoreApplication::processEvents();
            const QPoint empty(pageWidth - 5, pageHeight - 2);
            sendMouse(form.pageArea(), QEvent::MouseButtonPress, empty);
            state.ResumeTiming();
            sendMouse(form.pageArea(), QEvent::MouseMove, QPoint(-1, -1));
            sendMouse(form.pageArea(), QEvent::MouseButtonRelease, QPoint(-1, -1));
            state.PauseTiming();
            newPage();
        }
        state.ResumeTiming();
    }
}
BENCHMARK(selectAllByBand)->Arg(10)->Arg(257)->Unit(benchmark::kMillisecond);

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
