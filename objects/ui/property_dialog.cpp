#include "objects/ui/property_dialog.h"

#include "actions/action_choice.h"
#include "platform/help.h"
#include "platform/qt/text.h"

#include <QCheckBox>
#include <QComboBox>
#include <QLineEdit>
#include <QPlainTextEdit>

namespace corvanta {

namespace {

// A text control and a member: a text that the author has left alone stays byte for byte, whatever the control made
// of it.
template <class Get, class Set> void tieText(PropertyDialog &d, Get get, Set set, std::string &member)
{
    auto shown = std::make_shared<QString>();
    d.onLoad([=, &member] {
        set(toQString(member));
        *shown = get();
    });
    d.onTake([=, &member] {
        if (get() != *shown)
            member = toBytes(get());
    });
}

void tieLine(PropertyDialog &d, QLineEdit *edit, std::string &member)
{
    tieText(
        d, [edit] { return edit->text(); },
        [edit](const QString &text) {
            edit->setText(text);
            edit->setCursorPosition(0);
        },
        member);
}

void tieIndex(PropertyDialog &d, QComboBox *list, int &member)
{
    d.onLoad([=, &member] { list->setCurrentIndex(member < list->count() ? member : -1); });
    d.onTake([=, &member] {
        if (list->currentIndex() >= 0)
            member = list->currentIndex();
    });
}

} // namespace

PropertyDialog::PropertyDialog(const char *name, Kind kind, std::int16_t index)
    : values(LoadProperties(index)),
      objectIndex(index),
      column(startDialog(*this, name, toQString(propertiesCaption(kind))))
{
    workingAction() = values.action;
}

void PropertyDialog::complete()
{
    addButtons(*this, {{"ok", "OK", [this] { confirm(); }},
                       {"cancbut", "Cancel", [this] { reject(); }},
                       {"helpbut", "&Help", [] { showHelp(HelpCommand::Contents); }}});
    for (const auto &load : loads)
        load();
    CentreDialog(*this);
}

void PropertyDialog::confirm()
{
    for (const auto &take : takes)
        take();
    const Confirmation confirmation = ConfirmProperties(objectIndex, values);
    if (confirmation.stored)
        return accept();
    if (auto *edit = findChild<QLineEdit *>(QString::fromStdString(confirmation.focus))) {
        edit->setText(edit->text().trimmed());
        edit->setFocus();
        edit->selectAll();
    }
}

void PropertyDialog::tie(QLineEdit *edit, std::string PropertyFields::*member) { tieLine(*this, edit, values.*member); }

void PropertyDialog::tie(QLineEdit *edit, std::string CommonFields::*member) { tieLine(*this, edit, values.*member); }

void PropertyDialog::tie(QPlainTextEdit *edit, std::string PropertyFields::*member)
{
    tieText(
        *this, [edit] { return edit->toPlainText(); }, [edit](const QString &text) { edit->setPlainText(text); },
        values.*member);
}

void PropertyDialog::tie(QCheckBox *box, bool PropertyFields::*member)
{
    onLoad([this, box, member] { box->setChecked(values.*member); });
    onTake([this, box, member] { values.*member = box->isChecked(); });
}

void PropertyDialog::tie(QComboBox *list, int PropertyFields::*member) { tieIndex(*this, list, values.*member); }

void PropertyDialog::tie(QComboBox *list, int CommonFields::*member) { tieIndex(*this, list, values.*member); }

} // namespace corvanta
