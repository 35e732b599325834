#include "objects/ui/property_dialog.h"

#include "actions/action_choice.h"
#include "document/parse.h"
#include "platform/help.h"
#include "platform/qt/text.h"
#include "platform/qt/text_limit.h"
#include "platform/qt/tied_text.h"

#include <QCheckBox>
#include <QComboBox>
#include <QLineEdit>
#include <QListWidget>
#include <QPlainTextEdit>

#include <memory>

namespace corvanta {

namespace {

template <class Control> void tieText(PropertyDialog &d, Control &control, std::string &member)
{
    auto text = std::make_shared<TiedText>(control);
    d.onLoad([text, &member] { text->show(member); });
    d.onTake([text, &member] { member = text->bytes(); });
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
      objectKind(kind),
      column(startDialog(*this, name, toQString(propertiesCaption(kind))))
{
    workingAction() = values.action;
}

void PropertyDialog::complete()
{
    addButtons(*this, {{"ok", "OK", [this] { confirm(); }},
                       {"cancbut", "Cancel", [this] { reject(); }},
                       {"helpbut", "Help", [] { showHelp(HelpCommand::Contents); }}});
    for (const auto &load : loads)
        load();
    CentreDialog(*this);
    selectFirstField();
}

void PropertyDialog::selectFirstField()
{
    for (QWidget *w = nextInFocusChain(); w != this; w = w->nextInFocusChain())
        if (auto *edit = qobject_cast<QLineEdit *>(w)) {
            edit->setFocus();
            return edit->selectAll();
        }
}

// A changed image name of a Button or Image is shown as it is checked: without blanks around it.
void PropertyDialog::trimFileName()
{
    auto *imgfn = findChild<QLineEdit *>("imgfn");
    if (!imgfn || objectKind == Kind::Animation)
        return;
    const std::string name = changedText(toBytes(imgfn->text()), values.imgfn);
    if (name.size() != static_cast<std::size_t>(imgfn->text().size()))
        imgfn->setText(toQString(name));
}

void PropertyDialog::confirm()
{
    if (!checkTextLengths(*this, "Properties Error"))
        return;
    trimFileName();
    for (const auto &take : takes)
        take();
    const Confirmation confirmation = ConfirmProperties(objectIndex, values);
    if (confirmation.stored)
        return accept();
    if (auto *entries = findChild<QListWidget *>(); entries && confirmation.entry >= 0)
        entries->setCurrentRow(confirmation.entry);
    if (refused)
        refused(confirmation);
    returnToField(*this, confirmation.focus);
}

void PropertyDialog::tie(QLineEdit *edit, std::string PropertyFields::*member)
{
    tieText(*this, *edit, values.*member);
}

void PropertyDialog::tie(QLineEdit *edit, std::string CommonFields::*member) { tieText(*this, *edit, values.*member); }

void PropertyDialog::tie(QPlainTextEdit *edit, std::string PropertyFields::*member)
{
    tieText(*this, *edit, values.*member);
}

void PropertyDialog::tie(QCheckBox *box, bool PropertyFields::*member)
{
    onLoad([this, box, member] { box->setChecked(values.*member); });
    onTake([this, box, member] { values.*member = box->isChecked(); });
}

void PropertyDialog::tie(QComboBox *list, int PropertyFields::*member) { tieIndex(*this, list, values.*member); }

void PropertyDialog::tie(QComboBox *list, int CommonFields::*member) { tieIndex(*this, list, values.*member); }

} // namespace corvanta
