#pragma once

#include "converter/labels.h"
#include "converter/target.h"
#include "document/page.h"

#include <cstdint>
#include <filesystem>
#include <set>
#include <string>
#include <string_view>
#include <vector>

// The elements of a template, one function per kind. Each writes the object's element with its id and
// the rule of that id.
namespace corvanta {

// A template that is being written. All texts are UTF-8.
struct Template {
    Template(const Page &p, const std::filesystem::path &host)
        : page(p), folder(host), labels(fieldLabels(p)), names(fieldNames(p))
    {
    }

    const Page &page;
    const std::filesystem::path &folder; // host path of the page directory; empty when it is not to be looked into
    FieldLabels labels;
    std::vector<std::string> names;   // form names by object
    std::string style;                // rules by id
    std::string objects;              // the elements inside the page's box
    std::string dialogs;              // the dialogs of message boxes
    std::set<std::string> accessKeys; // that have been given away
    bool submits = false;             // a submit button was written
};

// Writes an object of any kind.
void writeElement(Template &t, std::int16_t index);

void writeButton(Template &t, std::int16_t index);
void writeHotSpot(Template &t, std::int16_t index);
void writeLabel(Template &t, std::int16_t index);
void writeUrl(Template &t, std::int16_t index);
void writeListBox(Template &t, std::int16_t index);
void writeTextBox(Template &t, std::int16_t index);
void writeComboBox(Template &t, std::int16_t index);
void writeFile(Template &t, std::int16_t index);
void writeImage(Template &t, std::int16_t index);
void writeImageDb(Template &t, std::int16_t index);
void writeTicker(Template &t, std::int16_t index);
void writeAnimation(Template &t, std::int16_t index);
void writeGrid(Template &t, std::int16_t index);

} // namespace corvanta
