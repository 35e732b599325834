#include "shell/ui/file_drops.h"

#include "canvas/gestures.h"
#include "canvas/selection.h"
#include "canvas/tab_order.h"
#include "canvas/ui/drop.h"
#include "document/object_file.h"
#include "document/page_file.h"
#include "platform/asking.h"
#include "platform/paths.h"
#include "platform/text.h"

#include <QDropEvent>
#include <QMimeData>
#include <QTimer>
#include <QUrl>
#include <QWidget>

namespace corvanta {

namespace {

constexpr const char *title = "Reading File";

bool endsWith(std::string_view name, std::string_view extension)
{
    return name.size() > extension.size() && sameText(name.substr(name.size() - extension.size()), extension);
}

void takeObject(const std::string &path, std::optional<Point> at)
{
    const std::int16_t index = loadObjectFile(path, [at](std::int16_t loaded) {
        if (at)
            placeObjectAt(loaded, *at);
    });
    if (index == noObject)
        return;
    clearMultiSelection();
    selectObject(index);
    showTrackers();
}

void takeDroppedUrls(const QList<QUrl> &urls, std::optional<Point> at)
{
    if (urls.size() != 1)
        return showExclamation("Drop one file at a time.", title);
    const std::string path = urls.front().isLocalFile() ? drivePath(urls.front().toLocalFile().toStdString()) : "";
    if (path.empty())
        return showExclamation("Only files of this computer can be opened.", title);
    takeDroppedFile(path, at);
}

class FileDrops : public QObject {
public:
    FileDrops(QWidget &watched, bool watchesPage) : QObject(&watched), target(watched), isPage(watchesPage)
    {
        target.setAcceptDrops(true);
        target.installEventFilter(this);
    }

    bool eventFilter(QObject *, QEvent *event) override
    {
        if (event->type() != QEvent::DragEnter && event->type() != QEvent::DragMove && event->type() != QEvent::Drop)
            return false;
        auto &drop = static_cast<QDropEvent &>(*event);
        if (!drop.mimeData()->hasUrls())
            return false;
        drop.setDropAction(Qt::CopyAction); // the file stays where it is
        drop.accept();
        if (event->type() == QEvent::Drop) {
            const QPoint point = drop.position().toPoint();
            const auto at = isPage ? std::optional(Point{point.x(), point.y()}) : std::nullopt;
            // When the other program is free again: what follows may ask.
            QTimer::singleShot(0, &target, [urls = drop.mimeData()->urls(), at] { takeDroppedUrls(urls, at); });
        }
        return true;
    }

private:
    QWidget &target;
    bool isPage;
};

} // namespace

void openAnotherPage(const std::string &path)
{
    cancelGesture();
    endTabOrder();
    if (querySave())
        openPage(path);
}

void takeDroppedFile(const std::string &path, std::optional<Point> at)
{
    if (directoryExists(path))
        return showExclamation("A directory is no page.  Drop one of its files.", title);
    if (endsWith(path, ".ods"))
        return openAnotherPage(path);
    if (!endsWith(path, ".hdo") && !endsWith(path, ".odo"))
        return showExclamation('"' + fileNamePart(path) + "\" is neither a page (.ods) nor an object (.odo, .hdo).",
                               title);
    cancelGesture();
    endTabOrder();
    takeObject(path, at);
}

void takeFileDrops(QWidget &target, bool isPage) { new FileDrops(target, isPage); }

} // namespace corvanta
