#include "shell/ui/hpsinput.h"

#include "platform/qt/code_page_text.h"
#include "platform/qt/dialogs.h"
#include "platform/qt/text.h"
#include "platform/qt/text_limit.h"
#include "platform/text.h"
#include "shell/input.h"

#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QVBoxLayout>

#include <utility>

namespace corvanta {

namespace {

constexpr int lineWidth = 320; // pixels

} // namespace

Hpsinput::Hpsinput()
{
    const InputTexts texts = inputTexts(std::exchange(inputparam(), {}));
    QVBoxLayout *contents = startDialog(*this, "hpsinput", toQString(texts.caption));
    auto *prompt = new QLabel(toQString(doubleAmpersands(texts.prompt)), this);
    prompt->setObjectName(QStringLiteral("Label1"));
    prompt->setTextFormat(Qt::PlainText);
    inplin = new QLineEdit(this);
    keepInCodePage(*inplin);
    inplin->setText(toQString(texts.text));
    inplin->setObjectName(QStringLiteral("inplin"));
    inplin->setAccessibleName(toQString(texts.prompt));
    inplin->setMinimumWidth(lineWidth);
    inplin->selectAll();
    prompt->setBuddy(inplin);
    contents->addWidget(prompt);
    contents->addWidget(inplin);
    const auto buttons =
        addButtons(*this, {{"ok", "OK", [this] { confirm(); }}, {"cancel", "Cancel", [this] { reject(); }}});
    ok = buttons.front();
    const auto allow = [this] { ok->setEnabled(inputAccepted(toBytes(inplin->text()))); };
    connect(inplin, &QLineEdit::textChanged, this, allow);
    connect(this, &QDialog::accepted, this, [this] { inputparam() = toBytes(inplin->text()); });
    allow();
    inplin->setFocus();
    CentreDialog(*this);
}

void Hpsinput::confirm()
{
    if (checkTextLengths(*this))
        accept();
}

std::string showInput(const std::string &parameter)
{
    inputparam() = parameter;
    Hpsinput().exec();
    return std::exchange(inputparam(), {});
}

} // namespace corvanta
