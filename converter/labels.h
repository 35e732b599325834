#pragma once

#include "document/page.h"

#include <string>
#include <vector>

// Relations between the objects of a page: their order in the document, their labels and form names.
namespace corvanta {

// The objects in document order, which is the order of the Tab key. Objects whose kind has a tab index
// share the table positions of such objects by tab index, equal ones in table order; all others keep
// their table position. Records of unknown kinds are left out.
std::vector<std::int16_t> documentOrder(const Page &p);

// Fields that a visitor fills in and that are shown: they have a label and a form name.
bool isShownField(const Page &p, std::int16_t index);

// Whether an entry of a List Box has an action: then the box is a list of links and buttons, no field.
bool actsByEntry(const Page &p, std::int16_t index);

// The nearest Label with a text to an object's left or above it, on right-to-left pages also to its right, at most
// about one and a half of its lines away; noObject when there is none. Headings, in larger letters than the object's,
// are none.
std::int16_t nearestLabel(const Page &p, std::int16_t index);

struct FieldLabels {
    std::vector<std::int16_t> labelOf; // by object: its nearest label, or noObject
    std::vector<std::int16_t> fieldOf; // by label: the nearest of the fields that it labels, or noObject
};
FieldLabels fieldLabels(const Page &p);

// The form name of every field in UTF-8: its object name, made unique with its index; empty for other kinds.
std::vector<std::string> fieldNames(const Page &p);

} // namespace corvanta
