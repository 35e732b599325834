#include "database/ui/odbcdbs.h"

#include "database/connection.h"
#include "database/ui/drag_source.h"
#include "database/ui/kind_buttons.h"
#include "database/ui/seldsn.h"
#include "platform/qt/dialogs.h"
#include "platform/qt/text.h"

#include <QApplication>
#include <QCoreApplication>
#include <QEventLoop>
#include <QKeyEvent>
#include <QLineEdit>
#include <QListWidget>
#include <QMouseEvent>
#include <QPushButton>
#include <QTimer>
#include <QVBoxLayout>
#include <QWindow>

namespace corvanta {

namespace {

// The wait pointer until the event loop runs again: after the work, or in a message about it.
void showWaitPointer()
{
    QApplication::setOverrideCursor(Qt::WaitCursor);
    QTimer::singleShot(0, qApp, [] { QApplication::restoreOverrideCursor(); });
}

void fill(QListWidget &list, const std::vector<std::string> &names)
{
    list.clear();
    for (const std::string &name : names)
        list.addItem(toQString(name));
}

std::optional<DragOffer> offerOf(const std::string &payload, const QString &shown, const QWidget &source)
{
    if (payload.empty())
        return std::nullopt;
    return DragOffer{QByteArray::fromStdString(payload), pictureOfName(shown, source)};
}

// The place of the selected entry; -1 for none.
int selectedRow(const QListWidget &list) { return list.selectedItems().isEmpty() ? -1 : list.currentRow(); }

} // namespace

Odbcdbs::Odbcdbs(QWidget &mainWindow, const std::function<QIcon(Kind)> &pictureOf)
    : QWidget(nullptr, Qt::Tool), owner(&mainWindow)
{
    setObjectName("odbcdbs");
    setWindowTitle("ODBC Toolbar");
    auto *column = new QVBoxLayout(this);
    addSource(*column);
    addTables(*column);
    addColumns(*column);
    kinds = new KindButtons(pictureOf, this);
    column->addWidget(kinds);
    showConnection();
    watchPointer();
}

void Odbcdbs::addSource(QVBoxLayout &layout)
{
    Group group = addGroup(layout, "datasource", "DataSource");
    dsn = addTextRow(group.fields, "dsn", "");
    dsn->setReadOnly(true);
    QPushButton *dsnselect = addButtonBeside(group.fields, "dsnselect", "Select");
    connect(dsnselect, &QPushButton::clicked, this, [this] { selectSource(); });
    makeDragSource(*dsn, "dsn", [this] { return offerOf(connection().source, dsn->text(), *dsn); });
}

void Odbcdbs::addTables(QVBoxLayout &layout)
{
    Group group = addGroup(layout, "table", "Table");
    dbslist = addListRow(group.fields, "dbslist", "");
    dbslist->installEventFilter(this);
    // On the press: a drag of a table lists its columns too.
    connect(dbslist, &QListWidget::itemPressed, this, [this] { tableClicked(); });
    makeDragSource(*dbslist->viewport(), "dbs", [this] {
        const int row = selectedRow(*dbslist);
        return row < 0
                   ? std::nullopt
                   : offerOf(connection().tables[static_cast<std::size_t>(row)], dbslist->item(row)->text(), *dbslist);
    });
}

void Odbcdbs::addColumns(QVBoxLayout &layout)
{
    Group group = addGroup(layout, "field", "Field");
    fldlist = addListRow(group.fields, "fldlist", "");
    makeDragSource(*fldlist->viewport(), "fld", [this] {
        const int row = selectedRow(*fldlist);
        const auto column = columnAt(connection(), row);
        return column ? offerOf(dragOfColumn(*column), fldlist->item(row)->text(), *fldlist) : std::nullopt;
    });
}

// Every part of the window tells where the pointer is.
void Odbcdbs::watchPointer()
{
    setMouseTracking(true);
    installEventFilter(this);
    for (QWidget *part : findChildren<QWidget *>()) {
        part->setMouseTracking(true);
        part->installEventFilter(this);
    }
}

bool Odbcdbs::eventFilter(QObject *watched, QEvent *event)
{
    if (event->type() == QEvent::MouseMove)
        kinds->pointerMoved(static_cast<QMouseEvent *>(event)->globalPosition().toPoint());
    if (watched == dbslist && event->type() == QEvent::KeyRelease && !static_cast<QKeyEvent *>(event)->isAutoRepeat())
        tableKeyReleased();
    return QWidget::eventFilter(watched, event);
}

void Odbcdbs::selectSource()
{
    const std::string reply = askDataSource(connection().source);
    if (reply.empty())
        return;
    showWaitPointer();
    QCoreApplication::processEvents(QEventLoop::ExcludeUserInputEvents); // the closed dialog leaves the screen
    if (SelectDataSource(connection(), reply))
        showConnection();
}

void Odbcdbs::tableClicked()
{
    showWaitPointer();
    ListColumns(connection(), selectedRow(*dbslist));
    showColumns();
}

// What is listed already stays, with its selected column.
void Odbcdbs::tableKeyReleased()
{
    const int before = connection().listedTable;
    if (selectedRow(*dbslist) == before)
        return;
    showWaitPointer();
    listColumnsAfterKey(connection(), selectedRow(*dbslist));
    if (connection().listedTable != before)
        showColumns();
}

void Odbcdbs::showConnection()
{
    dsn->setText(toQString(connection().source));
    dsn->setCursorPosition(0);
    fill(*dbslist, connection().tables);
    showColumns();
}

void Odbcdbs::showColumns() { fill(*fldlist, connection().columns); }

void Odbcdbs::showEvent(QShowEvent *event)
{
    if (owner && owner->windowHandle())
        windowHandle()->setTransientParent(owner->windowHandle());
    QWidget::showEvent(event);
}

void Odbcdbs::hideEvent(QHideEvent *event)
{
    kinds->hideTip();
    QWidget::hideEvent(event);
}

void Odbcdbs::closeEvent(QCloseEvent *event)
{
    QWidget::closeEvent(event);
    if (closed)
        closed();
}

} // namespace corvanta
