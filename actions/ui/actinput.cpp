#include "actions/ui/actinput.h"

#include "actions/action_choice.h"
#include "actions/ui/action_controls.h"
#include "actions/ui/action_dialog.h"
#include "actions/ui/edit_action.h"
#include "platform/qt/text.h"

#include <QComboBox>
#include <QLineEdit>
#include <QPushButton>

namespace corvanta {

namespace {

// True after OK.
bool showActinput()
{
    ActionDialog dialog("actinput");
    const ActionEntry entry = decodeActionEntry(dialog.result);
    workingAction() = entry.action;
    Group group = addGroup(dialog.contents(), "actiongroup", "Action Properties");
    const ActionControls controls = addActionControls(group.fields, "&Action:", workingActionTarget(),
                                                      [&dialog] { dialog.findChild<QPushButton *>("ok")->setFocus(); });
    FillActionChoice(controls, ActionCode(workingAction()));
    QLineEdit *stat = addTextRow(group.fields, "stat", "&Status:");
    stat->setText(toQString(entry.status));
    selectWholeText(*stat);
    return dialog.run(*controls.actlist, [stat] {
        return encodeActionEntry({workingAction(), toBytes(stat->text())});
    });
}

} // namespace

std::optional<ActionEntry> editActionEntry(const ActionEntry &entry)
{
    const std::string outer = workingAction();
    bool confirmed = false;
    const std::string reply = ShowActionDialog([&confirmed] { confirmed = showActinput(); }, encodeActionEntry(entry));
    workingAction() = outer;
    return confirmed ? std::optional(decodeActionEntry(reply)) : std::nullopt;
}

} // namespace corvanta
