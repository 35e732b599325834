#include "objects/ui/dialogs.h"

namespace corvanta {

void buildImgdbobj(PropertyDialog &d)
{
    const auto columns = addColumns(d.contents(), 2);
    addStandardProperties(d, *columns[0]);
    Group path = addGroup(*columns[0], "imagefiles", "Image Files Path");
    d.tie(addTextRow(path.fields, "imgpath", ""), &PropertyFields::imgpath);

    addBindingGroup(d, *columns[1]);
    addAutoSqlGroup(d, *columns[1], false);
    Group input = addGroup(*columns[1], "imgdbinput", "Input", 2);
    addTabIndexRow(d, input.fields, "Tab Index:");
    d.tie(addCheckRow(input.fields, "readonly", "Read Only"), &PropertyFields::readonly);
}

} // namespace corvanta
