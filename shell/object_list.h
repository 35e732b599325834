#pragma once

#include "document/page.h"

#include <string>

// The rows of the object list window and what is done to them. Rows are objects in index order.
namespace corvanta {

// Kind name, tab, a second tab after a name of fewer than 9 characters, top, tab, left.
std::string objectListRow(const Page &p, std::int16_t index);

// Makes the row's object current and shows its handles, unless it is current already.
void chooseListedObject(std::int16_t index);

// Deletes the row's object.
void deleteListedObject(std::int16_t index);

} // namespace corvanta
