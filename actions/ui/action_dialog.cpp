#include "actions/ui/action_dialog.h"

#include "actions/action_choice.h"
#include "actions/action_kinds.h"
#include "document/page.h"
#include "platform/qt/text.h"
#include "platform/qt/text_limit.h"
#include "platform/text.h"

#include <QLineEdit>
#include <QPlainTextEdit>
#include <QPushButton>
#include <QTextCursor>
#include <QVBoxLayout>

namespace corvanta {

namespace {

constexpr int leastWidth = 50; // characters
static_assert(mostTextBytes == fileLimit);

void enableWithText(QPushButton &ok, QLineEdit &field)
{
    const auto update = [&ok, &field] { ok.setEnabled(!trimmed(toBytes(field.text())).empty()); };
    update();
    QObject::connect(&field, &QLineEdit::textChanged, &ok, update);
}

} // namespace

ActionDialog::ActionDialog(const char *name, const char *caption)
    : result(dialogExchange()), column(startDialog(*this, name, caption))
{
}

Group ActionDialog::addParameters()
{
    const QString caption = toQString(actionCaption(result));
    return addGroup(contents(), "parameters", caption.isEmpty() ? windowTitle() : caption);
}

bool ActionDialog::run(QWidget &first, const std::function<std::string()> &okText, const char *cancelName)
{
    const auto confirm = [this, &okText] {
        if (checkTextLengths(*this) && checkTextLength(okText().size(), "Action", toBytes(windowTitle())))
            accept();
    };
    const auto buttons = addButtons(*this, {{"ok", "OK", confirm}, {cancelName, "Cancel", [this] { reject(); }}});
    if (required)
        enableWithText(*buttons.front(), *required);
    first.setFocus();
    setMinimumWidth(fontMetrics().averageCharWidth() * leastWidth);
    CentreDialog(*this);
    const bool confirmed = exec() == Accepted;
    if (confirmed)
        result = okText();
    dialogExchange() = result;
    return confirmed;
}

void selectWholeText(QLineEdit &field)
{
    field.end(false);
    field.home(true);
}

void selectWholeText(QPlainTextEdit &field)
{
    field.moveCursor(QTextCursor::End);
    field.moveCursor(QTextCursor::Start, QTextCursor::KeepAnchor);
}

} // namespace corvanta
