#include "objects/ui/dialogs.h"

namespace corvanta {

void buildFbxobj(PropertyDialog &d)
{
    const auto columns = addColumns(d.contents(), 2);
    addStandardProperties(d, *columns[0]);
    addActionGroup(d, *columns[0]);
    addAutoSqlGroup(d, *columns[0], true);

    Group look = addGroup(*columns[1], "look", "Appearance");
    addColourRow(d, look.fields);
    Fields flags = addFields(*look.contents, 2);
    d.tie(addCheckRow(flags, "readonly", "Read Only"), &PropertyFields::readonly);
    d.tie(addCheckRow(flags, "invisible", "Invisible"), &PropertyFields::invisible);
    addFontButton(d, flags);
    addBindingGroup(d, *columns[1]);
    Group path = addGroup(*columns[1], "serverfiles", "Server Files Path");
    d.tie(addTextRow(path.fields, "filepath", ""), &PropertyFields::filepath);
}

} // namespace corvanta
