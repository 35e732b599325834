#include "canvas/ui/paint.h"
#include "check/folder.h"
#include "document/page_file.h"
#include "document/reading_failure.h"
#include "platform/codepage.h"
#include "platform/files.h"
#include "platform/host_files.h"
#include "platform/paths.h"
#include "platform/qt/fonts.h"
#include "platform/qt/qt_pictures.h"
#include "platform/text.h"
#include "tools/standard_streams.h"

#include <CLI/CLI.hpp>
#include <QByteArray>
#include <QGuiApplication>
#include <QImage>
#include <QPainter>
#include <QSaveFile>
#include <QString>

#include <algorithm>
#include <cstdio>
#include <filesystem>
#include <set>
#include <string>
#include <vector>

// A page as a picture, without a display.

namespace {

constexpr std::int64_t mostPixels = 64'000'000;

using namespace corvanta;

constexpr int failed = 1, wrongUsage = 2;

struct Rendering {
    std::vector<std::string> names; // the last one is the picture's where there is no folder
    std::string folder;
    bool compare = false;
    int size = 0; // pixels of the longer side at most; 0 for the page's own size
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

// The picture of a page file; null after a failure, which has been told.
QImage pictureOf(const std::string &input)
{
    const std::string path = input.empty() ? std::string() : drivePath(input);
    if (const std::string reason = obstacle(path); !reason.empty()) {
        fail(input, reason);
        return {};
    }
    editing().curdir = directoryPart(path);
    openPage(path);
    if (std::int64_t{page().bkgwd} * page().bkght <= mostPixels)
        return renderedPage(page());
    fail(input, "the page is too large for a picture");
    return {};
}

QImage fitted(const QImage &picture, int size)
{
    if (size == 0 || (picture.width() <= size && picture.height() <= size))
        return picture;
    return picture.scaled(size, size, Qt::KeepAspectRatio, Qt::SmoothTransformation);
}

int write(const QImage &picture, const std::vector<std::string> &inputs, const std::string &output)
{
    std::error_code different;
    for (const std::string &input : inputs)
        if (std::filesystem::equivalent(input, output, different))
            return fail(output, "is the page itself");
    QSaveFile file(QString::fromStdString(output));
    if (!file.open(QIODevice::WriteOnly) || !picture.save(&file, "PNG") || !file.commit())
        return fail(output, "cannot be written");
    return 0;
}

int render(const std::string &input, const std::string &output, int size)
{
    const QImage picture = pictureOf(input);
    return picture.isNull() ? failed : write(fitted(picture, size), {input}, output);
}

// The second page, paled, with every pixel that differs from the first in red. What only one of them covers differs.
int compare(const std::string &before, const std::string &after, const std::string &output)
{
    const QImage first = pictureOf(before);
    const QImage second = first.isNull() ? QImage() : pictureOf(after);
    if (second.isNull())
        return failed;
    constexpr QRgb mark = qRgb(220, 0, 0);
    const QSize size = first.size().expandedTo(second.size());
    QImage marks(size, QImage::Format_RGB32);
    long long differing = 0;
    for (int y = 0; y < size.height(); ++y) {
        auto *line = reinterpret_cast<QRgb *>(marks.scanLine(y));
        for (int x = 0; x < size.width(); ++x) {
            const bool same = first.valid(x, y) && second.valid(x, y) && first.pixel(x, y) == second.pixel(x, y);
            const int grey = same ? 160 + qGray(second.pixel(x, y)) * 95 / 255 : 0;
            line[x] = same ? qRgb(grey, grey, grey) : mark;
            differing += same ? 0 : 1;
        }
    }
    std::cout << differing << (differing == 1 ? " pixel differs\n" : " pixels differ\n");
    const int result = write(marks, {before, after}, output);
    return differing > 0 ? failed : result;
}

std::string indexEntry(const std::string &page, const std::string &picture)
{
    const std::string name = QString::fromStdString(page).toHtmlEscaped().toStdString();
    const std::string address = QByteArray::fromStdString(picture).toPercentEncoding().toStdString();
    return "<figure><a href=\"" + address + "\"><img src=\"" + address + "\" alt=\"\" loading=\"lazy\"><br>" + name +
           "</a></figure>\n";
}

int writeIndex(const std::filesystem::path &folder, const std::string &entries)
{
    const std::string text =
        "<!DOCTYPE html>\n<html lang=\"en\">\n<head>\n<meta charset=\"utf-8\">\n<title>Pages</title>\n<style>\n"
        "body { font: 14px sans-serif; }\nfigure { display: inline-block; margin: 8px; text-align: center; }\n"
        "img { max-width: 300px; max-height: 240px; border: 1px solid #888; }\n</style>\n</head>\n<body>\n"
        "<h1>Pages</h1>\n" +
        entries + "</body>\n</html>\n";
    const auto failure = writeHostFileAtomically(std::filesystem::absolute(folder / "index.html"), text);
    return failure ? fail((folder / "index.html").string(), toUtf8(*failure)) : 0;
}

std::vector<std::string> pageFiles(const std::string &input)
{
    std::error_code error;
    if (!std::filesystem::is_directory(input, error))
        return {input};
    std::vector<std::string> files;
    const CheckFolder folder(input);
    for (const std::string &name : folder.pageFiles())
        files.push_back((std::filesystem::path(input) / name).string());
    return files;
}

// All pages, as NAME.png, and an index page of the pictures. A page that fails stops none of the others.
int renderAll(const Rendering &job)
{
    const std::filesystem::path folder = job.folder;
    std::error_code error;
    std::filesystem::create_directories(folder, error);
    if (error)
        return fail(job.folder, error.message());
    std::string entries;
    std::set<std::string> written;
    int result = 0;
    for (const std::string &input : job.names) {
        const std::vector<std::string> files = pageFiles(input);
        if (files.empty())
            result = fail(input, "no page files");
        for (const std::string &file : files) {
            const std::filesystem::path name = std::filesystem::path(file).filename();
            const std::string picture = name.stem().string() + ".png";
            if (!written.insert(picture).second)
                result = fail(file, "another page has the picture " + picture);
            else if (render(file, (folder / picture).string(), job.size) != 0)
                result = failed;
            else
                entries += indexEntry(name.string(), picture);
        }
    }
    return std::max(writeIndex(folder, entries), result);
}

// Whether as many names were given as the way of working takes.
bool isComplete(const Rendering &job)
{
    constexpr std::size_t one = 2, two = 3;
    return !job.folder.empty() ? !job.compare : job.names.size() == (job.compare ? two : one);
}

int work(const Rendering &job)
{
    if (!job.folder.empty())
        return renderAll(job);
    return job.compare ? compare(job.names[0], job.names[1], job.names[2])
                       : render(job.names[0], job.names[1], job.size);
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
    Rendering job;
    CLI::App usage("Renders page files as PNG pictures.", "odsrender");
    usage.set_version_flag("--version", CORVANTA_VERSION);
    usage.footer("Ways:\n  odsrender FILE.ods OUT.png                draw a page\n"
                 "  odsrender FILE.ods|DIR... --out FOLDER    draw many\n"
                 "  odsrender --compare A.ods B.ods OUT.png   mark what differs");
    usage.add_option("FILE", job.names, "page files, directories of them with --out, and the picture to write")
        ->required();
    usage.add_option("--out", job.folder, "write all pictures and an index page to this folder");
    usage.add_flag("--compare", job.compare,
                   "mark the pixels that differ between two pages; exit code 1 when any does");
    usage.add_option("--size", job.size, "the most pixels of the longer side")->check(CLI::Range(1, 32767));
    usage.add_option("--codepage", job.codePage, "the code page of the file's texts (874, 1250 to 1258)")
        ->capture_default_str()
        ->check(CLI::Validator(
            [](const std::string &number) { return setCodePage(std::atoi(number.c_str())) ? "" : "unknown code page"; },
            "NUMBER"));
    try {
        usage.parse(argc, argv);
        if (!isComplete(job))
            throw CLI::ValidationError("FILE",
                                       "a page and a picture, two pages and a picture with --compare, or --out");
    } catch (const CLI::ParseError &error) {
        return afterPrinting("odsrender", usage.exit(error) == 0 ? 0 : wrongUsage);
    }
    setenv("QT_QPA_PLATFORM", "offscreen", 1);
    qInstallMessageHandler(tellOnlyFailures);
    QGuiApplication application(argc, argv);
    registerFontSubstitutions();
    installPictureLoader(Decoding::AtOnce);
    return afterPrinting("odsrender", work(job));
}
