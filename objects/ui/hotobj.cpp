#include "objects/ui/dialogs.h"

namespace corvanta {

void buildHotobj(PropertyDialog &d)
{
    addStandardProperties(d, d.contents());
    addActionGroup(d, d.contents());
    Fields fields = addFields(d.contents());
    addHoverRow(d, fields);
}

} // namespace corvanta
