#include "database/ui/seldsn.h"

#include "actions/ui/edit_action.h"
#include "database/connection.h"
#include "platform/qt/dialogs.h"
#include "platform/qt/text.h"

#include <QBoxLayout>
#include <QDialog>
#include <QLineEdit>
#include <QListWidget>
#include <QPushButton>

#include <utility>

namespace corvanta {

namespace {

void fillSources(QListWidget &list, const std::string &connected)
{
    const std::vector<std::string> sources = dataSources(), shown = shownSources();
    for (std::size_t i = 0; i < sources.size(); ++i) {
        auto *item = new QListWidgetItem(QString::fromStdString(shown[i]), &list);
        item->setData(Qt::UserRole, toQString(sources[i]));
        if (sources[i] == connected)
            list.setCurrentItem(item);
    }
}

// OK waits for a choice: the connected source, which is selected from the start, has to be clicked too.
void confirmChoice(QListWidget &list, QPushButton &ok)
{
    const auto chosen = [&list, &ok] { ok.setEnabled(!list.selectedItems().isEmpty()); };
    ok.setEnabled(false);
    QObject::connect(&list, &QListWidget::itemClicked, &ok, chosen);
    QObject::connect(&list, &QListWidget::itemSelectionChanged, &ok, chosen);
    QObject::connect(&list, &QListWidget::itemDoubleClicked, &ok, [&ok] { ok.click(); });
}

void showDialog()
{
    const std::string connected = std::exchange(dialogExchange(), {});
    QDialog dialog;
    QVBoxLayout *contents = startDialog(dialog, "seldsn", "Select Data Source");
    Group names = addGroup(*contents, "datasourcename", "Data Source Name");
    QListWidget *dsnlist = addListRow(names.fields, "dsnlist", "");
    Group info = addGroup(*contents, "connection", "Connection Info");
    QLineEdit *user = addTextRow(info.fields, "Username", "User Name:");
    QLineEdit *password = addPasswordRow(info.fields, "Password", "Password:");
    const auto buttons = addButtons(
        dialog, {{"ok", "OK", [&dialog] { dialog.accept(); }}, {"cancbut", "Cancel", [&dialog] { dialog.reject(); }}});
    fillSources(*dsnlist, connected);
    confirmChoice(*dsnlist, *buttons.front());
    dsnlist->setFocus();
    CentreDialog(dialog);
    if (dialog.exec() == QDialog::Accepted)
        dialogExchange() = toBytes(dsnlist->currentItem()->data(Qt::UserRole).toString()) + '\t' +
                           toBytes(user->text()) + '\t' + toBytes(password->text());
}

} // namespace

std::string askDataSource(const std::string &connected) { return ShowActionDialog(showDialog, connected); }

} // namespace corvanta
