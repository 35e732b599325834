#include "actions/action.h"
#include "actions/action_choice.h"
#include "document/media.h"
#include "document/page.h"
#include "objects/ui/colour_row.h"
#include "objects/ui/media_row.h"
#include "objects/ui/property_dialog.h"
#include "platform/asking.h"
#include "platform/qt/text.h"

#include <QCheckBox>
#include <QComboBox>
#include <QGroupBox>
#include <QLineEdit>
#include <QPushButton>

namespace corvanta {

namespace {

constexpr int largestTabIndex = 32767;

} // namespace

void addStandardProperties(PropertyDialog &d, QBoxLayout &layout, bool placement)
{
    Group group = addGroup(layout, "standard", "Standard Properties", 2);
    if (placement) {
        d.tie(addNumberRow(group.fields, "ptop", "&Top:"), &CommonFields::ptop);
        d.tie(addNumberRow(group.fields, "pleft", "&Left:"), &CommonFields::pleft);
        d.tie(addNumberRow(group.fields, "pheight", "&Height:"), &CommonFields::pheight);
        d.tie(addNumberRow(group.fields, "pwidth", "&Width:"), &CommonFields::pwidth);
    }
    d.tie(addTextRow(group.fields, "keyreq", "&Key Required:"), &CommonFields::keyreq);
    d.tie(addTextRow(group.fields, "sptext", "&Status Panel Text:"), &CommonFields::sptext);
}

void addActionGroup(PropertyDialog &d, QBoxLayout &layout)
{
    Group group = addGroup(layout, "action", "Action");
    const ActionControls controls = addActionControls(group.fields, "&Action:");
    d.onLoad([controls] { FillActionChoice(controls, ActionCode(workingAction())); });
    d.onTake([&d] { d.values.action = workingAction(); });
}

void addBindingGroup(PropertyDialog &d, QBoxLayout &layout, std::function<void(const DroppedColumn &)> droppedOnColumn)
{
    Group group = addGroup(layout, "binding", "Data Binding");
    QLineEdit *ctlname = addTextRow(group.fields, "ctlname", "&Name:");
    QLineEdit *datacol = addTextRow(group.fields, "datacol", "&Data Column:");
    d.tie(ctlname, &CommonFields::ctlname);
    d.tie(datacol, &CommonFields::datacol);
    d.tie(addTextRow(group.fields, "updatekey", "&Update Key:"), &CommonFields::updatekey);
    setFieldVisible(*datacol, showsDataFields(page(), d.kind()));
    acceptColumn(*ctlname, [ctlname](const DroppedColumn &column) { ctlname->setText(toQString(column.name)); });
    acceptColumn(*datacol, [datacol, droppedOnColumn](const DroppedColumn &column) {
        datacol->setText(toQString(qualifiedName(column)));
        if (droppedOnColumn)
            droppedOnColumn(column);
    });
}

void addAutoSqlGroup(PropertyDialog &d, QBoxLayout &layout, bool exclude)
{
    Group group = addGroup(layout, "autosql", "Auto SQL");
    d.tie(addTextRow(group.fields, "condobjname", "Condition Object:"), &CommonFields::condobjname);
    if (exclude)
        d.tie(addCheckRow(group.fields, "exludesql", "Exlude from SQL"), &PropertyFields::exludesql);
    group.box->setVisible(showsDataFields(page(), d.kind()));
}

QComboBox *addAlignmentRow(PropertyDialog &d, Fields &fields, const QString &label)
{
    QComboBox *list = addComboRow(fields, "alignment", label, {"Left", "Right", "Center"});
    d.tie(list, &CommonFields::alignment);
    return list;
}

void addTabIndexRow(PropertyDialog &d, Fields &fields, const QString &label)
{
    d.tie(addWholeNumberRow(fields, "tbindex", label, largestTabIndex), &CommonFields::tbindex);
}

void addHoverRow(PropertyDialog &d, Fields &fields)
{
    d.tie(addCheckRow(fields, "hover", "Use special mouse pointer"), &PropertyFields::hover);
}

QLineEdit *addImageRow(PropertyDialog &d, Fields &fields)
{
    QLineEdit *imgfn = addMediaField(fields, "imgfn", "&Image:", Media::Image, [] { return invalidFileName("image"); });
    d.tie(imgfn, &PropertyFields::imgfn);
    return imgfn;
}

QPushButton *addFontButton(PropertyDialog &d, Fields &fields, std::function<void()> changed)
{
    QPushButton *button = addButtonBeside(fields, "fontsel", "&Font...");
    button->setAccessibleName("Font");
    QObject::connect(button, &QPushButton::clicked, button, [&d, changed] {
        const auto chosen = asking().fontDialog ? asking().fontDialog(d.values.font) : std::nullopt;
        if (!chosen)
            return;
        d.values.font = *chosen;
        if (changed)
            changed();
    });
    return button;
}

QLineEdit *addColourRow(PropertyDialog &d, Fields &fields, std::function<void()> changed)
{
    QLineEdit *col = addColourField(fields, "col", "&BackColor:", "colsel");
    d.tie(col, &PropertyFields::col);
    if (changed)
        QObject::connect(col, &QLineEdit::textChanged, col, [changed] { changed(); });
    return col;
}

} // namespace corvanta
