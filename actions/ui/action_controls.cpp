#include "actions/ui/action_controls.h"

#include "actions/action_choice.h"
#include "actions/action_kinds.h"
#include "actions/ui/edit_action.h"
#include "document/page.h"
#include "platform/qt/text.h"

#include <QComboBox>
#include <QPushButton>
#include <QSignalBlocker>

#include <utility>

namespace corvanta {

namespace {

constexpr int leastCaption = 12; // characters of a long caption that are seen

std::string storedAction()
{
    const std::int16_t current = editing().curobj;
    return hasObject(page(), current) ? page().objects[static_cast<std::size_t>(current)].actlist : std::string();
}

void ChooseAction(const ActionControls &controls, const ActionTarget &target)
{
    const std::string caption = toBytes(controls.actlist->currentText());
    target.set(chosenAction(caption, target.get(), target.stored()));
    controls.actbut->setEnabled(hasActionDialog(FindActionKind(caption)));
}

void EditActionParameters(const ActionTarget &target) { target.set(EditAction(target.get())); }

} // namespace

ActionTarget workingActionTarget()
{
    return {[] { return workingAction(); }, [](std::string text) { workingAction() = std::move(text); }, storedAction};
}

ActionControls addActionControls(Fields &fields, const QString &label, const ActionTarget &target,
                                 const std::function<void()> &afterEdit)
{
    ActionControls controls;
    controls.actlist = addComboRow(fields, "actlist", label);
    controls.actlist->setSizeAdjustPolicy(QComboBox::AdjustToMinimumContentsLengthWithIcon);
    controls.actlist->setMinimumContentsLength(leastCaption);
    controls.actbut = addButtonBeside(fields, "actbut", "&Properties...");
    QObject::connect(controls.actlist, &QComboBox::currentIndexChanged, controls.actbut,
                     [controls, target] { ChooseAction(controls, target); });
    QObject::connect(controls.actbut, &QPushButton::clicked, controls.actlist, [target, afterEdit] {
        EditActionParameters(target);
        if (afterEdit)
            afterEdit();
    });
    return controls;
}

void FillActionChoice(const ActionControls &controls, std::int16_t code)
{
    const QSignalBlocker quiet(controls.actlist);
    controls.actlist->clear();
    for (const std::int16_t offered : offeredActions())
        controls.actlist->addItem(toQString(actionKind(offered).caption), offered);
    controls.actlist->setCurrentIndex(controls.actlist->findData(code));
    controls.actbut->setEnabled(hasActionDialog(code));
}

} // namespace corvanta
