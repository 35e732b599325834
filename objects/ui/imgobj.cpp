#include "objects/ui/dialogs.h"

namespace corvanta {

void buildImgobj(PropertyDialog &d)
{
    addStandardProperties(d, d.contents());
    addActionGroup(d, d.contents());
    Fields fields = addFields(d.contents());
    addImageRow(d, fields);
    addHoverRow(d, fields);
}

} // namespace corvanta
