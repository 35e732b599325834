#include "shell/ui/menus.h"

#include "document/kinds.h"
#include "platform/help.h"
#include "platform/qt/text.h"
#include "shell/commands.h"
#include "shell/ui/canvas_menu.h"
#include "shell/ui/icons.h"

#include <QAction>
#include <QKeyEvent>
#include <QKeySequence>
#include <QMenu>
#include <QMenuBar>

namespace corvanta {

namespace {

const QAction *highlighted(QObject *menu)
{
    if (const auto *popup = qobject_cast<QMenu *>(menu))
        return popup->activeAction();
    const auto *bar = qobject_cast<QMenuBar *>(menu);
    return bar ? bar->activeAction() : nullptr;
}

} // namespace

Menus::Menus(QMenuBar &menuBar) : QObject(&menuBar), bar(menuBar)
{
    bar.installEventFilter(this);
    for (const MenuRow &row : menuTable()) {
        QAction *action = addRow(row);
        action->setObjectName(row.element);
        if (row.helpId != 0)
            action->setProperty("helpid", static_cast<qlonglong>(row.helpId));
        items.emplace_back(action, row.command);
    }
    connect(menu("objmenu"), &QMenu::aboutToShow, this, [this] { refreshCommands(); });
    refreshCommands();
}

QAction *Menus::addRow(const MenuRow &row)
{
    QWidget &parent = *row.parent ? static_cast<QWidget &>(*menu(row.parent)) : bar;
    const QString caption = QString::fromLatin1(row.caption);
    if (isSubmenu(row)) {
        auto *submenu = new QMenu(caption, &bar);
        submenu->installEventFilter(this);
        submenus[row.element] = submenu;
        parent.addAction(submenu->menuAction());
        return submenu->menuAction();
    }
    auto *action = new QAction(&parent);
    action->setSeparator(isSeparator(row));
    action->setText(isSeparator(row) ? QString() : caption);
    action->setShortcuts(shortcutsOf(row.command));
    action->setShortcutContext(Qt::ApplicationShortcut); // on the canvas as well
    action->setCheckable(isMark(row.command));
    action->setMenuRole(QAction::NoRole);
    connect(action, &QAction::triggered, this, [command = row.command] { runCommand(command); });
    parent.addAction(action);
    return action;
}

void Menus::addKinds()
{
    QMenu *add = menu("addmenu");
    for (const RegisteredKind &kind : orderedAddMenu()) {
        QAction *item = add->addAction(kindIcon(static_cast<Kind>(kind.code)), toQString(kind.menuCaption));
        item->setObjectName(QStringLiteral("addobjmenu%1").arg(kind.menuIndex));
        connect(item, &QAction::triggered, this, [index = kind.menuIndex] { addFromMenu(index); });
    }
    add->actions().front()->setVisible(false);
}

void Menus::refreshCommands()
{
    for (const auto &[action, command] : items) {
        action->setEnabled(commandEnabled(command));
        if (action->isCheckable())
            action->setChecked(commandChecked(command));
    }
}

void Menus::open(char letter)
{
    for (const auto &[element, submenu] : submenus)
        if (bar.actions().contains(submenu->menuAction()) && submenu->title().startsWith(QString('&') + letter))
            bar.setActiveAction(submenu->menuAction());
}

void Menus::openAdd()
{
    open('O');
    menu("objmenu")->setActiveAction(menu("addmenu")->menuAction());
}

bool Menus::eventFilter(QObject *watched, QEvent *event)
{
    if (event->type() != QEvent::KeyPress || static_cast<const QKeyEvent *>(event)->key() != Qt::Key_F1)
        return false;
    const QAction *action = highlighted(watched);
    const long helpId = action ? static_cast<long>(action->property("helpid").toLongLong()) : 0;
    if (helpId != 0)
        showHelp(HelpCommand::Context, helpId);
    return helpId != 0;
}

} // namespace corvanta
