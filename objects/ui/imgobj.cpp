#include "objects/ui/dialogs.h"

namespace corvanta {

void buildImgobj(PropertyDialog &d)
{
    addStandardProperties(d, d.contents());
    addActionGroup(d, d.contents());
    Fields fields = addFields(d.contents());
    d.tie(addTextRow(fields, "imgfn", "&Image:"), &PropertyFields::imgfn);
    addHoverRow(d, fields);
}

} // namespace corvanta
