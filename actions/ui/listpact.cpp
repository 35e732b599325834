#include "actions/action_kinds.h"
#include "actions/ui/actinput.h"
#include "actions/ui/action_dialog.h"
#include "actions/ui/action_dialogs.h"
#include "actions/ui/entry_buttons.h"

#include <QListWidget>

#include <algorithm>

namespace corvanta {

namespace {

std::optional<ActionEntry> askEntry(EntryCommand command, const ActionEntry &selected)
{
    return editActionEntry(command == EntryCommand::Edit ? selected : ActionEntry());
}

bool sameEntry(const ActionEntry &a, const ActionEntry &b) { return a.action == b.action && a.status == b.status; }

// A list that was left alone keeps its bytes, also those behind its entries; one without a count is completed.
std::string changedActionList(const std::string &text, const std::vector<ActionEntry> &before,
                              const std::vector<ActionEntry> &after)
{
    constexpr std::size_t codeAndCount = 4;
    const bool same = std::ranges::equal(before, after, sameEntry);
    return same && text.size() >= codeAndCount ? text : encodeActionList(after);
}

} // namespace

void showListpact()
{
    ActionDialog dialog("listpact");
    const std::vector<ActionEntry> before = decodeActionList(dialog.result);
    std::vector<ActionEntry> entries = before;
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
    dialog.run(*listedit, [&] { return changedActionList(dialog.result, before, entries); });
}

} // namespace corvanta
