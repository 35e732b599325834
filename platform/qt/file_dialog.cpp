#include "platform/qt/file_dialog.h"

#include "platform/paths.h"
#include "platform/qt/text.h"
#include "platform/text.h"

#include <QDir>
#include <QFile>
#include <QFileDialog>
#include <QHeaderView>
#include <QLineEdit>
#include <QRegularExpression>
#include <QScreen>
#include <QTreeView>

#include <algorithm>
#include <filesystem>

namespace corvanta {

namespace {

QString hostText(const std::filesystem::path &host) { return QFile::decodeName(host.c_str()); }

std::filesystem::path toPath(const QString &host) { return QFile::encodeName(host).toStdString(); }

bool isThere(const std::filesystem::path &host)
{
    std::error_code error;
    return std::filesystem::exists(host, error);
}

bool isDirectory(const std::filesystem::path &host)
{
    std::error_code error;
    return std::filesystem::is_directory(host, error);
}

bool isDrivePath(const QString &typed) { return typed.size() > 1 && typed[0].isLetter() && typed[1] == ':'; }

bool namesUnknownDrive(const QString &typed)
{
    const std::vector<std::string> drives = driveList();
    return isDrivePath(typed) &&
           std::find(drives.begin(), drives.end(), toBytes(typed.left(2).toUpper())) == drives.end();
}

// The host path of a typed name: the file of exactly that name, else the one that differs in letter case only.
std::filesystem::path typedPath(QString typed, const QDir &folder)
{
    if (isDrivePath(typed) && !lackingCharacter(typed) && !namesUnknownDrive(typed))
        return hostPath(toBytes(typed));
    typed.replace('\\', '/');
    const std::filesystem::path host = toPath(QDir::cleanPath(folder.absoluteFilePath(typed)));
    const std::string path = isThere(host) ? std::string() : drivePath(host);
    return path.empty() ? host : hostPath(path);
}

// A file outside every drive has no drive path.
bool hasDrivePath(const std::filesystem::path &host)
{
    const std::string path = drivePath(host);
    return !path.empty() && hostPath(path) == host;
}

constexpr int columnMargin = 24; // pixels

class FileWindow : public QFileDialog {
public:
    FileWindow(const FileDialog &asked, QWidget *owner) : QFileDialog(owner), question(asked)
    {
        setOption(DontUseNativeDialog);
        setOption(HideNameFilterDetails);
        setOption(DontConfirmOverwrite, !question.overwritePrompt);
        setAcceptMode(question.kind == FileDialog::Kind::Open ? AcceptOpen : AcceptSave);
        setFileMode(question.mustExist ? ExistingFile : AnyFile);
        setWindowTitle(question.kind == FileDialog::Kind::Open ? "Open" : "Save As");
        setNameFilters(corvanta::nameFilters(question.filter));
        const std::filesystem::path start = hostPath(question.initialDirectory);
        setDirectory(hostText(isDirectory(start) ? start : hostPath(currentDirectory())));
        nameEdit()->setText(shownPath(question.initialDirectory + '\\' + question.fileName).section('\\', -1));
        nameEdit()->selectAll();
        widenForColumns();
    }

    void accept() override
    {
        const QString typed = nameEdit()->text();
        std::filesystem::path host = typedPath(typed, directory());
        if (namesUnknownDrive(typed) && !isThere(host)) {
            showExclamation("Drive " + toBytes(typed.left(2).toUpper()) + " is invalid!", toBytes(windowTitle()));
            return nameEdit()->selectAll();
        }
        if (typed.isEmpty() || typed.startsWith('~') || isDirectory(host)) {
            QFileDialog::accept();
            return;
        }
        host = withExtension(host);
        if (!hasDrivePath(host)) {
            showExclamation("This file name cannot be used: " + toBytes(typed), toBytes(windowTitle()));
            return nameEdit()->selectAll();
        }
        nameEdit()->setText(directory().relativeFilePath(hostText(host)));
        QFileDialog::accept();
        if (isVisible()) {
            nameEdit()->setText(typed);
            nameEdit()->selectAll();
        }
    }

private:
    // Names, sizes, kinds and dates are to be read without dragging the columns.
    void widenForColumns()
    {
        auto *list = findChild<QTreeView *>("treeView");
        if (!list)
            return;
        const QString samples[] = {QString(24, 'n'), "1023.99 KiB", "Microsoft Word", "30 Sep 2026 22:22:22 PM"};
        int width = 0;
        for (int column = 0; column < 4; ++column) {
            const int wanted = list->fontMetrics().horizontalAdvance(samples[column]) + columnMargin;
            list->header()->resizeSection(column, wanted);
            width += wanted;
        }
        constexpr QSize around(160, 0); // the places at the left, and the frame
        resize(QSize(width, height()).expandedTo(sizeHint()) + around);
        resize(size().boundedTo(screen()->availableSize() - QSize(16, 40)));
    }

    QLineEdit *nameEdit() { return findChild<QLineEdit *>("fileNameEdit"); }

    std::filesystem::path withExtension(const std::filesystem::path &host) const
    {
        const std::string name = host.filename().string();
        const bool named = question.kind == FileDialog::Kind::Open && isThere(host);
        if (named || question.defaultExtension.empty() || name.find('.') != std::string::npos)
            return host;
        return typedPath(hostText(host) + '.' + toQString(question.defaultExtension), directory());
    }

    const FileDialog &question;
};

} // namespace

QStringList nameFilters(const std::string &filter)
{
    static const QRegularExpression patternInText("\\*\\.[\\w*]+");
    QStringList filters;
    const QStringList parts = toQString(filter).split('|');
    for (qsizetype i = 0; i + 1 < parts.size(); i += 2) {
        QStringList patterns = parts[i + 1].split(';', Qt::SkipEmptyParts);
        for (const auto &named : patternInText.globalMatch(parts[i]))
            if (!patterns.contains(named.captured()))
                patterns.append(named.captured());
        patterns.replaceInStrings("*.*", "*");
        filters.append(parts[i] + " (" + patterns.join(' ') + ')');
    }
    return filters;
}

std::optional<std::string> showFileDialog(const FileDialog &question, QWidget *owner)
{
    FileWindow window(question, owner);
    if (window.exec() != QDialog::Accepted || window.selectedFiles().isEmpty())
        return std::nullopt;
    const std::string chosen = drivePath(toPath(window.selectedFiles().first()));
    if (chosen.empty())
        return std::nullopt;
    if (question.entersDirectory)
        changeDirectory(directoryPart(chosen));
    return chosen;
}

} // namespace corvanta
