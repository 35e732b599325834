#pragma once

#include <QString>

#include <QSize>
#include <functional>
#include <initializer_list>
#include <string>
#include <vector>

class QButtonGroup;
class QBoxLayout;
class QCheckBox;
class QComboBox;
class QDialog;
class QGridLayout;
class QGroupBox;
class QHBoxLayout;
class QLabel;
class QLayout;
class QLineEdit;
class QListWidget;
class QPlainTextEdit;
class QPushButton;
class QVBoxLayout;
class QWidget;

// What all dialogs are built of. Widgets are created in reading order, which makes it the tab order. Every control
// gets its objectName, a label whose "&" letter reaches it, and that label as its accessible name.
namespace corvanta {

// Twips per pixel of the primary screen (15 at 96 dots per inch).
double twipsPerPixelX();
double twipsPerPixelY();

// Places a dialog with its frame, its fields aligned, over the middle of its owner, or of its screen without an owner
// or with a minimised one, and in front of the window that the author works in. A dialog without room on the screen
// scrolls its fields, also when it grows later. Nothing happens unless the dialog is in the normal window state. Called
// before it is shown.
void CentreDialog(QDialog &dialog, QWidget *owner = nullptr);

// What the window system puts round a window, in pixels; of one that it has not framed yet, what the program's others
// have.
QSize frameOf(const QWidget &window);

// Takes entries off a dialog's window menu before it is shown; mode 1 leaves "Move" and "Close".
void TrimWindowMenu(QWidget &dialog, int mode);

// Starts a dialog: its objectName, caption and window menu (mode 1), and the column that takes its contents.
QVBoxLayout *startDialog(QDialog &dialog, const char *name, const QString &caption);

// Gives the labels of each column of a layout one width, so that the fields beside them begin on one line.
void alignFields(const QLayout &layout);

// Two or more columns side by side, for a dialog that would grow too tall.
std::vector<QVBoxLayout *> addColumns(QBoxLayout &layout, int count);

// Labelled fields under each other. With two or more cells a row, number fields, combo boxes and check boxes take one
// cell each, from left to right; all others take a whole row.
struct Fields {
    QGridLayout *grid = nullptr;
    int cells = 1;              // a row
    int next = 0;               // the next free cell, counted from 0 over all rows
    QHBoxLayout *row = nullptr; // holds the latest field and what stands beside it
    QWidget *latest = nullptr;
};

Fields addFields(QBoxLayout &layout, int cells = 1);

// A frame with a caption. Its column of contents begins with the fields; a field without a label takes the frame's
// caption as its name.
struct Group {
    QGroupBox *box = nullptr;
    QVBoxLayout *contents = nullptr;
    Fields fields;
};

Group addGroup(QBoxLayout &layout, const char *name, const QString &caption, int cells = 1);

// Fields. An empty label gives the control the label's place too.
QLineEdit *addTextRow(Fields &fields, const char *name, const QString &label, int least = 20); // characters seen
QLineEdit *addPasswordRow(Fields &fields, const char *name, const QString &label);
QLineEdit *addNumberRow(Fields &fields, const char *name, const QString &label);                // takes any text
QLineEdit *addWholeNumberRow(Fields &fields, const char *name, const QString &label, int most); // takes 0 to most
QPlainTextEdit *addTextAreaRow(Fields &fields, const char *name, const QString &label, int lines = 4);
QComboBox *addComboRow(Fields &fields, const char *name, const QString &label,
                       std::initializer_list<const char *> entries = {});
QListWidget *addListRow(Fields &fields, const char *name, const QString &label, int lines = 6); // under its label
QCheckBox *addCheckRow(Fields &fields, const char *name, const QString &caption);
QLabel *addInfoRow(Fields &fields, const char *name, const QString &label); // a text that the dialog shows

// Option buttons, one a row. Their ids in the group count from 0, their names are the name with the id ("radio0").
QButtonGroup *addOptionRows(Fields &fields, const char *name, std::initializer_list<const char *> captions);

// A row with a widget of the dialog's own, whole width.
void addWidgetRow(Fields &fields, QWidget &widget, const char *name, const QString &label);

// Beside the latest field: a button ("Select", "Browse"), or a hint ("(0-10)").
QPushButton *addButtonBeside(Fields &fields, const char *name, const QString &caption);
QLabel *addHintBeside(Fields &fields, const QString &text);

// A field together with its label; what stands beside it is switched on its own, or follows.
QLabel *labelOf(const QWidget &field); // nullptr without a label
void setFieldEnabled(QWidget &field, bool enabled);
void setFieldVisible(QWidget &field, bool visible);
// What stands beside a field is from now on enabled when the field is.
void followEnabled(QWidget &beside, QWidget &field);

// After a message: the focus goes to the control that it is about, with all its text selected. An empty name, or one
// that the dialog does not have, leaves it where it is.
void returnToField(QWidget &dialog, const std::string &name);
void returnToField(QWidget &field);

// A short word about a field, at the bottom of its dialog; beside the field in a window without one. Empty clears it.
void showNotice(QWidget &field, const QString &text);

struct ButtonRow {
    const char *name;
    QString caption;
    std::function<void()> clicked;
};

// A row of buttons, at the layout's left. Enter stays the dialog's default button, also after one of them was used.
std::vector<QPushButton *> addButtonRow(QBoxLayout &layout, const std::vector<ButtonRow> &buttons);

// The buttons that end a dialog, at the bottom right. The first is the default button (Enter). Esc and the window's
// close button reject the dialog.
std::vector<QPushButton *> addButtons(QDialog &dialog, const std::vector<ButtonRow> &buttons);

// A label's text without "&" and the colon at its end.
QString plainLabel(const QString &label);

} // namespace corvanta
