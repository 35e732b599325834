#include "shell/ui/canvas_menu.h"

#include "canvas/gestures.h"
#include "canvas/selection.h"
#include "canvas/ui/drop.h"
#include "document/kinds.h"
#include "document/objects.h"
#include "platform/qt/text.h"
#include "shell/clipboard.h"
#include "shell/commands.h"
#include "shell/ui/icons.h"
#include "shell/ui/recent_pages.h"

#include <QAction>
#include <QKeySequence>

#include <algorithm>

namespace corvanta {

namespace {

constexpr Command keyCommands[] = {Command::Undo,      Command::Redo,
                                   Command::Cut,       Command::Copy,
                                   Command::Paste,     Command::DuplicateObjects,
                                   Command::SelectAll, Command::SharedProperties,
                                   Command::TabOrder,  Command::Preview};

void runEnabled(Command command)
{
    if (commandEnabled(command))
        runCommand(command);
}

} // namespace

QList<QKeySequence> shortcutsOf(Command command)
{
    switch (command) {
    case Command::New: return {QKeySequence::New};
    case Command::Open: return {QKeySequence::Open};
    case Command::Save: return {QKeySequence::Save};
    case Command::SaveAs: return {QKeySequence::SaveAs};
    case Command::Exit: return {QKeySequence::Quit};
    case Command::Undo: return {QKeySequence("Ctrl+Z")};
    case Command::Redo: return {QKeySequence("Ctrl+Y"), QKeySequence("Ctrl+Shift+Z")};
    case Command::Cut: return {QKeySequence("Ctrl+X")};
    case Command::Copy: return {QKeySequence("Ctrl+C")};
    case Command::Paste: return {QKeySequence("Ctrl+V")};
    case Command::DuplicateObjects: return {QKeySequence("Ctrl+D")};
    case Command::SelectAll: return {QKeySequence("Ctrl+A")};
    case Command::Preview: return {QKeySequence("Ctrl+R")};
    case Command::TabOrder: return {QKeySequence("Ctrl+T")};
    case Command::SharedProperties: return {QKeySequence("Ctrl+Return"), QKeySequence("Ctrl+Enter")};
    default: return {};
    }
}

void addCommandKeys(QWidget &window)
{
    for (const Command command : keyCommands) {
        auto *action = new QAction(&window);
        action->setShortcuts(shortcutsOf(command));
        QObject::connect(action, &QAction::triggered, &window, [command] { runEnabled(command); });
        window.addAction(action);
    }
}

CanvasMenu::CanvasMenu(QPoint pagePoint, QWidget *parent) : QMenu(parent), at(pagePoint)
{
    setObjectName(QStringLiteral("canvasmenu"));
    for (const MenuRow &row : contextTable())
        addRow(row);
}

void CanvasMenu::addRow(const MenuRow &row)
{
    QMenu *parent = *row.parent ? findChild<QMenu *>(row.parent) : this;
    if (isSeparator(row)) {
        parent->addSeparator();
        return;
    }
    const std::string caption = commandCaption(row.command);
    const QString text = caption.empty() ? QString::fromLatin1(row.caption) : toQString(caption);
    if (row.command == Command::Align || row.command == Command::AddKind || row.command == Command::RecentPages) {
        QMenu *submenu = parent->addMenu(text);
        submenu->setObjectName(row.element);
        submenu->setEnabled(commandEnabled(row.command));
        if (row.command == Command::AddKind)
            addKinds(*submenu);
        if (row.command == Command::RecentPages)
            addRecentPages(*submenu);
        return;
    }
    QAction *action = parent->addAction(text, this, [this, command = row.command] { run(command); });
    action->setObjectName(row.element);
    action->setEnabled(commandEnabled(row.command));
    action->setCheckable(isMark(row.command));
    action->setChecked(commandChecked(row.command));
    if (const auto keys = shortcutsOf(row.command); !keys.isEmpty()) {
        action->setShortcut(keys.front());
        action->setShortcutContext(Qt::WidgetShortcut); // shown here; the windows have the key
    }
}

// All thirteen, in the order of their names.
void CanvasMenu::addKinds(QMenu &menu)
{
    std::vector<Kind> kinds;
    for (std::int16_t code = firstKind; code <= lastKind; ++code)
        kinds.push_back(static_cast<Kind>(code));
    std::ranges::sort(kinds, {}, [](Kind kind) { return std::string_view(kindRow(kind).displayName); });
    for (const Kind kind : kinds) {
        QAction *action = menu.addAction(kindIcon(kind), QString::fromLatin1(kindRow(kind).displayName));
        action->setObjectName(QStringLiteral("cadd") + QString::fromLatin1(kindRow(kind).prefix));
        connect(action, &QAction::triggered, this, [this, kind] { dropObject(kind, {at.x(), at.y()}); });
    }
}

void CanvasMenu::run(Command command)
{
    if (command == Command::Paste)
        pasteObjects(Point{at.x(), at.y()});
    else
        runEnabled(command);
}

void openCanvasMenu(std::int16_t index, QPoint pagePoint, QPoint onScreen, QWidget *parent)
{
    if (gestureActive())
        return;
    const auto chosen = chosenObjects();
    if (index != noObject && std::ranges::find(chosen, index) == chosen.end()) {
        clearMultiSelection();
        selectObject(index);
        showTrackers();
    }
    auto *menu = new CanvasMenu(pagePoint, parent);
    menu->setAttribute(Qt::WA_DeleteOnClose);
    menu->popup(onScreen);
}

} // namespace corvanta
