#include "objects/ui/dialogs.h"

namespace corvanta {

void buildUrlobj(PropertyDialog &d)
{
    const auto columns = addColumns(d.contents(), 2);
    addStandardProperties(d, *columns[0]);
    addAutoSqlGroup(d, *columns[0], false);

    addBindingGroup(d, *columns[1]);
    Group look = addGroup(*columns[1], "look", "Appearance");
    d.tie(addTextRow(look.fields, "url", "U&rl:"), &PropertyFields::url);
    addFontButton(d, look.fields);
    addColourRow(d, look.fields);
    addHoverRow(d, look.fields);
}

} // namespace corvanta
