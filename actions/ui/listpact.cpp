#include "actions/action_kinds.h"
#include "actions/ui/actinput.h"
#include "actions/ui/action_dialog.h"
#include "actions/ui/action_dialogs.h"
#include "actions/ui/entry_buttons.h"

#include <QListWidget>

namespace corvanta {

namespace {

std::vector<std::string> captionsOf(const std::vector<ActionEntry> &entries)
{
    std::vector<std::string> captions;
    for (const ActionEntry &entry : entries)
        captions.push_back(actionCaption(entry.action));
    return captions;
}

void editEntry(std::vector<ActionEntry> &entries, QListWidget &list, EntryCommand command, int selected)
{
    ActionEntry entry;
    if (command != EntryCommand::Delete) {
        const bool edits = command == EntryCommand::Edit;
        const auto edited = editActionEntry(edits ? entries.at(static_cast<std::size_t>(selected)) : ActionEntry());
        if (!edited)
            return;
        entry = *edited;
    }
    const int now = applyEntry(entries, command, selected, entry);
    showEntries(list, captionsOf(entries), now);
}

} // namespace

void showListpact()
{
    ActionDialog dialog("listpact");
    std::vector<ActionEntry> entries = decodeActionList(dialog.result);
    Group group = addGroup(dialog.contents(), "listgroup", "List of Actions");
    QListWidget *listedit = addListRow(group.fields, "listedit", {});
    addEntryButtons(
        *group.contents, "lstbut", {EntryCommand::New, EntryCommand::Edit, EntryCommand::Insert, EntryCommand::Delete},
        *listedit,
        [&entries, listedit](EntryCommand command, int selected) { editEntry(entries, *listedit, command, selected); });
    showEntries(*listedit, captionsOf(entries), -1);
    dialog.run(*listedit, [&entries] { return encodeActionList(entries); });
}

} // namespace corvanta
