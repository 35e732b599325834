#include "actions/ui/parameter_fields.h"

#include "document/parse.h"
#include "platform/qt/tied_text.h"

#include <QDialog>
#include <QKeyEvent>
#include <QLineEdit>
#include <QPlainTextEdit>
#include <QPushButton>

#include <memory>

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

// Shows the value of the field; what it holds later stays byte for byte when the author leaves it alone.
template <class Field> std::function<std::string()> tied(Field &field, const std::string &value)
{
    auto text = std::make_shared<TiedText>(field);
    text->show(value);
    return [text] { return text->bytes(); };
}

} // namespace

ParameterFields::ParameterFields(const std::string &actionText) : input(actionText), action(decodeAction(actionText)) {}

QLineEdit *ParameterFields::addLine(Fields &fields, const char *name, const QString &label)
{
    QLineEdit *field = addTextRow(fields, name, label);
    add(tied(*field, nextValue()));
    return field;
}

QPlainTextEdit *ParameterFields::addStatement(Fields &fields, const char *name)
{
    QPlainTextEdit *field = addTextAreaRow(fields, name, {}, statementLines);
    field->setMinimumWidth(field->fontMetrics().averageCharWidth() * statementWidth);
    field->installEventFilter(new EnterConfirms(field));
    add(tied(*field, nextValue()));
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
