#pragma once

#include "document/page.h"

#include <string>
#include <string_view>

// The fields that the property dialogs of all kinds share: loaded as texts, checked, stored.
namespace corvanta {

// As shown in the dialog's fields. A dialog without one of the fields leaves it as it was loaded.
struct CommonFields {
    std::string ptop, pleft, pheight, pwidth; // pixels of the page, decimal
    std::string keyreq, sptext;
    int alignment = -1; // index of the alignment list; -1 none
    std::string tbindex;
    std::string ctlname, datacol, updatekey, condobjname;
};

// What a confirmed dialog comes to. A refused one stays open, the message told; focus names the control that the
// message is about.
struct Confirmation {
    bool stored = false; // of the checks alone: passed
    std::string focus;
    int entry = -1; // the entry of the dialog's list that the message is about; -1 none
};

// The dialog caption of a kind: its name followed by " Properties".
std::string propertiesCaption(Kind kind);

// What is told of a field with a wrong value: Invalid label "Top".
std::string invalidField(Kind kind, const char *field);

// The common fields of an object of the process-wide page.
CommonFields LoadCommonProperties(std::int16_t index);

// Whether top, left, height and width lie on the page, each by itself. Tells the first that does not.
Confirmation CheckPlacement(Kind kind, const CommonFields &fields);

// Writes the common fields and the working action to the object and sets pagedirty. Binding fields of kinds without
// binding become empty.
void StoreCommonProperties(std::int16_t index, const CommonFields &fields, std::string_view workingAction);

// Sets or clears one flag of a record.
void setFlag(ObjectRecord &o, ObjectFlag flag, bool on);

} // namespace corvanta
