#include "page/ui/page_dialog.h"

#include "database/connection.h"
#include "database/sql.h"
#include "document/media.h"
#include "objects/ui/colour_row.h"
#include "objects/ui/media_row.h"
#include "platform/asking.h"
#include "platform/help.h"
#include "platform/qt/dialogs.h"
#include "platform/qt/drop_target.h"
#include "platform/qt/text.h"
#include "platform/qt/text_limit.h"
#include "platform/text.h"

#include <QBoxLayout>
#include <QCheckBox>
#include <QComboBox>
#include <QGroupBox>
#include <QLineEdit>
#include <QPlainTextEdit>
#include <QPushButton>
#include <QScreen>

namespace corvanta {

PageDialog::PageDialog() : values(LoadPageProperties(page()))
{
    const auto columns = addColumns(*startDialog(*this, "pgprops", "Page Properties"), 2);
    addBackground(*columns[0]);
    addSound(*columns[0]);
    addPageType(*columns[0]);
    addDatabase(*columns[0]);
    addPlainGroup(*columns[1], "caption", "Caption", "pgcaption", &PagePropertyFields::pgcaption);
    addPlainGroup(*columns[1], "key", "&Key Required:", "keyreq", &PagePropertyFields::keyreq);
    addConnection(*columns[1]);
    addFlags(*columns[1]);
    addButtons(*this, {{"ok", "OK", [this] { confirm(); }},
                       {"cancbut", "Cancel", [this] { reject(); }},
                       {"helpbut", "Help", [] { showHelp(HelpCommand::Contents); }}});
    load();
    CentreDialog(*this);
}

void PageDialog::addBackground(QBoxLayout &layout)
{
    Group group = addGroup(layout, "background", "Background", 2);
    const auto invalid = [] { return invalidFileName("background"); };
    QLineEdit *imgfn =
        tie(addMediaField(group.fields, "imgfn", "&Image:", Media::Image, invalid), &PagePropertyFields::imgfn);
    tie(addColourField(group.fields, "bkgcol", "&Color:", "bkgsel"), &PagePropertyFields::bkgcol);
    bkght = tie(addNumberRow(group.fields, "bkght", "&Height:"), &PagePropertyFields::bkght);
    bkgwd = tie(addNumberRow(group.fields, "bkgwd", "&Width:"), &PagePropertyFields::bkgwd);
    connect(imgfn, &QLineEdit::textChanged, this,
            [this](const QString &text) { enableSize(sizeIsTyped(toBytes(text))); });
}

void PageDialog::enableSize(bool typed)
{
    setFieldEnabled(*bkght, typed);
    setFieldEnabled(*bkgwd, typed);
}

void PageDialog::addSound(QBoxLayout &layout)
{
    Group group = addGroup(layout, "sound", "&Sound");
    const auto invalid = [] { return invalidFileName("sound"); };
    tie(addMediaField(group.fields, "sndfn", "", Media::Sound, invalid), &PagePropertyFields::sndfn);
}

void PageDialog::addPlainGroup(QBoxLayout &layout, const char *name, const QString &caption, const char *field,
                               Text member)
{
    Group group = addGroup(layout, name, caption);
    tie(addTextRow(group.fields, field, ""), member);
}

void PageDialog::addPageType(QBoxLayout &layout)
{
    Group group = addGroup(layout, "pagetype", "Page Type");
    types = addComboRow(group.fields, "PageType", "");
    for (const char *name : pageTypeNames())
        types->addItem(name);
    connect(types, &QComboBox::currentIndexChanged, this, [this](int type) { showForType(type); });
}

void PageDialog::addConnection(QBoxLayout &layout)
{
    Group group = addGroup(layout, "connection", "Connection Info");
    QLineEdit *dsn = tie(addTextRow(group.fields, "dsn", "Data Source:"), &PagePropertyFields::dsn);
    QLineEdit *user = tie(addTextRow(group.fields, "Username", "User Name:"), &PagePropertyFields::Username);
    QLineEdit *password = tie(addPasswordRow(group.fields, "Password", "Password:"), &PagePropertyFields::Password);
    acceptDrag(*dsn, "dsn", [dsn, user, password](const DragPayload &drag) {
        const QString source = toQString(drag.payload.toStdString());
        const bool other = source != dsn->text(); // user and password of the former source are not its own
        dsn->setText(source);
        if (drag.ours || other) {
            user->setText(drag.ours ? toQString(connection().user) : QString());
            password->setText(drag.ours ? toQString(connection().password) : QString());
        }
    });
}

void PageDialog::addDatabase(QBoxLayout &layout)
{
    Group group = addGroup(layout, "database", "Database");
    database = group.box;
    deftbl = tie(addTextRow(group.fields, "deftbl", "Default Table:"), &PagePropertyFields::deftbl);
    statement = tie(addTextAreaRow(group.fields, "SelectStmt", "Select:"), &PagePropertyFields::SelectStmt);
    generate = addButtonRow(*group.contents, {{"generate", "Generate", [this] { generateStatement(); }}}).front();
    acceptDrag(*deftbl, "dbs",
               [this](const DragPayload &drag) { deftbl->setText(toQString(drag.payload.toStdString())); });
}

void PageDialog::addFlags(QBoxLayout &layout)
{
    Group group = addGroup(layout, "flags", "Flags", 3);
    flags = {{addCheckRow(group.fields, "rtl", "RTL"), &PagePropertyFields::rtl},
             {addCheckRow(group.fields, "anonymous", "Public"), &PagePropertyFields::anonymous},
             {addCheckRow(group.fields, "replacehtml", "Filter HTML"), &PagePropertyFields::replacehtml}};
}

void PageDialog::showForType(int pageType)
{
    const bool withStatement = showsSelectStatement(pageType);
    database->setVisible(showsDefaultTable(pageType));
    database->setSizePolicy(QSizePolicy::Preferred, withStatement ? QSizePolicy::Expanding : QSizePolicy::Fixed);
    setFieldVisible(*statement, withStatement);
    generate->setVisible(withStatement);
}

void PageDialog::generateStatement()
{
    const SqlText generated = selectWholeTable(toBytes(deftbl->text()));
    if (generated.error.empty())
        return statement->setPlainText(toQString(generated.text));
    showExclamation(generated.error, "Properties Error");
    returnToField(*this, "deftbl");
}

void PageDialog::load()
{
    for (TiedField &field : texts)
        field.control.show(values.*field.member);
    enableSize(values.sizeTyped);
    for (const TiedFlag &flag : flags)
        flag.box->setChecked(values.*flag.member);
    types->setCurrentIndex(values.PageType < types->count() ? values.PageType : -1);
    showForType(values.PageType);
}

void PageDialog::confirm()
{
    if (!checkTextLengths(*this, "Properties Error"))
        return;
    for (const TiedField &field : texts)
        values.*field.member = field.control.bytes();
    values.sizeTyped = bkght->isEnabled();
    for (const TiedFlag &flag : flags)
        values.*flag.member = flag.box->isChecked();
    if (types->currentIndex() >= 0)
        values.PageType = types->currentIndex();
    const QSize size = screen()->size();
    const PageConfirmation confirmation = ConfirmPageProperties(values, {size.width(), size.height()});
    if (confirmation.stored)
        return accept();
    returnToField(*this, confirmation.focus);
}

} // namespace corvanta
