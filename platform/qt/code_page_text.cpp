#include "platform/qt/code_page_text.h"

#include "platform/codepage.h"
#include "platform/qt/dialogs.h"
#include "platform/qt/text.h"

#include <QInputMethodEvent>
#include <QKeyEvent>
#include <QLineEdit>
#include <QMimeData>
#include <QPlainTextEdit>
#include <QValidator>

#include <limits>

namespace corvanta {

namespace {

QString shownCharacter(char32_t character)
{
    if (QChar::isPrint(character) && !QChar::isSpace(character))
        return QString::fromUcs4(&character, 1);
    return QStringLiteral("U+%1").arg(static_cast<uint>(character), 4, 16, QLatin1Char('0')).toUpper();
}

// Whether a text has a character that the code page lacks, which is told then.
bool refused(QWidget &field, const QString &text)
{
    const auto lacking = lackingCharacter(text);
    if (lacking)
        showNotice(field,
                   QStringLiteral("%1 is not in code page %2").arg(shownCharacter(*lacking)).arg(codePageNumber()));
    return lacking.has_value();
}

class CodePageText : public QValidator {
public:
    explicit CodePageText(QLineEdit &edit) : QValidator(&edit), field(edit) {}

    State validate(QString &text, int &) const override { return refused(field, text) ? Invalid : Acceptable; }

private:
    QLineEdit &field;
};

class TextArea : public QPlainTextEdit {
public:
    using QPlainTextEdit::QPlainTextEdit;

protected:
    void keyPressEvent(QKeyEvent *event) override
    {
        const bool command = event->modifiers() & (Qt::ControlModifier | Qt::AltModifier | Qt::MetaModifier);
        if (command || !refused(*this, event->text()))
            QPlainTextEdit::keyPressEvent(event);
    }

    void inputMethodEvent(QInputMethodEvent *event) override
    {
        if (refused(*this, event->commitString()))
            event->setCommitString(QString());
        QPlainTextEdit::inputMethodEvent(event);
    }

    void insertFromMimeData(const QMimeData *source) override
    {
        if (!refused(*this, source->text()))
            QPlainTextEdit::insertFromMimeData(source);
    }
};

} // namespace

void keepInCodePage(QLineEdit &field)
{
    field.setMaxLength(std::numeric_limits<int>::max()); // what is too long is told at OK, not cut
    field.setValidator(new CodePageText(field));
    QObject::connect(&field, &QLineEdit::textEdited, &field, [&field] { showNotice(field, {}); });
}

QPlainTextEdit *newTextArea(QWidget *parent)
{
    auto *area = new TextArea(parent);
    QObject::connect(area, &QPlainTextEdit::textChanged, area, [area] { showNotice(*area, {}); });
    return area;
}

} // namespace corvanta
