#include "objects/ui/dialogs.h"

namespace corvanta {

void buildUrlobj(PropertyDialog &d)
{
    const auto columns = addColumns(d.contents(), 2);
    addStandardProperties(d, *columns[0]);
    addBindingGroup(d, *columns[1]);
    addAutoSqlGroup(d, *columns[1], false);

    Group look = addGroup(*columns[0], "look", "Appearance");
    d.tie(addTextRow(look.fields, "url", "U&rl:"), &PropertyFields::url);
    addFontButton(d, look.fields);
    addColourRow(d, look.fields);
    addHoverRow(d, look.fields);
}

} // namespace corvanta
