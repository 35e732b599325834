#pragma once

class QLineEdit;
class QPlainTextEdit;
class QWidget;

// Fields that hold texts of the code page. What is typed, pasted or dropped with a character that it lacks is refused
// as a whole, and told in the field's dialog.
namespace corvanta {

void keepInCodePage(QLineEdit &field);

// A text area that does the same.
QPlainTextEdit *newTextArea(QWidget *parent);

} // namespace corvanta
