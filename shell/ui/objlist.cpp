#include "shell/ui/objlist.h"

#include "document/page.h"
#include "platform/qt/dialogs.h"
#include "platform/qt/text.h"
#include "platform/qt/window_switch.h"
#include "shell/commands.h"
#include "shell/object_list.h"

#include <QEvent>
#include <QHeaderView>
#include <QPushButton>
#include <QScrollBar>
#include <QSignalBlocker>
#include <QTreeWidget>
#include <QVBoxLayout>

namespace corvanta {

namespace {

constexpr QSize listSize(360, 300); // pixels
constexpr int nameWidth = 170, numberWidth = 80;

Objlist *theList = nullptr;

QTreeWidget *newList(QWidget *parent)
{
    auto *list = new QTreeWidget(parent);
    list->setObjectName(QStringLiteral("olist"));
    list->setAccessibleName(QStringLiteral("Object List"));
    list->setHeaderLabels({"Object type", "Top", "Left"});
    list->setRootIsDecorated(false);
    list->setUniformRowHeights(true);
    list->setMinimumSize(listSize);
    list->setColumnWidth(0, nameWidth);
    list->setColumnWidth(1, numberWidth);
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
    auto *item = new QTreeWidgetItem(texts);
    for (int column : {1, 2})
        item->setTextAlignment(column, Qt::AlignRight | Qt::AlignVCenter);
    return item;
}

} // namespace

Objlist::Objlist()
{
    theList = this;
    QVBoxLayout *contents = startDialog(*this, "objlist", QStringLiteral("Object List"));
    olist = newList(this);
    contents->addWidget(olist, 1);
    const auto buttons = addButtons(*this, {{"selbut", "OK", [this] { accept(); }},
                                            {"propbut", "&Properties...", [this] { openProperties(); }},
                                            {"delbut", "&Delete", [this] {
                                                 deleteListedObject(static_cast<std::int16_t>(selectedRow()));
                                                 fill();
                                             }}});
    propbut = buttons[1];
    delbut = buttons[2];
    connect(olist, &QTreeWidget::itemSelectionChanged, this, [this] {
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
        olist->addTopLevelItem(listItem(i));
    if (hasObject(page(), editing().curobj))
        olist->setCurrentItem(olist->topLevelItem(editing().curobj));
    olist->verticalScrollBar()->setValue(first);
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
    return selected.isEmpty() ? -1 : olist->indexOfTopLevelItem(selected.front());
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
