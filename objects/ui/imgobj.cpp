#include "objects/ui/dialogs.h"

namespace corvanta {

void buildImgobj(PropertyDialog &d)
{
    addStandardProperties(d, d.contents());
    addActionGroup(d, d.contents());
    Group look = addGroup(d.contents(), "look", "Appearance");
    addImageRow(d, look.fields);
    addHoverRow(d, look.fields);
}

} // namespace corvanta
