#pragma once

#include "platform/qt/dialogs.h"

#include <cstdint>
#include <functional>
#include <string>

namespace corvanta {

// The action that a pair of action controls edits. Of the working action by default; a List Box edits that of
// its selected entry.
struct ActionTarget {
    std::function<std::string()> get;
    std::function<void(std::string)> set;
    std::function<std::string()> stored; // comes back when its kind is chosen again
};

// workingAction(), with the action in the current object's record as the stored one.
ActionTarget workingActionTarget();

// The kind choice actlist and the button actbut ("&Properties...") beside it.
struct ActionControls {
    QComboBox *actlist = nullptr;
    QPushButton *actbut = nullptr;
};

// Adds the controls as a row. Choosing a kind and editing the parameters go to the target; afterEdit runs when an
// action dialog has closed.
ActionControls addActionControls(Fields &fields, const QString &label,
                                 const ActionTarget &target = workingActionTarget(),
                                 const std::function<void()> &afterEdit = {});

// Fills the kind choice, selects the kind of a code and enables actbut when it has a dialog.
void FillActionChoice(const ActionControls &controls, std::int16_t code);

} // namespace corvanta
