#pragma once

#include "document/page.h"
#include "objects/common_fields.h"

#include <string>
#include <vector>

// What the property dialogs of the thirteen kinds show and write back. A dialog loads the fields of its object,
// lets the author change those that it has, and confirms them; cancelling is forgetting them.
namespace corvanta {

// The fields of all dialogs, named as their controls; each kind uses its own.
struct PropertyFields : CommonFields {
    std::string action; // the working action
    FontBlock font;     // the working font
    std::string col;    // background colour as hexadecimal digits
    std::string cap;
    std::string imgfn, txtfn, filepath, imgpath, url;
    std::string bwidth, viewcond, enacond, credits, auditmsg, balhelp; // Button
    bool trans = false, bstyle = false;
    bool hover = false, readonly = false, exludesql = false, invisible = false, multi = false;
    int inptype = -1, sysobj = -1; // list indices
    std::string maxlen, speed;
    std::vector<std::string> comboEntries;
    std::vector<ListBoxEntry> listEntries;
    std::vector<GridColumn> columns; // without a spare entry
    bool frozen = false, strictime = false;
    std::string nplay;
    std::vector<Frame> frames;
};

// The fields of an object of the process-wide page.
PropertyFields LoadProperties(std::int16_t index);

// Checks the fields in the kind's order, telling what is wrong, and writes them back.
Confirmation ConfirmProperties(std::int16_t index, const PropertyFields &fields);

// The two halves of it: the checks alone (an object of an unknown kind is refused), and writing back what they passed:
// fields that still read as LoadProperties gives them stay as they are.
Confirmation CheckProperties(std::int16_t index, const PropertyFields &fields);
void StoreProperties(std::int16_t index, const PropertyFields &fields);

// Whether a kind's dialog shows the data column, the input type and the frame "Auto SQL": not on pages of the type
// "Menu", but for a Combo Box.
bool showsDataFields(const Page &p, Kind kind);

// Whether a kind's dialog has the colour of the element's background.
bool hasColour(Kind kind);

// The checks of an Animation, stopping at the first fault.
Confirmation CheckAnimation(const PropertyFields &fields);

// Whether "New" and "Insert" may add to a list of so many entries; tells when not. kind is "combo box", "list box"
// or "grid header".
bool checkEntryLimit(std::size_t entries, const std::string &kind, const std::string &title);

} // namespace corvanta
