#include "actions/action_kinds.h"
#include "actions/ui/actinput.h"
#include "actions/ui/action_dialog.h"
#include "actions/ui/action_dialogs.h"
#include "actions/ui/entry_buttons.h"

#include <QListWidget>

namespace corvanta {

namespace {

std::optional<ActionEntry> askEntry(EntryCommand command, const ActionEntry &selected)
{
    return editActionEntry(command == EntryCommand::Edit ? selected : ActionEntry());
}

} // namespace

void showListpact()
{
    ActionDialog dialog("listpact");
    std::vector<ActionEntry> entries = decodeActionList(dialog.result);
    Group group = addGroup(dialog.contents(), "listgroup", "List of Actions");
    QListWidget *listedit = addListRow(group.fields, "listedit", {});
    const EntryList<ActionEntry> list{entries,
                                      *listedit,
                                      [](const ActionEntry &entry, std::size_t) { return actionCaption(entry.action); },
                                      askEntry,
                                      {}};
    addEntryButtons(*group.contents, "lstbut",
                    {EntryCommand::New, EntryCommand::Edit, EntryCommand::Insert, EntryCommand::Delete}, list);
    showEntries(list, -1);
    dialog.run(*listedit, [&entries] { return encodeActionList(entries); });
}

} // namespace corvanta
