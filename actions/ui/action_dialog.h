#pragma once

#include "actions/action.h"
#include "platform/qt/dialogs.h"

#include <QDialog>

#include <functional>
#include <string>
#include <vector>

namespace corvanta {

// The dialog of an action. It takes its input from the dialog exchange text and leaves its result there.
class ActionDialog : public QDialog {
public:
    explicit ActionDialog(const char *name, const char *caption = "Action Properties");

    QBoxLayout &contents() { return *column; }

    // OK is enabled only while the field's text is not blank.
    void requireText(QLineEdit &field) { required = &field; }

    // Adds OK and Cancel and shows the dialog modally, its focus on the first field. After OK the result is okText();
    // true then.
    bool run(QWidget &first, const std::function<std::string()> &okText, const char *cancelName = "cancel");

    std::string result; // the input until OK

private:
    QVBoxLayout *column;
    QLineEdit *required = nullptr;
};

// The fields of an action's parameters. They are added in the order of the parameters and show the action's values.
class ParameterFields {
public:
    explicit ParameterFields(const std::string &actionText) : action(decodeAction(actionText)) {}

    QLineEdit *addLine(Fields &fields, const char *name, const QString &label);
    // A text of several lines, in which Enter confirms the dialog and Shift+Enter starts a new line.
    QPlainTextEdit *addStatement(Fields &fields, const char *name);
    QComboBox *addEditableCombo(Fields &fields, const char *name, const std::vector<std::string> &entries);

    // The action with what the fields hold, texts without leading and trailing blanks.
    std::string text() const;

    Action action; // as it came

    // What each parameter's field holds, in order; a dialog adds those of its own fields.
    std::vector<std::function<std::string()>> values;

    // The value of the parameter whose field is added next.
    const std::string &nextValue() const { return action.values[values.size()]; }
};

// Puts the cursor at the start of a field and selects its whole text.
void selectWholeText(QLineEdit &field);
void selectWholeText(QPlainTextEdit &field);

// Beside the latest field: a button that asks for a page file and shows the page's name in the field.
void addBrowse(Fields &fields, const char *name, QLineEdit &field);

// Asks for a page file in the page directory; the drive path, or none on cancel.
std::optional<std::string> askPageFile();

} // namespace corvanta
