#pragma once

#include "actions/action_choice.h" // dialogExchange()

#include <functional>
#include <string>

class QDialog;

namespace corvanta {

// Opens the dialog of the action's kind modally and returns the edited action text; of a kind without a dialog the
// text unchanged.
std::string EditAction(const std::string &text);

// The exchange round one modal dialog: puts the text into the dialog exchange text, shows the dialog and returns what
// it has left there, which is then emptied.
std::string ShowActionDialog(const std::function<void()> &showModally, const std::string &text);

} // namespace corvanta
