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

// The dialog caption of a kind: its name followed by " Properties".
std::string propertiesCaption(Kind kind);

// The common fields of an object of the process-wide page.
CommonFields LoadCommonProperties(std::int16_t index);

// True when top, left, height and width lie on the page, each by itself. Tells the first that does not.
bool CheckPlacement(Kind kind, const CommonFields &fields);

// Writes the common fields and the working action to the object and sets pagedirty. Binding fields of kinds without
// binding become empty.
void StoreCommonProperties(std::int16_t index, const CommonFields &fields, std::string_view workingAction);

// Sets or clears one flag of a record.
void setFlag(ObjectRecord &o, ObjectFlag flag, bool on);

} // namespace corvanta
