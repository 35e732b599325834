#include "bench/full_page.h"
#include "canvas/selection.h"
#include "platform/paths.h"
#include "platform/post.h"
#include "platform/qt/fonts.h"
#include "platform/qt/qt_pictures.h"

#include <QImage>
#include <QKeyEvent>
#include <QTemporaryDir>
#include <benchmark/benchmark.h>
#include <cstdlib>
#include <filesystem>
#include <fstream>
#include <string>

// A page of 200 buttons, each with a picture of 5,700 by 5,700 pixels of its own.
namespace corvanta {
namespace {

constexpr int side = 5700, buttons = 200;

// The peak of this process's memory, in megabytes.
double peakMemory()
{
    std::ifstream status("/proc/self/status");
    std::string word;
    while (status >> word && word != "VmHWM:") {
    }
    double kilobytes = 0;
    status >> kilobytes;
    return kilobytes / 1024;
}

std::string pageWithPictures(const std::filesystem::path &folder)
{
    QImage image(side, side, QImage::Format_RGB32);
    image.fill(Qt::red);
    image.save(QString::fromStdString((folder / "0.png").string()));
    fillPage(0);
    for (int i = 0; i < buttons; ++i) {
        const std::string name = std::to_string(i) + ".png";
        std::error_code same;
        std::filesystem::create_hard_link(folder / "0.png", folder / name, same);
        const std::int16_t index = addObject(Kind::Button);
        setObjectGeometry(index, toPixels(i / 20 * 38), toPixels(i % 20 * 35), 25, 32);
        page().objects[static_cast<std::size_t>(index)].srcfile = name;
        elementOf(page(), index)->Caption.clear();
        elementOf(page(), index)->font.FontName = "Arial"; // a short one: the file has its limit
    }
    const std::string bytes = serialisePage(page());
    std::ofstream(folder / "page.ods", std::ios::binary) << bytes;
    if (bytes.size() >= fileLimit)
        std::abort();
    return drivePath((folder / "page.ods").string());
}

void answerKey(Editform &form)
{
    for (const QEvent::Type type : {QEvent::KeyPress, QEvent::KeyRelease}) {
        QKeyEvent event(type, Qt::Key_Delete, Qt::NoModifier);
        QCoreApplication::sendEvent(&form.pageArea(), &event);
    }
}

// From the file to the answered key, and on to the last picture.
void openAndPressKey(benchmark::State &state, bool toTheEnd)
{
    const QTemporaryDir folder;
    const std::string file = pageWithPictures(folder.path().toStdString());
    int arrivals = 0;
    const EventConnection arrival = pictureEvents().arrived.connect([&](const Picture &) { ++arrivals; });
    Editform form;
    bool answered = false;
    form.commands.deleteCurrent = [&] { answered = true; };
    form.show();
    for (auto _ : state) {
        state.PauseTiming();
        newPage();
        installPictureLoader();
        QCoreApplication::processEvents();
        arrivals = 0;
        editing().curdir = drivePath(folder.path().toStdString()) + "\\";
        state.ResumeTiming();
        openPage(file);
        QCoreApplication::processEvents(); // paints
        setCurrentObject(0);
        answerKey(form);
        while (toTheEnd && arrivals < buttons)
            QCoreApplication::processEvents(QEventLoop::WaitForMoreEvents);
        if (!answered)
            state.SkipWithError("the key was not answered");
    }
    state.counters["peak MB"] = peakMemory();
    state.counters["kept MB"] = static_cast<double>(pictureCache()->keptBytes()) / (1024 * 1024);
    newPage();
    removePictureLoader();
}

BENCHMARK_CAPTURE(openAndPressKey, answered, false)->Unit(benchmark::kMillisecond)->Iterations(5)->UseRealTime();
BENCHMARK_CAPTURE(openAndPressKey, allShown, true)->Unit(benchmark::kMillisecond)->Iterations(1)->UseRealTime();

} // namespace
} // namespace corvanta

int main(int argc, char **argv)
{
    qputenv("QT_QPA_PLATFORM", "offscreen");
    QApplication application(argc, argv);
    corvanta::registerFontSubstitutions();
    corvanta::setEventLoop(
        [](corvanta::Job job) { QMetaObject::invokeMethod(qApp, std::move(job), Qt::QueuedConnection); });
    benchmark::Initialize(&argc, argv);
    benchmark::RunSpecifiedBenchmarks();
    return 0;
}
