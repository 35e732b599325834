#include "objects/ui/dialogs.h"

namespace corvanta {

void buildTkrobj(PropertyDialog &d)
{
    const auto columns = addColumns(d.contents(), 2);
    addStandardProperties(d, *columns[0]);
    addActionGroup(d, *columns[0]);

    Group look = addGroup(*columns[1], "look", "Appearance");
    d.tie(addTextRow(look.fields, "cap", "&Caption:"), &PropertyFields::cap);
    addColourRow(d, look.fields);
    d.tie(addNumberRow(look.fields, "speed", "&Speed:"), &PropertyFields::speed);
    addHintBeside(look.fields, "(1-10)");
    addFontButton(d, look.fields);
    d.tie(addCheckRow(look.fields, "bstyle", "B&order"), &PropertyFields::bstyle);
}

} // namespace corvanta
