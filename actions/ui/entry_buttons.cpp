#include "actions/ui/entry_buttons.h"

#include "platform/qt/text.h"

#include <QKeyEvent>
#include <QListWidget>
#include <QPushButton>
#include <QSignalBlocker>

#include <algorithm>

namespace corvanta {

namespace {

using Commands = std::vector<EntryCommand>;
using Edit = std::function<void(EntryCommand, int)>;

const char *captionOf(EntryCommand command)
{
    switch (command) {
    case EntryCommand::New: return "&New";
    case EntryCommand::Edit: return "&Edit";
    case EntryCommand::Insert: return "&Ins";
    case EntryCommand::Delete: return "&Del";
    case EntryCommand::Up:
    case EntryCommand::Down: break;
    }
    return "";
}

std::optional<EntryCommand> commandOf(const QKeyEvent &key)
{
    const auto modifiers = key.modifiers() & ~Qt::KeypadModifier;
    if (modifiers == Qt::AltModifier && key.key() == Qt::Key_Up)
        return EntryCommand::Up;
    if (modifiers == Qt::AltModifier && key.key() == Qt::Key_Down)
        return EntryCommand::Down;
    if (modifiers != Qt::NoModifier)
        return std::nullopt;
    switch (key.key()) {
    case Qt::Key_F2: return EntryCommand::Edit;
    case Qt::Key_Insert: return EntryCommand::Insert;
    case Qt::Key_Delete: return EntryCommand::Delete;
    }
    return std::nullopt;
}

// The keys of a list. Insert without a selected entry is New.
class EntryKeys : public QObject {
public:
    EntryKeys(QListWidget &edited, Commands offered, Edit command)
        : QObject(&edited), list(edited), commands(std::move(offered)), edit(std::move(command))
    {
        list.installEventFilter(this);
    }

    bool eventFilter(QObject *, QEvent *event) override
    {
        if (event->type() != QEvent::KeyPress)
            return false;
        auto command = commandOf(*static_cast<QKeyEvent *>(event));
        if (!command || (takesEntry(*command) && std::ranges::find(commands, *command) == commands.end()))
            return false;
        const int row = list.currentRow();
        if (row < 0 && command == EntryCommand::Insert)
            command = EntryCommand::New;
        if (row >= 0 || !needsSelection(*command))
            edit(*command, row);
        return true;
    }

private:
    QListWidget &list;
    Commands commands;
    Edit edit;
};

} // namespace

void addEntryCommands(QBoxLayout &layout, const char *name, const Commands &commands, QListWidget &list,
                      const Edit &edit)
{
    std::vector<std::string> names;
    for (std::size_t i = 0; i < commands.size(); ++i)
        names.push_back(name + std::to_string(i));
    std::vector<ButtonRow> rows;
    for (std::size_t i = 0; i < commands.size(); ++i)
        rows.push_back({names[i].c_str(), captionOf(commands[i]),
                        [edit, command = commands[i], &list] { edit(command, list.currentRow()); }});
    const std::vector<QPushButton *> buttons = addButtonRow(layout, rows);
    const auto update = [commands, buttons, &list] {
        for (std::size_t i = 0; i < commands.size(); ++i)
            buttons[i]->setEnabled(!needsSelection(commands[i]) || list.currentRow() >= 0);
    };
    update();
    QObject::connect(&list, &QListWidget::currentRowChanged, &list, update);
    new EntryKeys(list, commands, edit);
    if (std::ranges::find(commands, EntryCommand::Edit) != commands.end())
        QObject::connect(&list, &QListWidget::itemDoubleClicked, &list,
                         [edit, &list] { edit(EntryCommand::Edit, list.currentRow()); });
}

void showLines(QListWidget &list, const std::vector<std::string> &texts, int selected)
{
    {
        const QSignalBlocker quiet(list);
        list.clear();
        for (const std::string &text : texts)
            list.addItem(toQString(text));
        list.setCurrentRow(selected);
        if (selected < 0)
            list.setCurrentIndex({}); // else the toolkit makes the first current when the list gets the focus
    }
    emit list.currentRowChanged(list.currentRow());
}

} // namespace corvanta
