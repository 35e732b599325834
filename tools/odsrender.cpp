#include "canvas/ui/paint.h"
#include "document/page_file.h"
#include "document/reading_failure.h"
#include "platform/codepage.h"
#include "platform/files.h"
#include "platform/paths.h"
#include "platform/qt/fonts.h"
#include "platform/qt/qt_pictures.h"
#include "platform/text.h"
#include "tools/standard_streams.h"

#include <CLI/CLI.hpp>
#include <QGuiApplication>
#include <QImage>
#include <QPainter>
#include <QSaveFile>
#include <QString>

#include <cstdio>
#include <filesystem>
#include <string>

// A page as a picture, without a display.

namespace {

constexpr std::int64_t mostPixels = 64'000'000;

using namespace corvanta;

constexpr int failed = 1, wrongUsage = 2;

struct Job {
    std::string input, output;
    int codePage = 1252;
};

int fail(const std::string &file, const std::string &reason)
{
    std::fprintf(stderr, "odsrender: %s: %s\n", file.c_str(), reason.c_str());
    return failed;
}

// Why the file cannot be opened as a page; empty when it can.
std::string obstacle(const std::string &path)
{
    return path.empty() ? "no such file" : pageFailure(readFile(path, fileLimit));
}

// The page without a size of its own takes that of a new canvas window.
QImage renderedPage(Page &p)
{
    if (p.bkgwd <= 0)
        p.bkgwd = newPageWidth;
    if (p.bkght <= 0)
        p.bkght = newPageHeight;
    QImage image(p.bkgwd, p.bkght, QImage::Format_RGB32);
    QPainter painter(&image);
    paintPage(painter, p);
    return image;
}

int render(const Job &job)
{
    const std::string path = job.input.empty() ? std::string() : drivePath(job.input);
    if (const std::string reason = obstacle(path); !reason.empty())
        return fail(job.input, reason);
    editing().curdir = directoryPart(path);
    openPage(path);
    if (std::int64_t{page().bkgwd} * page().bkght > mostPixels)
        return fail(job.input, "the page is too large for a picture");
    std::error_code different;
    if (std::filesystem::equivalent(job.input, job.output, different))
        return fail(job.output, "is the page itself");
    QSaveFile file(QString::fromStdString(job.output));
    if (!file.open(QIODevice::WriteOnly) || !renderedPage(page()).save(&file, "PNG") || !file.commit())
        return fail(job.output, "cannot be written");
    return 0;
}

// What the toolkit remarks about the desktop says nothing about the page.
void tellOnlyFailures(QtMsgType type, const QMessageLogContext &, const QString &text)
{
    if (type == QtCriticalMsg || type == QtFatalMsg)
        std::fprintf(stderr, "odsrender: %s\n", qPrintable(text));
}

} // namespace

int main(int argc, char **argv)
{
    takeFileErrorsAsErrors();
    holdStandardStreams();
    Job job;
    CLI::App usage("Renders a page file as a PNG picture.", "odsrender");
    usage.set_version_flag("--version", CORVANTA_VERSION);
    usage.add_option("FILE.ods", job.input, "the page file")->required();
    usage.add_option("OUT.png", job.output, "the picture to write")->required();
    usage.add_option("--codepage", job.codePage, "the code page of the file's texts (874, 1250 to 1258)")
        ->capture_default_str()
        ->check(CLI::Validator(
            [](const std::string &number) { return setCodePage(std::atoi(number.c_str())) ? "" : "unknown code page"; },
            "NUMBER"));
    try {
        usage.parse(argc, argv);
    } catch (const CLI::ParseError &error) {
        return afterPrinting("odsrender", usage.exit(error) == 0 ? 0 : wrongUsage);
    }
    setenv("QT_QPA_PLATFORM", "offscreen", 1);
    qInstallMessageHandler(tellOnlyFailures);
    QGuiApplication application(argc, argv);
    registerFontSubstitutions();
    installPictureLoader();
    return render(job);
}
