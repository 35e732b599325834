#include "platform/qt/tied_text.h"

#include "platform/qt/text.h"

#include <QLineEdit>
#include <QPlainTextEdit>

namespace corvanta {

TiedText::TiedText(QLineEdit &edit)
    : get([&edit] { return edit.text(); }), set([&edit](const QString &text) {
          edit.setText(text);
          edit.setCursorPosition(0);
      })
{
}

TiedText::TiedText(QPlainTextEdit &edit)
    : get([&edit] { return edit.toPlainText(); }), set([&edit](const QString &text) { edit.setPlainText(text); })
{
}

void TiedText::show(const std::string &bytes)
{
    original = bytes;
    set(toQString(bytes));
    shown = get();
}

std::string TiedText::bytes() const
{
    const QString text = get();
    return text == shown ? original : toBytes(text);
}

} // namespace corvanta
