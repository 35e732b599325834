#pragma once

#include "objects/ui/property_dialog.h"

class QListWidget;

namespace corvanta {

// Colour, alignment (where the kind has one) and font of a dialog with an entry list, which looks like the object.
void addEntryAppearance(PropertyDialog &d, Group &look, QListWidget &list, bool alignment);

} // namespace corvanta
