#include "bench/full_page.h"
#include "canvas/selection.h"
#include "document/history.h"
#include "platform/qt/fonts.h"
#include "platform/qt/qt_clipboard.h"
#include "shell/commands.h"

#include <benchmark/benchmark.h>
#include <functional>

// What an author does with all objects of a page at once, from the act to the painted window.
namespace corvanta {
namespace {

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

// An act in a window whose objects are all chosen; the page before it is made again for each.
void actOnAll(benchmark::State &state, const std::function<void()> &before, const std::function<void(QWidget &)> &act)
{
    for (auto _ : state) {
        state.PauseTiming();
        {
            Editform form;
            startHistory();
            fillPage(state.range(0));
            resetHistory();
            form.applyPageLayout();
            form.show();
            selectAllObjects();
            before();
            QCoreApplication::processEvents();
            state.ResumeTiming();
            act(*form.findChild<QWidget *>("but1"));
            QCoreApplication::processEvents(); // paints
            state.PauseTiming();
            stopHistory();
            newPage();
        }
        state.ResumeTiming();
    }
}

void run(Command command, benchmark::State &state, std::initializer_list<Command> before = {})
{
    actOnAll(
        state, [&] { std::for_each(before.begin(), before.end(), runCommand); },
        [&](QWidget &) { runCommand(command); });
}

void moveAll(benchmark::State &state)
{
    actOnAll(
        state, [] {},
        [](QWidget &first) {
            sendMouse(first, QEvent::MouseButtonPress, {10, 10});
            sendMouse(first, QEvent::MouseMove, {16, 14});
            sendMouse(first, QEvent::MouseButtonRelease, {16, 14});
        });
}
void deleteAll(benchmark::State &state) { run(Command::Delete, state); }
void undoDeleteAll(benchmark::State &state) { run(Command::Undo, state, {Command::Delete}); }
void copyAll(benchmark::State &state) { run(Command::Copy, state); }
void pasteAll(benchmark::State &state) { run(Command::Paste, state, {Command::Cut}); }

BENCHMARK(moveAll)->Arg(257)->Unit(benchmark::kMillisecond);
BENCHMARK(deleteAll)->Arg(257)->Unit(benchmark::kMillisecond);
BENCHMARK(undoDeleteAll)->Arg(257)->Unit(benchmark::kMillisecond);
BENCHMARK(copyAll)->Arg(257)->Unit(benchmark::kMillisecond);
BENCHMARK(pasteAll)->Arg(257)->Unit(benchmark::kMillisecond);

} // namespace
} // namespace corvanta

int main(int argc, char **argv)
{
    qputenv("QT_QPA_PLATFORM", "offscreen");
    QApplication application(argc, argv);
    corvanta::registerFontSubstitutions();
    corvanta::installClipboard();
    benchmark::Initialize(&argc, argv);
    benchmark::RunSpecifiedBenchmarks();
    return 0;
}
