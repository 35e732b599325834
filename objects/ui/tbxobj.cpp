#include "document/media.h"
#include "objects/ui/dialogs.h"
#include "objects/ui/media_row.h"

#include <QComboBox>
#include <QLineEdit>

namespace corvanta {

namespace {

constexpr int stringType = 0;

// A dropped column tells the input type too, and a "String" column the length.
void takeColumnType(PropertyDialog &d, const DroppedColumn &column)
{
    d.findChild<QComboBox *>("inptype")->setCurrentIndex(column.type);
    if (column.type == stringType)
        d.findChild<QLineEdit *>("maxlen")->setText(QString::number(column.length));
}

void addInput(PropertyDialog &d, QBoxLayout &layout)
{
    Group input = addGroup(layout, "input", "Input");
    QComboBox *inptype = addComboRow(
        input.fields, "inptype", "&Input Type:", {"String", "Integer", "Real", "Date", "Time", "Currency", "Numeric"});
    d.tie(inptype, &PropertyFields::inptype);
    setFieldVisible(*inptype, showsDataFields(page(), d.kind()));
    d.tie(addNumberRow(input.fields, "maxlen", "Max Length:"), &PropertyFields::maxlen);
    d.tie(addMediaField(input.fields, "txtfn", "Text &File:", Media::Text, [] { return invalidFileName("text"); }),
          &PropertyFields::txtfn);
    Fields flags = addFields(*input.contents, 3);
    d.tie(addCheckRow(flags, "readonly", "Read Only"), &PropertyFields::readonly);
    d.tie(addCheckRow(flags, "invisible", "Invisible"), &PropertyFields::invisible);
    d.tie(addCheckRow(flags, "multi", "Multi Line"), &PropertyFields::multi);
}

} // namespace

void buildTbxobj(PropertyDialog &d)
{
    const auto columns = addColumns(d.contents(), 2);
    addStandardProperties(d, *columns[0]);
    addBindingGroup(d, *columns[0], [&d](const DroppedColumn &column) { takeColumnType(d, column); });
    addAutoSqlGroup(d, *columns[0], true);

    Group look = addGroup(*columns[1], "look", "Appearance");
    addColourRow(d, look.fields);
    addAlignmentRow(d, look.fields, "Alignment:");
    addFontButton(d, look.fields);
    addTabIndexRow(d, look.fields, "Tab Index:");
    addInput(d, *columns[1]);
    Group system = addGroup(*columns[1], "system", "System Object");
    d.tie(addComboRow(system.fields, "sysobj", "", {"None", "User ID", "Password", "Age", "Address", "Credits"}),
          &PropertyFields::sysobj);
}

} // namespace corvanta
