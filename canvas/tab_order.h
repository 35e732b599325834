#pragma once

#include <cstdint>
#include <string>

// Numbering the objects of the process-wide page by clicking one after the other. The whole of it is one act.
namespace corvanta {

// Whether an object's kind has a tab number.
bool hasTabNumber(std::int16_t index);

bool hasTabNumbers(); // any object of the page
bool tabOrderActive();
// Begins with number 1; nothing on a page without an object that has a number.
void startTabOrder();
// Gives the object the next number; nothing for one without numbers, and for the one that has just got its number.
void numberObject(std::int16_t index);
// Ends the numbering and completes the act.
void endTabOrder();
// Ends it for a page that goes: nothing is completed.
void dropTabOrder();

// What to do next, for the status panel.
std::string tabOrderText();

} // namespace corvanta
