#pragma once

#include "objects/properties.h"

#include <bitset>
#include <span>

// The properties of several objects at once: the fields that the dialogs of all their kinds have in common.
namespace corvanta {

// What a shared field is: one of the members is set, or none for the font.
struct SharedField {
    const char *name;  // of the control
    const char *label; // with its access key
    bool (*hasField)(Kind kind);
    std::string PropertyFields::*text = nullptr;
    int PropertyFields::*choice = nullptr; // index of the alignment list
    bool PropertyFields::*flag = nullptr;
};

inline constexpr std::size_t sharedFieldCount = 17;
std::span<const SharedField, sharedFieldCount> sharedFields();

// Bit i stands for sharedFields()[i].
using SharedFields = std::bitset<sharedFieldCount>;

struct SharedProperties {
    SharedFields common;    // fields that all the objects have
    SharedFields different; // those of them whose values differ
    PropertyFields values;  // of the first object
};

// Of objects of the process-wide page; those of unknown kinds have nothing in common with others.
SharedProperties LoadSharedProperties(const std::vector<std::int16_t> &indices);

// Gives the touched fields to all the objects, in one edit. When any of them refuses its value, its kind's message is
// told and nothing is changed.
Confirmation ConfirmSharedProperties(const std::vector<std::int16_t> &indices, const PropertyFields &values,
                                     SharedFields touched);

} // namespace corvanta
