#include "actions/ui/parameter_fields.h"

#include "document/parse.h"
#include "platform/qt/text.h"

#include <QDialog>
#include <QKeyEvent>
#include <QLineEdit>
#include <QPlainTextEdit>
#include <QPushButton>

namespace corvanta {

namespace {

constexpr int statementWidth = 64; // characters
constexpr int statementLines = 6;

class EnterConfirms : public QObject {
public:
    using QObject::QObject;

    bool eventFilter(QObject *field, QEvent *event) override
    {
        if (event->type() != QEvent::KeyPress)
            return false;
        const auto *key = static_cast<QKeyEvent *>(event);
        const bool enter = key->key() == Qt::Key_Return || key->key() == Qt::Key_Enter;
        if (!enter || (key->modifiers() & Qt::ShiftModifier))
            return false;
        for (auto *button : static_cast<QWidget *>(field)->window()->findChildren<QPushButton *>())
            if (button->isDefault())
                button->click();
        return true;
    }
};

// What a text field holds; a text that the author has left alone stays byte for byte, whatever the field made of it.
std::function<std::string()> holds(std::function<QString()> get, const std::string &before)
{
    return [get, before, shown = get()] { return get() == shown ? before : toBytes(get()); };
}

} // namespace

ParameterFields::ParameterFields(const std::string &actionText) : input(actionText), action(decodeAction(actionText)) {}

QLineEdit *ParameterFields::addLine(Fields &fields, const char *name, const QString &label)
{
    QLineEdit *field = addTextRow(fields, name, label);
    field->setText(toQString(nextValue()));
    field->setCursorPosition(0);
    add(holds([field] { return field->text(); }, nextValue()));
    return field;
}

QPlainTextEdit *ParameterFields::addStatement(Fields &fields, const char *name)
{
    QPlainTextEdit *field = addTextAreaRow(fields, name, {}, statementLines);
    field->setMinimumWidth(field->fontMetrics().averageCharWidth() * statementWidth);
    field->setPlainText(toQString(nextValue()));
    field->installEventFilter(new EnterConfirms(field));
    add(holds([field] { return field->toPlainText(); }, nextValue()));
    return field;
}

std::string ParameterFields::text() const
{
    Action edited{action.code, {}};
    for (std::size_t i = 0; i < values.size(); ++i)
        edited.values.push_back(changedText(values[i](), action.values[i]));
    const std::string text = encodeAction(edited);
    return edited.values == action.values && input.starts_with(text) ? input : text;
}

} // namespace corvanta
