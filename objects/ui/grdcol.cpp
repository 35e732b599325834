#include "objects/ui/grdcol.h"

#include "actions/action_choice.h"
#include "actions/ui/edit_action.h"
#include "document/tablist.h"
#include "platform/qt/dialogs.h"
#include "platform/qt/text.h"
#include "platform/qt/text_limit.h"

#include <QBoxLayout>
#include <QDialog>
#include <QLineEdit>

#include <algorithm>

namespace corvanta {

namespace {

// A tab in either text would move what follows it; it becomes a blank.
std::string changedDescriptor(const std::string &before, std::string header, std::string column)
{
    if (!before.empty() && header == fieldAt(before, 0) && column == fieldAt(before, 1))
        return before;
    std::ranges::replace(header, '\t', ' ');
    std::ranges::replace(column, '\t', ' ');
    return setFieldAt(setFieldAt(before, 0, header), 1, column);
}

void showDialog()
{
    QDialog dialog;
    QVBoxLayout *contents = startDialog(dialog, "grdcol", "Grid Column Properties");
    Group headerGroup = addGroup(*contents, "columnheader", "Column Header");
    QLineEdit *header = addTextRow(headerGroup.fields, "header", "");
    Group nameGroup = addGroup(*contents, "datacolumn", "Data Column Name");
    QLineEdit *colname = addTextRow(nameGroup.fields, "colname", "");
    const auto confirm = [&dialog] {
        if (checkTextLengths(dialog))
            dialog.accept();
    };
    addButtons(dialog, {{"ok", "OK", confirm}, {"cancel", "Cancel", [&dialog] { dialog.reject(); }}});
    header->setText(toQString(fieldAt(dialogExchange(), 0)));
    colname->setText(toQString(fieldAt(dialogExchange(), 1)));
    header->selectAll();
    CentreDialog(dialog);
    if (dialog.exec() == QDialog::Accepted)
        dialogExchange() = changedDescriptor(dialogExchange(), toBytes(header->text()), toBytes(colname->text()));
}

} // namespace

std::string EditGridColumn(const std::string &descriptor) { return ShowActionDialog(showDialog, descriptor); }

} // namespace corvanta
