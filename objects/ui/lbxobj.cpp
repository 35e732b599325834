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

// A new entry has no action; an edited one keeps its own.
EntryList<ListBoxEntry> entriesOf(PropertyDialog &d, QListWidget &list)
{
    auto &entries = d.values.listEntries;
    const auto ask = [&entries](EntryCommand command, const ListBoxEntry &selected) -> std::optional<ListBoxEntry> {
        const std::string text = askEntryText(listBox, command, entries.size(), selected.text);
        if (text.empty())
            return std::nullopt;
        return ListBoxEntry{text,
                            command == EntryCommand::Edit ? selected.action : actionKind(action::none).actionTemplate};
    };
    return {entries, list, [](const ListBoxEntry &entry, std::size_t) { return entry.text; }, ask, {}};
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

    Group entries = addGroup(*columns[1], "listbox", "Listbox");
    QListWidget *list = addListRow(entries.fields, "lbxedit", "");
    const EntryList<ListBoxEntry> edited = entriesOf(d, *list);
    addEntryButtons(*entries.contents, "lbbut",
                    {EntryCommand::New, EntryCommand::Edit, EntryCommand::Insert, EntryCommand::Delete}, edited);
    addEntryAction(d, entries, *list);
    d.onLoad([edited] { showEntries(edited, -1); });
}

} // namespace corvanta
