#include "shell/ui/objlist.h"

#include "canvas/events.h"
#include "document/page.h"
#include "platform/qt/dialogs.h"
#include "platform/qt/text.h"
#include "platform/qt/window_switch.h"
#include "shell/commands.h"
#include "shell/object_list.h"

#include <QEvent>
#include <QHeaderView>
#include <QLineEdit>
#include <QPushButton>
#include <QScrollBar>
#include <QSignalBlocker>
#include <QTreeWidget>
#include <QVBoxLayout>

namespace corvanta {

namespace {

constexpr QSize listSize(620, 300); // pixels
constexpr int nameWidth = 130, numberWidth = 60, columnWidth = 170;

Objlist *theList = nullptr;

QTreeWidget *newList(QWidget *parent)
{
    auto *list = new QTreeWidget(parent);
    list->setObjectName(QStringLiteral("olist"));
    list->setAccessibleName(QStringLiteral("Object List"));
    list->setHeaderLabels({"Object type", "Top", "Left", "Data column", "Caption"});
    list->setRootIsDecorated(false);
    list->setUniformRowHeights(true);
    list->setMinimumSize(listSize);
    list->setColumnWidth(0, nameWidth);
    list->setColumnWidth(1, numberWidth);
    list->setColumnWidth(2, numberWidth);
    list->setColumnWidth(3, columnWidth);
    list->setVerticalScrollMode(QAbstractItemView::ScrollPerItem);
    for (int column : {1, 2})
        list->headerItem()->setTextAlignment(column, Qt::AlignRight | Qt::AlignVCenter);
    list->header()->setSectionsMovable(false);
    return list;
}

QTreeWidgetItem *listItem(std::int16_t index)
{
    const QStringList texts =
        toQString(objectListRow(page(), index)).replace(QStringLiteral("\t\t"), QStringLiteral("\t")).split('\t');
    const ObjectListDetails details = objectListDetails(page(), index);
    auto *item = new QTreeWidgetItem(texts + QStringList{toQString(details.column), toQString(details.caption)});
    item->setData(0, Qt::UserRole, index);
    for (int column : {1, 2})
        item->setTextAlignment(column, Qt::AlignRight | Qt::AlignVCenter);
    return item;
}

} // namespace

Objlist::Objlist()
{
    theList = this;
    QVBoxLayout *contents = startDialog(*this, "objlist", QStringLiteral("Object List"));
    filter = new QLineEdit(this);
    filter->setObjectName(QStringLiteral("filter"));
    filter->setAccessibleName(QStringLiteral("Filter"));
    filter->setPlaceholderText(QStringLiteral("Filter"));
    filter->setClearButtonEnabled(true);
    contents->addWidget(filter);
    olist = newList(this);
    contents->addWidget(olist, 1);
    connect(filter, &QLineEdit::textChanged, this, [this] { fill(); });
    following = canvasEvents().currentChanged.connect([this] { follow(); });
    const auto buttons = addButtons(*this, {{"selbut", "OK", [this] { accept(); }},
                                            {"propbut", "&Properties...", [this] { openProperties(); }},
                                            {"delbut", "&Delete", [this] {
                                                 deleteListedObject(static_cast<std::int16_t>(selectedRow()));
                                                 fill();
                                             }}});
    propbut = buttons[1];
    delbut = buttons[2];
    connect(olist, &QTreeWidget::itemSelectionChanged, this, [this] {
        if (selectedRow() < 0 && olist->currentItem()) // a click with Ctrl on the current row
            return olist->currentItem()->setSelected(true);
        chooseListedObject(static_cast<std::int16_t>(selectedRow()));
        refreshButtons();
    });
    connect(olist, &QTreeWidget::itemDoubleClicked, this, [this] { openProperties(); });
    fill();
    olist->setFocus();
    CentreDialog(*this);
}

Objlist::~Objlist() { theList = nullptr; }

void Objlist::fill()
{
    const QSignalBlocker quiet(olist);
    const int first = olist->verticalScrollBar()->value();
    olist->clear();
    for (std::int16_t i = 0; i < objectCount(page()); ++i)
        if (listedUnder(page(), i, toBytes(filter->text())))
            olist->addTopLevelItem(listItem(i));
    olist->verticalScrollBar()->setValue(first);
    follow();
}

// The row of the object that is current on the canvas is selected.
void Objlist::follow()
{
    const QSignalBlocker quiet(olist);
    QTreeWidgetItem *current = nullptr;
    for (int row = 0; row < olist->topLevelItemCount(); ++row)
        if (olist->topLevelItem(row)->data(0, Qt::UserRole).toInt() == editing().curobj)
            current = olist->topLevelItem(row);
    if (current != olist->currentItem() || !current)
        olist->setCurrentItem(current);
    if (current)
        current->setSelected(true);
    refreshButtons();
}

void Objlist::changeEvent(QEvent *event)
{
    QDialog::changeEvent(event);
    if (event->type() == QEvent::EnabledChange && isEnabled() && olist)
        fill(); // a property dialog that was not modal has closed
}

int Objlist::selectedRow() const
{
    const auto selected = olist->selectedItems();
    return selected.isEmpty() ? -1 : selected.front()->data(0, Qt::UserRole).toInt();
}

void Objlist::openProperties()
{
    if (selectedRow() < 0)
        return;
    runCommand(Command::ObjectProperties);
    fill();
}

void Objlist::refreshButtons()
{
    propbut->setEnabled(selectedRow() >= 0 && commandEnabled(Command::ObjectProperties));
    delbut->setEnabled(selectedRow() >= 0);
}

void showObjectList()
{
    if (theList)
        return theList->activateWindow();
    showSwitchingOff(new Objlist);
}

Objlist *openObjectList() { return theList && theList->isVisible() ? theList : nullptr; }

} // namespace corvanta
