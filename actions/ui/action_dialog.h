#pragma once

#include "platform/qt/dialogs.h"

#include <QBoxLayout>
#include <QDialog>

#include <functional>
#include <string>

namespace corvanta {

// The dialog of an action. It takes its input from the dialog exchange text and leaves its result there.
class ActionDialog : public QDialog {
public:
    explicit ActionDialog(const char *name, const char *caption = "Action Properties");

    QBoxLayout &contents() { return *column; }

    // A frame for the parameters, with the caption of the action's kind, or the dialog's for one that is not offered.
    Group addParameters();

    // OK is enabled only while the field's text is not blank.
    void requireText(QLineEdit &field) { required = &field; }

    // Adds OK and Cancel, and shows the dialog modally with its focus on the first field. After OK the result becomes
    // okText(); true then. A text that a page file could not hold is refused, with the dialog's input kept.
    bool run(QWidget &first, const std::function<std::string()> &okText, const char *cancelName = "cancel");

    std::string result; // the input, until OK

private:
    QVBoxLayout *column;
    QLineEdit *required = nullptr;
};

// Puts the cursor at the start of a field and selects its whole text.
void selectWholeText(QLineEdit &field);
void selectWholeText(QPlainTextEdit &field);

} // namespace corvanta
