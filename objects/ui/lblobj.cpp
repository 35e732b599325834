#include "objects/ui/dialogs.h"

#include <QCheckBox>
#include <QLabel>
#include <QLineEdit>

namespace corvanta {

void buildLblobj(PropertyDialog &d)
{
    const auto columns = addColumns(d.contents(), 2);
    addStandardProperties(d, *columns[0]);
    addActionGroup(d, *columns[0]);

    Group look = addGroup(*columns[1], "look", "Appearance");
    d.tie(addTextRow(look.fields, "cap", "&Caption:"), &PropertyFields::cap);
    addAlignmentRow(d, look.fields, "&Alignment");
    addFontButton(d, look.fields);
    QLineEdit *col = addColourRow(d, look.fields);
    QCheckBox *trans = addCheckRow(look.fields, "trans", "T&ransparent Background");
    d.tie(trans, &PropertyFields::trans);
    d.tie(addCheckRow(look.fields, "bstyle", "B&order"), &PropertyFields::bstyle);
    addHoverRow(d, look.fields);

    labelOf(*col)->setObjectName("bclabel");
    const auto showColour = [col, trans] { setFieldEnabled(*col, !trans->isChecked()); };
    d.onLoad(showColour);
    QObject::connect(trans, &QCheckBox::toggled, col, showColour);
}

} // namespace corvanta
