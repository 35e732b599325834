#include "shell/ui/hpsdir.h"

#include "platform/help.h"
#include "platform/paths.h"
#include "platform/qt/dialogs.h"
#include "platform/qt/text.h"

#include <QComboBox>
#include <QKeyEvent>
#include <QLabel>
#include <QListWidget>
#include <QPushButton>
#include <QStyle>
#include <QVBoxLayout>

namespace corvanta {

namespace {

constexpr int listWidth = 380, visibleRows = 12, indent = 2; // pixels; rows; blanks a level
constexpr int pathRole = Qt::UserRole;

QListWidgetItem *listItem(const DirectoryRow &row, const QStyle &style)
{
    const bool root = row.depth == 0;
    const QString name = root ? toQString(row.name) : shownPath(row.path).section('\\', -1);
    auto *item = new QListWidgetItem(QString(row.depth * indent, ' ') + name);
    item->setData(pathRole, toQString(row.path));
    item->setIcon(style.standardIcon(row.open ? QStyle::SP_DirOpenIcon : QStyle::SP_DirClosedIcon));
    return item;
}

} // namespace

Hpsdir::Hpsdir()
{
    QVBoxLayout *contents = startDialog(*this, "hpsdir", QStringLiteral("Support File Directory"));
    Fields fields = addFields(*contents);
    curdirec = addInfoRow(fields, "curdirec", QString());
    direclist = addListRow(fields, "direclist", QStringLiteral("&Directories:"), visibleRows);
    direclist->setMinimumWidth(listWidth);
    drivelist = addComboRow(fields, "drivelist", QStringLiteral("Dri&ves:"));
    for (const std::string &drive : driveList())
        drivelist->addItem(toQString(drive));
    addButtons(*this, {{"ok", "OK", [this] { confirm(); }},
                       {"cancel", "Cancel", [this] { reject(); }},
                       {"Command2", "Help", [] { showHelp(HelpCommand::Contents); }}});
    connect(drivelist, &QComboBox::activated, this, [this] { show(chosenDrive(toBytes(drivelist->currentText()))); });
    connect(direclist, &QListWidget::itemDoubleClicked, this, [this](QListWidgetItem *row) { open(row); });
    show(openedDirectoryChoice());
    direclist->setFocus();
    CentreDialog(*this);
}

void Hpsdir::confirm()
{
    const DirectoryChoice there = enteredPath(choice.path);
    if (there.path != choice.path)
        return show(there);
    choosePageDirectory(choice.path);
    accept();
}

void Hpsdir::show(const DirectoryChoice &shown)
{
    choice = shown;
    drivelist->setCurrentIndex(drivelist->findText(toQString(choice.drive)));
    curdirec->setText(shownPath(choice.path));
    direclist->clear();
    for (const DirectoryRow &row : directoryRows(choice.path)) {
        direclist->addItem(listItem(row, *style()));
        if (row.open)
            direclist->setCurrentRow(direclist->count() - 1);
    }
    direclist->scrollToItem(direclist->currentItem());
}

// Enter in the list opens another directory than the shown one; else it is OK, as in the whole dialog.
void Hpsdir::keyPressEvent(QKeyEvent *event)
{
    const bool enter = event->key() == Qt::Key_Return || event->key() == Qt::Key_Enter;
    const QListWidgetItem *row = direclist->currentItem();
    if (enter && direclist->hasFocus() && row && row->data(pathRole).toString() != toQString(choice.path))
        open(row);
    else
        QDialog::keyPressEvent(event);
}

void Hpsdir::open(const QListWidgetItem *row) { show(enteredPath(toBytes(row->data(pathRole).toString()))); }

void showDirectory() { Hpsdir().exec(); }

} // namespace corvanta
