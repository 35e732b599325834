#pragma once

#include "document/page.h"

#include <map>
#include <string>
#include <vector>

// Pages taken apart into values, so that two of them can be held against each other, and put together again.
namespace corvanta {

struct Field {
    std::string name;  // of the record's description, with that of its group: "font.FontSize"
    std::string bytes; // as in a file
    std::string shown; // for people, bytes of the code page
};
using Fields = std::vector<Field>;

struct ComparedObject {
    std::int16_t kind = 0;
    std::string title; // Kind "NAME" by name or caption
    Fields fields;
};

struct ComparedPage {
    Fields header; // with the page's grid columns; without the version
    std::vector<ComparedObject> objects;
};

ComparedPage takenApart(const Page &p);

// The page that the values describe. An object that the page cannot take (a fourth ticker) is left out: its index is
// added to refused.
Page putTogether(const ComparedPage &parts, std::vector<std::size_t> &refused);

// The value of a name; none when the object has no such field.
const Field *fieldNamed(const Fields &fields, const std::string &name);

// What people call a field.
std::string fieldTitle(const std::string &name);

} // namespace corvanta
