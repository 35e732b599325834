#pragma once

#include "objects/ui/property_dialog.h"

namespace corvanta {

// Colour, alignment (where the kind has one), tab index and font of a dialog with an entry list, which looks like the
// object. The list, which may be added later, has this name.
void addEntryAppearance(PropertyDialog &d, Group &look, const char *listName, bool alignment);

} // namespace corvanta
