#include "objects/ui/grdcol.h"

#include "actions/action_choice.h"
#include "actions/ui/edit_action.h"
#include "document/tablist.h"
#include "platform/qt/dialogs.h"
#include "platform/qt/text.h"

#include <QBoxLayout>
#include <QDialog>
#include <QLineEdit>

namespace corvanta {

namespace {

void showDialog()
{
    QDialog dialog;
    QVBoxLayout *contents = startDialog(dialog, "grdcol", "Grid Column Properties");
    Group headerGroup = addGroup(*contents, "columnheader", "Column Header");
    QLineEdit *header = addTextRow(headerGroup.fields, "header", "");
    Group nameGroup = addGroup(*contents, "datacolumn", "Data Column Name");
    QLineEdit *colname = addTextRow(nameGroup.fields, "colname", "");
    addButtons(dialog,
               {{"ok", "OK", [&dialog] { dialog.accept(); }}, {"cancel", "Cancel", [&dialog] { dialog.reject(); }}});
    header->setText(toQString(fieldAt(dialogExchange(), 0)));
    colname->setText(toQString(fieldAt(dialogExchange(), 1)));
    header->selectAll();
    CentreDialog(dialog);
    if (dialog.exec() == QDialog::Accepted)
        dialogExchange() = toBytes(header->text()) + '\t' + toBytes(colname->text());
}

} // namespace

std::string EditGridColumn(const std::string &descriptor) { return ShowActionDialog(showDialog, descriptor); }

} // namespace corvanta
