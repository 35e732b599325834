#include "shell/ui/preview_process.h"

#include "document/events.h"
#include "document/page_file.h"
#include "platform/asking.h"
#include "platform/codepage.h"
#include "platform/host_files.h"
#include "platform/paths.h"
#include "platform/qt/text.h"
#include "platform/text.h"

#include <QApplication>
#include <QDesktopServices>
#include <QPointer>
#include <QProcess>
#include <QTemporaryDir>
#include <QTimer>
#include <QUrl>

#include <memory>

namespace corvanta {

namespace {

constexpr const char *title = "Preview";
constexpr int restAfterEdit = 250, endingTime = 1500; // milliseconds

// The name of the page in memory without ".ods"; one that was never saved has a name here, too.
std::string nameOfPage()
{
    const std::string file = fileNamePart(editing().filetag);
    const std::string name = file.substr(0, file.rfind('.'));
    return name.empty() ? "PAGE" : name;
}

class PreviewProcess : public QObject {
public:
    explicit PreviewProcess(QObject *parent) : QObject(parent)
    {
        rest.setSingleShot(true);
        connect(&rest, &QTimer::timeout, this, [this] { follow(); });
        connect(qApp, &QCoreApplication::aboutToQuit, this, [this] { end(); });
        edits.add(documentEvents().edited, [this](std::string_view) { rest.start(restAfterEdit); });
        edits.add(documentEvents().fileChanged, [this] { rest.start(restAfterEdit); });
    }

    ~PreviewProcess() override { end(); }

    void show()
    {
        const std::string directory = editing().curdir;
        if (!layPage(nameOfPage()))
            return;
        if (process && process->state() != QProcess::NotRunning && served == directory)
            process->write("show " + QByteArray::fromStdString(toUtf8(shown)) + "\n");
        else
            start(directory);
    }

private:
    std::unique_ptr<QTemporaryDir> overlay; // the pages in memory, for this user alone
    std::unique_ptr<QProcess> process;
    std::string served, shown; // directory and page, bytes of the code page
    bool opened = false;       // the process has told its address
    QTimer rest;
    EventConnections edits;

    std::filesystem::path layPath(const std::string &name) const
    {
        return std::filesystem::path(overlay->path().toStdString()) / (toUtf8(name) + ".ods");
    }

    // Lays the page in memory over the directory, and takes another page away, which is no longer in memory.
    bool layPage(const std::string &name)
    {
        if (!overlay)
            overlay = std::make_unique<QTemporaryDir>();
        const std::string bytes = serialisePage(page());
        if (bytes.size() > fileLimit) {
            showExclamation("File too large.", title);
            return false;
        }
        std::error_code error;
        if (!shown.empty() && shown != name)
            std::filesystem::remove(layPath(shown), error);
        shown = name;
        const auto failure = writeHostFileAtomically(layPath(name), bytes);
        if (failure)
            showExclamation(*failure, title);
        return !failure;
    }

    // After an edit, for the browser that shows the page.
    void follow()
    {
        if (!process || process->state() != QProcess::Running)
            return;
        std::error_code error;
        if (shown != nameOfPage())
            std::filesystem::remove(layPath(shown), error);
        else if (const std::string bytes = serialisePage(page()); bytes.size() <= fileLimit)
            writeHostFileAtomically(layPath(shown), bytes);
    }

    void start(const std::string &directory)
    {
        end();
        served = directory;
        opened = false;
        process = std::make_unique<QProcess>();
        connect(process.get(), &QProcess::readyReadStandardOutput, this, [this] { readAnswers(); });
        connect(process.get(), &QProcess::errorOccurred, this, [this](QProcess::ProcessError error) {
            if (error == QProcess::FailedToStart)
                QTimer::singleShot(0, this, [this] { tellFailure(toBytes(process->errorString())); });
        });
        connect(process.get(), &QProcess::finished, this, [this] {
            if (!opened)
                tellFailure(toBytes(QString::fromUtf8(process->readAllStandardError()).trimmed()));
        });
        const std::filesystem::path target = hostPath(directory) / (toUtf8(shown) + ".ods");
        process->start(QCoreApplication::applicationDirPath() + "/odspage",
                       {"--codepage", QString::number(codePageNumber()), "preview", "--address-file", "--overlay",
                        overlay->path(), "--", QString::fromStdString(target.string())});
    }

    void readAnswers()
    {
        while (process->canReadLine()) {
            const QString line = QString::fromUtf8(process->readLine()).trimmed();
            opened = true;
            const bool file = line.startsWith('/');
            if (!file && !line.startsWith("http://"))
                continue;
            const QUrl address = file ? QUrl::fromLocalFile(line) : QUrl(line);
            if (!file || !QDesktopServices::openUrl(address)) // an address would be seen among the browser's arguments
                showMessage({"Open this address in a browser:\r" + toBytes(address.toString()), title,
                             Icon::Information, Buttons::Ok});
        }
    }

    static void tellFailure(const std::string &reason)
    {
        showExclamation("The preview could not be started." + (reason.empty() ? "" : "\r" + reason), title);
    }

    // Closing its input ends the process in order.
    void end()
    {
        if (!process)
            return;
        process->disconnect(this);
        process->closeWriteChannel();
        if (process->state() != QProcess::NotRunning && !process->waitForFinished(endingTime))
            process->kill();
        process.reset();
    }
};

} // namespace

void previewInBrowser()
{
    static QPointer<PreviewProcess> preview;
    if (!preview)
        preview = new PreviewProcess(qApp);
    preview->show();
}

} // namespace corvanta
