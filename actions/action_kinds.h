#pragma once

#include <cstdint>
#include <string>
#include <string_view>
#include <vector>

namespace corvanta {

// An entry of the action kind table, indexed by kind code.
struct ActionKind {
    std::string caption; // empty for codes that are not offered
    std::string actionTemplate;
    bool hasDialog = false;
};

// The table of codes 0 to 523 with one empty entry after the highest code; read-only, for any thread.
const std::vector<ActionKind> &actionKinds();
void BuildActionKinds(); // fills the table, which else its first reader does; called once at start-up

// The code whose caption equals the text, letter case ignored; -1 when none does.
std::int16_t FindActionKind(std::string_view caption);
// The kind's entry; an empty one for codes outside the table.
const ActionKind &actionKind(std::int16_t code);
// What a list shows for an action: its kind's caption, empty for kinds that are not offered.
std::string actionCaption(std::string_view text);

} // namespace corvanta
