#include "platform/qt/text_limit.h"

#include "platform/asking.h"
#include "platform/qt/dialogs.h"
#include "platform/qt/text.h"

#include <QLineEdit>
#include <QPlainTextEdit>

namespace corvanta {

namespace {

// The bytes of a text field; 0 of any other control.
std::size_t textBytes(const QWidget &control)
{
    if (const auto *line = qobject_cast<const QLineEdit *>(&control))
        return static_cast<std::size_t>(line->text().size());
    const auto *area = qobject_cast<const QPlainTextEdit *>(&control);
    return area ? static_cast<std::size_t>(area->toPlainText().size()) : 0;
}

// A list that takes typed text has the label of its line.
std::string labelOfText(const QWidget &control)
{
    const QString own = control.accessibleName();
    return toBytes(plainLabel(own.isEmpty() ? control.parentWidget()->accessibleName() : own));
}

} // namespace

bool checkTextLength(std::size_t bytes, const std::string &what, const std::string &title)
{
    if (bytes <= mostTextBytes)
        return true;
    showExclamation("\"" + what + "\" is too long: it has " + std::to_string(bytes) +
                        " characters, and a page file holds " + std::to_string(mostTextBytes) + ".",
                    title);
    return false;
}

bool checkTextLengths(QWidget &dialog, const std::string &title)
{
    for (QWidget *control : dialog.findChildren<QWidget *>())
        if (!checkTextLength(textBytes(*control), labelOfText(*control), title)) {
            returnToField(*control);
            return false;
        }
    return true;
}

bool checkTextLengths(QWidget &dialog) { return checkTextLengths(dialog, toBytes(dialog.windowTitle())); }

} // namespace corvanta
