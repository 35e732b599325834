#include "objects/ui/entry_list.h"

#include "objects/properties.h"
#include "platform/asking.h"
#include "platform/qt/text.h"

#include <QListWidget>
#include <QPushButton>

#include <algorithm>

namespace corvanta {

namespace {

const char *captionOf(EntryCommand command)
{
    switch (command) {
    case EntryCommand::New: return "&New";
    case EntryCommand::Edit: return "&Edit";
    case EntryCommand::Insert: return "&Ins";
    case EntryCommand::Delete: return "&Del";
    }
    return "";
}

const char *titleOf(EntryCommand command)
{
    switch (command) {
    case EntryCommand::Edit: return "Edit Entry";
    case EntryCommand::Insert: return "Insert Entry";
    case EntryCommand::New:
    case EntryCommand::Delete: break;
    }
    return "New Entry";
}

bool grows(EntryCommand command) { return command == EntryCommand::New || command == EntryCommand::Insert; }

} // namespace

void addEntryButtons(QBoxLayout &layout, const char *name, const std::vector<EntryCommand> &commands, QListWidget &list,
                     std::function<void(EntryCommand, int)> edit)
{
    std::vector<std::string> names;
    for (std::size_t i = 0; i < commands.size(); ++i)
        names.push_back(name + std::to_string(i));
    std::vector<ButtonRow> rows;
    for (std::size_t i = 0; i < commands.size(); ++i)
        rows.push_back({names[i].c_str(), captionOf(commands[i]),
                        [edit, command = commands[i], &list] { edit(command, list.currentRow()); }});
    const std::vector<QPushButton *> buttons = addButtonRow(layout, rows);
    for (QPushButton *button : buttons)
        button->setAutoDefault(false);
    const auto update = [commands, buttons, &list] {
        for (std::size_t i = 0; i < commands.size(); ++i)
            buttons[i]->setEnabled(!needsSelection(commands[i]) || list.currentRow() >= 0);
    };
    update();
    QObject::connect(&list, &QListWidget::currentRowChanged, &list, update);
    if (std::find(commands.begin(), commands.end(), EntryCommand::Edit) != commands.end())
        QObject::connect(&list, &QListWidget::itemDoubleClicked, &list,
                         [edit, &list] { edit(EntryCommand::Edit, list.currentRow()); });
}

void showEntries(QListWidget &list, const std::vector<std::string> &texts, int selected)
{
    {
        const QSignalBlocker quiet(list);
        list.clear();
        for (const std::string &text : texts)
            list.addItem(toQString(text));
        list.setCurrentRow(selected);
    }
    emit list.currentRowChanged(list.currentRow());
}

std::string askEntryText(const TextEntries &what, EntryCommand command, std::size_t count, const std::string &current)
{
    if (grows(command) && !checkEntryLimit(count, what.kind, what.title))
        return {};
    const std::string initial = command == EntryCommand::Edit ? current : "";
    return askText(std::string(what.prompt) + '\t' + titleOf(command) + '\t' + initial);
}

} // namespace corvanta
