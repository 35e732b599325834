#include "actions/action.h"
#include "actions/action_kinds.h"
#include "actions/ui/entry_buttons.h"
#include "objects/ui/dialogs.h"
#include "objects/ui/entry_list.h"
#include "objects/ui/entry_look.h"

#include <QComboBox>
#include <QListWidget>
#include <QPushButton>

namespace corvanta {

namespace {

constexpr TextEntries listBox{"list box", "List Box Properties", "List box entry:"};

std::vector<std::string> textsOf(const std::vector<ListBoxEntry> &entries)
{
    std::vector<std::string> texts;
    for (const ListBoxEntry &entry : entries)
        texts.push_back(entry.text);
    return texts;
}

void editEntry(PropertyDialog &d, QListWidget &list, EntryCommand command, int selected)
{
    auto &entries = d.values.listEntries;
    const ListBoxEntry current = selected < 0 ? ListBoxEntry() : entries[static_cast<std::size_t>(selected)];
    ListBoxEntry entry{"", actionKind(action::none).actionTemplate};
    if (command == EntryCommand::Edit)
        entry.action = current.action;
    if (command != EntryCommand::Delete) {
        entry.text = askEntryText(listBox, command, entries.size(), current.text);
        if (entry.text.empty())
            return;
    }
    const int now = applyEntry(entries, command, selected, entry);
    showEntries(list, textsOf(entries), now);
}

// The action of the selected entry; the object's own action stays as it is.
ActionTarget entryTarget(PropertyDialog &d, QListWidget &list)
{
    const auto entry = [&d, &list]() -> ListBoxEntry * {
        const int row = list.currentRow();
        return row < 0 ? nullptr : &d.values.listEntries[static_cast<std::size_t>(row)];
    };
    const auto get = [entry] { return entry() ? entry()->action : std::string(); };
    const auto set = [entry](std::string text) {
        if (entry())
            entry()->action = std::move(text);
    };
    return {get, set, get};
}

void addEntryAction(PropertyDialog &d, Group &entries, QListWidget &list)
{
    Fields fields = addFields(*entries.contents);
    const ActionControls controls = addActionControls(fields, "&Action:", entryTarget(d, list),
                                                      [&d] { d.findChild<QPushButton *>("ok")->setFocus(); });
    const auto showAction = [&d, &list, controls] {
        const int row = list.currentRow();
        const bool selected = row >= 0;
        FillActionChoice(controls,
                         selected ? ActionCode(d.values.listEntries[static_cast<std::size_t>(row)].action) : -1);
        setFieldEnabled(*controls.actlist, selected);
        if (!selected)
            controls.actbut->setEnabled(false);
    };
    QObject::connect(&list, &QListWidget::currentRowChanged, &list, showAction);
}

} // namespace

void buildLbxobj(PropertyDialog &d)
{
    const auto columns = addColumns(d.contents(), 2);
    addStandardProperties(d, *columns[0]);
    Group look = addGroup(*columns[0], "look", "Appearance");
    addEntryAppearance(d, look, "lbxedit", true);
    addTabIndexRow(d, look.fields, "Tab Index:");

    Group entries = addGroup(*columns[1], "listbox", "Listbox");
    QListWidget *list = addListRow(entries.fields, "lbxedit", "");
    addEntryButtons(*entries.contents, "lbbut",
                    {EntryCommand::New, EntryCommand::Edit, EntryCommand::Insert, EntryCommand::Delete}, *list,
                    [&d, list](EntryCommand command, int selected) { editEntry(d, *list, command, selected); });
    addEntryAction(d, entries, *list);
    d.onLoad([&d, list] { showEntries(*list, textsOf(d.values.listEntries), -1); });
}

} // namespace corvanta
