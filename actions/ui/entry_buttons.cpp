#include "actions/ui/entry_buttons.h"

#include "platform/qt/text.h"

#include <QListWidget>
#include <QPushButton>
#include <QSignalBlocker>

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
    // The toolkit makes an entry current, but does not select it, when the list gets the focus.
    const auto update = [commands, buttons, &list] {
        if (list.currentItem())
            list.currentItem()->setSelected(true);
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

} // namespace corvanta
