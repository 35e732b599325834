#pragma once

#include <cstdint>
#include <string>
#include <string_view>
#include <vector>

// The rules behind the action controls of a dialog: the kind choice and its "&Properties..." button.
namespace corvanta {

// The action text that the open action controls edit; one for the whole editor.
std::string &workingAction();
// The text through which an action dialog gets its input and hands back its result; empty while no action
// dialog is open.
std::string &dialogExchange();

// The codes of the offered kinds in the order of the kind choice.
std::vector<std::int16_t> offeredActions();

// The working action after a caption was selected: the template of its kind, or the stored action when that
// is of this kind. The working action's own kind and a caption of no kind change nothing.
std::string chosenAction(std::string_view caption, std::string_view working, std::string_view stored);

// Whether "&Properties..." is enabled for a kind.
bool hasActionDialog(std::int16_t code);

} // namespace corvanta
