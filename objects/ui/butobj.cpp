#include "objects/ui/dialogs.h"

namespace corvanta {

void buildButobj(PropertyDialog &d)
{
    const auto columns = addColumns(d.contents(), 2);
    addStandardProperties(d, *columns[0]);
    Group use = addGroup(*columns[0], "use", "Use");
    d.tie(addTextRow(use.fields, "viewcond", "&View Condition:"), &PropertyFields::viewcond);
    d.tie(addTextRow(use.fields, "enacond", "&Enable Condition:"), &PropertyFields::enacond);
    d.tie(addTextRow(use.fields, "credits", "&Credits:"), &PropertyFields::credits);
    d.tie(addTextRow(use.fields, "auditmsg", "Audit Message:"), &PropertyFields::auditmsg);
    d.tie(addTextRow(use.fields, "balhelp", "Baloon Help:"), &PropertyFields::balhelp);

    addActionGroup(d, *columns[1]);
    Group look = addGroup(*columns[1], "look", "Appearance");
    d.tie(addTextRow(look.fields, "cap", "&Caption:"), &PropertyFields::cap);
    addImageRow(d, look.fields);
    d.tie(addNumberRow(look.fields, "bwidth", "&BevelWidth:"), &PropertyFields::bwidth);
    addHintBeside(look.fields, "(0-10)");
    addAlignmentRow(d, look.fields, "Alignment:");
    addFontButton(d, look.fields);
    addTabIndexRow(d, look.fields, "Tab Index:");
}

} // namespace corvanta
