#include "database/ui/odbcdbs.h"

#include "database/connection.h"
#include "database/ui/drag_source.h"
#include "database/ui/kind_buttons.h"
#include "database/ui/name_list.h"
#include "database/ui/seldsn.h"
#include "database/ui/tblrows.h"
#include "platform/qt/dialogs.h"
#include "platform/qt/text.h"

#include <QHBoxLayout>
#include <QKeyEvent>
#include <QLabel>
#include <QLineEdit>
#include <QListWidget>
#include <QMouseEvent>
#include <QPushButton>
#include <QTimer>
#include <QVBoxLayout>
#include <QWindow>

#include <algorithm>

namespace corvanta {

namespace {

constexpr int patience = 500; // milliseconds until it is told what is waited for

QString fromText(const std::string &utf8) { return QString::fromStdString(utf8); }

constexpr const char *inputTypes[] = {"String", "Integer", "Real", "Date", "Time", "Currency", "Numeric"};

std::vector<NameRow> tableRows(const Connection &c)
{
    std::vector<NameRow> rows;
    for (const TableFacts &table : c.tableFacts) {
        const QString what = table.view ? QStringLiteral("view") : QString(), shown = fromText(table.shown);
        const QString inSql = table.dropped.empty()
                                  ? QStringLiteral("The code page cannot spell it: it cannot be dragged.")
                                  : QStringLiteral("In SQL: ") + toQString(table.dropped);
        rows.push_back(
            {shown, what, shown + (table.view ? QStringLiteral(", a view\n") : QStringLiteral("\n")) + inSql});
    }
    return rows;
}

std::vector<NameRow> columnRows(const Connection &c)
{
    std::vector<NameRow> rows;
    for (std::size_t i = 0; i < c.columns.size() && i < c.columnFacts.size(); ++i) {
        const ColumnFacts &facts = c.columnFacts[i];
        const QString name = toQString(c.columns[i]), type = fromText(facts.type);
        QString tip = name + '\n' + type + QStringLiteral("\nInput type ") +
                      QLatin1String(inputTypes[std::clamp<std::size_t>(c.columnTypes[i], 0, 6)]);
        if (c.columnTypes[i] == 0)
            tip += QStringLiteral(", length %1").arg(c.columnLengths[i]);
        rows.push_back(
            {name, type, tip + (facts.key ? QStringLiteral("\nBelongs to the primary key") : QString()), facts.key});
    }
    return rows;
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
    : QWidget(nullptr, Qt::Tool),
      owner(&mainWindow),
      jobs(connection(), [this](ConnectionJobs::Change change) { showChange(change); })
{
    setObjectName("odbcdbs");
    setWindowTitle("ODBC Toolbar");
    setAttribute(Qt::WA_AlwaysShowToolTips); // mostly another window is the active one
    auto *column = new QVBoxLayout(this);
    addSource(*column);
    addWaiting(*column);
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
    refresh = addButtonBeside(group.fields, "refreshbut", "Refresh");
    refresh->setToolTip(QStringLiteral("Reads the tables again"));
    connect(refresh, &QPushButton::clicked, this, [this] { jobs.refresh(); });
    makeDragSource(*dsn, "dsn", [this] { return offerOf(connection().source, dsn->text(), *dsn); });
}

// Keeps its place while nothing is waited for, so that the lists stay under the pointer.
void Odbcdbs::addWaiting(QVBoxLayout &layout)
{
    waiting = new QWidget(this);
    auto *row = new QHBoxLayout(waiting);
    row->setContentsMargins(0, 0, 0, 0);
    told = new QLabel(waiting);
    told->setObjectName("waiting");
    told->setTextFormat(Qt::PlainText);
    told->setSizePolicy(QSizePolicy::Ignored, QSizePolicy::Preferred);
    row->addWidget(told, 1);
    auto *giveUp = new QPushButton(QStringLiteral("Cancel"), waiting);
    giveUp->setObjectName("cancelbut");
    giveUp->setCursor(Qt::ArrowCursor);
    connect(giveUp, &QPushButton::clicked, this, [this] { jobs.cancel(); });
    row->addWidget(giveUp);
    QSizePolicy policy = waiting->sizePolicy();
    policy.setRetainSizeWhenHidden(true);
    waiting->setSizePolicy(policy);
    waiting->hide();
    layout.addWidget(waiting);
    patient = new QTimer(this);
    patient->setSingleShot(true);
    patient->setInterval(patience);
    connect(patient, &QTimer::timeout, waiting, [this] { waiting->show(); });
}

void Odbcdbs::addTables(QVBoxLayout &layout)
{
    Group group = addGroup(layout, "table", "Table");
    filter = addNameFilter(group.fields, "dbsfilter", QStringLiteral("Filter tables"));
    tblrows = addButtonBeside(group.fields, "rowsbut", "Rows");
    tblrows->setToolTip(QStringLiteral("Shows the first rows of the table"));
    dbslist = addListRow(group.fields, "dbslist", "");
    prepareNameList(*dbslist);
    dbslist->installEventFilter(this);
    // On the press: a drag of a table lists its columns too.
    connect(dbslist, &QListWidget::itemPressed, this, [this] { tableClicked(); });
    connect(dbslist, &QListWidget::itemSelectionChanged, this, [this] { enableRows(); });
    connect(filter, &QLineEdit::textChanged, this, [this] { filterNames(*filter, *dbslist); });
    connect(tblrows, &QPushButton::clicked, this,
            [this] { showTableRows(connection(), selectedRow(*dbslist), *this); });
    makeDragSource(*dbslist->viewport(), "dbs", [this] {
        const int row = selectedRow(*dbslist);
        return row < 0 ? std::nullopt : offerOf(droppedTable(connection(), row), dbslist->item(row)->text(), *dbslist);
    });
}

void Odbcdbs::addColumns(QVBoxLayout &layout)
{
    Group group = addGroup(layout, "field", "Field");
    fldlist = addListRow(group.fields, "fldlist", "");
    prepareNameList(*fldlist);
    fldlist->setSelectionMode(QAbstractItemView::ExtendedSelection);
    connect(fldlist, &QListWidget::itemDoubleClicked, this, [this] { placeChosen(); });
    makeDragSource(*fldlist->viewport(), "fld", [this] {
        const std::vector<DroppedColumn> columns = chosenColumns();
        const QString shown =
            columns.size() == 1 ? toQString(columns.front().name) : QStringLiteral("%1 columns").arg(columns.size());
        return offerOf(dragOfColumns(columns), shown, *fldlist);
    });
}

std::vector<DroppedColumn> Odbcdbs::chosenColumns() const
{
    std::vector<DroppedColumn> columns;
    for (int row = 0; row < fldlist->count(); ++row)
        if (const auto column = fldlist->item(row)->isSelected() ? columnAt(connection(), row) : std::nullopt)
            columns.push_back(*column);
    return columns;
}

void Odbcdbs::placeChosen()
{
    const std::vector<DroppedColumn> columns = chosenColumns();
    if (placed && !columns.empty())
        placed(columns);
}

void Odbcdbs::enableRows() { tblrows->setEnabled(selectedRow(*dbslist) >= 0); }

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
    if (event->type() != QEvent::KeyPress || static_cast<QKeyEvent *>(event)->isAutoRepeat())
        return QWidget::eventFilter(watched, event);
    const int key = static_cast<QKeyEvent *>(event)->key();
    if (watched == fldlist && (key == Qt::Key_Return || key == Qt::Key_Enter))
        placeChosen();
    if (watched == filter && (key == Qt::Key_Down || key == Qt::Key_Return || key == Qt::Key_Enter))
        enterNames(*dbslist); // its columns are listed when the key is released there
    return QWidget::eventFilter(watched, event);
}

void Odbcdbs::selectSource()
{
    const std::string reply = askDataSource(connection().source);
    jobs.connectTo(reply);
}

void Odbcdbs::tableClicked() { jobs.listColumns(selectedRow(*dbslist)); }

// What is listed already stays, with its selected column.
void Odbcdbs::tableKeyReleased() { jobs.listColumnsAfterKey(selectedRow(*dbslist)); }

void Odbcdbs::showConnection()
{
    dsn->setText(toQString(connection().source));
    dsn->setCursorPosition(0);
    refresh->setEnabled(!connection().source.empty());
    filter->clear();
    showTables();
}

void Odbcdbs::showTables()
{
    fillNames(*dbslist, tableRows(connection()));
    filterNames(*filter, *dbslist);
    dbslist->setCurrentRow(connection().listedTable);
    enableRows();
    showColumns();
}

void Odbcdbs::showChange(ConnectionJobs::Change change)
{
    switch (change) {
    case ConnectionJobs::Change::Doing: break;
    case ConnectionJobs::Change::Source: showConnection(); break;
    case ConnectionJobs::Change::Tables: showTables(); break;
    case ConnectionJobs::Change::Columns: showColumns(); break;
    }
    showWaiting();
}

// The pointer of this window alone: the others go on.
void Odbcdbs::showWaiting()
{
    const QString doing = toQString(jobs.doing());
    told->setText(doing);
    told->setToolTip(doing);
    if (doing.isEmpty()) {
        patient->stop();
        waiting->hide();
        unsetCursor();
        return;
    }
    setCursor(Qt::WaitCursor);
    if (!waiting->isVisible() && !patient->isActive())
        patient->start();
}

void Odbcdbs::showColumns() { fillNames(*fldlist, columnRows(connection())); }

void Odbcdbs::showEvent(QShowEvent *event)
{
    if (!event->spontaneous())
        kinds->press(textBoxButton); // whenever it opens
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
