#include "actions/ui/entry_buttons.h"
#include "document/parse.h"
#include "objects/ui/dialogs.h"
#include "objects/ui/entry_list.h"
#include "objects/ui/entry_look.h"

#include <QListWidget>

namespace corvanta {

namespace {

constexpr TextEntries comboBox{"combo box", "Combo Box Properties", "Combo box entry:"};

void editEntry(PropertyDialog &d, QListWidget &list, EntryCommand command, int selected)
{
    auto &entries = d.values.comboEntries;
    std::string text;
    if (command != EntryCommand::Delete) {
        text = askEntryText(comboBox, command, entries.size(),
                            selected < 0 ? "" : entries[static_cast<std::size_t>(selected)]);
        if (text.empty())
            return;
    }
    showEntries(list, entries, applyEntry(entries, command, selected, text));
}

} // namespace

void buildCbxobj(PropertyDialog &d)
{
    const auto columns = addColumns(d.contents(), 2);
    addStandardProperties(d, *columns[0]);
    addBindingGroup(d, *columns[0]);
    addAutoSqlGroup(d, *columns[0], false);

    Group entries = addGroup(*columns[1], "combobox", "Combobox");
    QListWidget *list = addListRow(entries.fields, "cbxedit", "");
    addEntryButtons(*entries.contents, "cbbut",
                    {EntryCommand::New, EntryCommand::Edit, EntryCommand::Insert, EntryCommand::Delete}, *list,
                    [&d, list](EntryCommand command, int selected) { editEntry(d, *list, command, selected); });
    d.onLoad([&d, list] { showEntries(*list, d.values.comboEntries, -1); });

    Group look = addGroup(*columns[1], "look", "Appearance");
    addEntryAppearance(d, look, "cbxedit", true);
    addTabIndexRow(d, look.fields, "Tab Index:");
}

} // namespace corvanta
