#include "objects/ui/dialogs.h"

namespace corvanta {

void buildHotobj(PropertyDialog &d)
{
    addStandardProperties(d, d.contents());
    addActionGroup(d, d.contents());
    Group look = addGroup(d.contents(), "look", "Appearance");
    addHoverRow(d, look.fields);
}

} // namespace corvanta
