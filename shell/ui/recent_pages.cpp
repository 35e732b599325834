#include "shell/ui/recent_pages.h"

#include "document/events.h"
#include "document/page.h"
#include "platform/paths.h"
#include "platform/post.h"
#include "platform/qt/recent_files.h"
#include "platform/qt/text.h"
#include "platform/worker.h"
#include "shell/ui/file_drops.h"

#include <QAction>
#include <QMenu>

#include <optional>

namespace corvanta {

namespace {

constexpr std::size_t mostPages = 10;
constexpr std::chrono::milliseconds longestEnd(200);

std::vector<std::filesystem::path> known;

struct Recent {
    EventConnections listening;
    Worker disk;
};
std::optional<Recent> recent;

void readAgain()
{
    recent->disk.post([] { postToEventLoop([pages = recentPages(mostPages)] { known = pages; }); });
}

void note()
{
    const std::string &path = editing().filetag;
    if (!path.empty() && fileExists(path))
        recent->disk.post([file = hostPath(path)] { noteRecentPage(file); });
    readAgain();
}

} // namespace

void startRecentPages()
{
    recent.emplace();
    recent->listening.add(documentEvents().fileChanged, note);
    note(); // the page of the command line
}

void stopRecentPages()
{
    if (recent)
        recent->disk.finish(longestEnd);
    recent.reset();
}

void addRecentPages(QMenu &menu)
{
    for (const std::filesystem::path &file : known) {
        QString name = QString::fromStdString(file.string());
        QObject::connect(menu.addAction(name.replace('&', "&&")), &QAction::triggered, &menu,
                         [path = drivePath(file)] { openAnotherPage(path); });
    }
    menu.setEnabled(!menu.isEmpty());
}

} // namespace corvanta
