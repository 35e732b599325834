#pragma once

#include "actions/ui/action_controls.h"
#include "objects/properties.h"
#include "objects/ui/drop_column.h"
#include "platform/qt/dialogs.h"

#include <QBoxLayout>
#include <QDialog>

#include <string>

// The frame of the thirteen property dialogs. Each dialog adds its groups and fields; a field is tied to a member of
// PropertyFields, loaded when the dialog opens and taken back on OK.
namespace corvanta {

class PropertyDialog : public QDialog {
public:
    // The dialog of a kind on an object, with the kind's caption. name is the dialog's name.
    PropertyDialog(const char *name, Kind kind, std::int16_t index);

    // Ends the dialog with OK, Cancel and Help, fills the fields and centres it on the screen.
    void complete();

    std::int16_t index() const { return objectIndex; }
    Kind kind() const { return objectKind; }
    QVBoxLayout &contents() { return *column; }

    // Ties a control to a member of the fields.
    void tie(QLineEdit *edit, std::string PropertyFields::*member);
    void tie(QLineEdit *edit, std::string CommonFields::*member);
    void tie(QPlainTextEdit *edit, std::string PropertyFields::*member);
    void tie(QCheckBox *box, bool PropertyFields::*member);
    // A list index; one that the list does not have stays as it was loaded.
    void tie(QComboBox *list, int PropertyFields::*member);
    void tie(QComboBox *list, int CommonFields::*member);

    // Runs when the fields are shown, and when they are taken for OK.
    void onLoad(std::function<void()> load) { loads.push_back(std::move(load)); }
    void onTake(std::function<void()> take) { takes.push_back(std::move(take)); }

    // Runs after a message about an entry has selected it, before the focus goes to its field.
    void onRefused(std::function<void(const Confirmation &)> shown) { refused = std::move(shown); }

    PropertyFields values;

private:
    void selectFirstField();
    void trimFileName();
    void confirm();

    std::int16_t objectIndex;
    Kind objectKind;
    QVBoxLayout *column;
    std::vector<std::function<void()>> loads, takes;
    std::function<void(const Confirmation &)> refused;
};

// Groups that several dialogs share.
void addStandardProperties(PropertyDialog &d, QBoxLayout &layout, bool placement = true);
void addActionGroup(PropertyDialog &d, QBoxLayout &layout);
// Name, data column and update key; the data column is hidden on pages of the type "Menu". The first two take dragged
// columns; droppedOnColumn runs when the data column has taken one.
void addBindingGroup(PropertyDialog &d, QBoxLayout &layout,
                     std::function<void(const DroppedColumn &)> droppedOnColumn = {});
// The condition object and, where the kind stores it, "Exlude from SQL". Hidden on pages of the type "Menu".
void addAutoSqlGroup(PropertyDialog &d, QBoxLayout &layout, bool exclude);
QComboBox *addAlignmentRow(PropertyDialog &d, Fields &fields, const QString &label);
void addTabIndexRow(PropertyDialog &d, Fields &fields, const QString &label);
void addHoverRow(PropertyDialog &d, Fields &fields);
// The name of an Image's or a Button's picture.
QLineEdit *addImageRow(PropertyDialog &d, Fields &fields);
// "&Font..." beside the latest field's row; changed runs when the author has chosen a font.
QPushButton *addFontButton(PropertyDialog &d, Fields &fields, std::function<void()> changed = {});
// The colour text col and its button colsel; changed runs when the colour changes.
QLineEdit *addColourRow(PropertyDialog &d, Fields &fields, std::function<void()> changed = {});

} // namespace corvanta
