#include "actions/ui/entry_buttons.h"
#include "document/parse.h"
#include "objects/ui/dialogs.h"
#include "objects/ui/entry_list.h"
#include "objects/ui/entry_look.h"

#include <QListWidget>

namespace corvanta {

namespace {

constexpr TextEntries comboBox{"combo box", "Combo Box Properties", "Combo box entry:"};

EntryList<std::string> entriesOf(PropertyDialog &d, QListWidget &list)
{
    auto &entries = d.values.comboEntries;
    const auto ask = [&entries](EntryCommand command, const std::string &selected) {
        const std::string text = askEntryText(comboBox, command, entries.size(), selected);
        return text.empty() ? std::nullopt : std::optional(text);
    };
    return {entries, list, [](const std::string &entry, std::size_t) { return entry; }, ask, {}};
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
    const EntryList<std::string> edited = entriesOf(d, *list);
    addEntryButtons(*entries.contents, "cbbut",
                    {EntryCommand::New, EntryCommand::Edit, EntryCommand::Insert, EntryCommand::Delete}, edited);
    d.onLoad([edited] { showEntries(edited, -1); });

    Group look = addGroup(*columns[1], "look", "Appearance");
    addEntryAppearance(d, look, "cbxedit", true);
}

} // namespace corvanta
