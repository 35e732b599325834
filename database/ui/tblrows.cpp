#include "database/ui/tblrows.h"

#include "database/table_preview.h"
#include "platform/qt/dialogs.h"

#include <QDialog>
#include <QHeaderView>
#include <QLabel>
#include <QPushButton>
#include <QTableWidget>
#include <QVBoxLayout>

#include <algorithm>

namespace corvanta {

namespace {

constexpr QSize rowsSize(560, 300);                    // pixels
constexpr int widestColumn = 240, startingColumn = 60; // pixels

QString fromText(const std::string &utf8) { return QString::fromStdString(utf8); }

class Tblrows : public QDialog {
public:
    Tblrows(const Connection &c, int table, QWidget &owner);

private:
    void fill(const SqlResult &result);

    QLabel *told;
    QTableWidget *rows;
    QPushButton *closing;
    std::unique_ptr<TablePreview> preview;
};

Tblrows::Tblrows(const Connection &c, int table, QWidget &owner) : QDialog(&owner)
{
    const QString name = fromText(c.tableFacts.at(static_cast<std::size_t>(table)).shown);
    QVBoxLayout *contents = startDialog(*this, "tblrows", QStringLiteral("First Rows of ") + name);
    setAttribute(Qt::WA_DeleteOnClose);
    told = new QLabel(QStringLiteral("Reading..."), this);
    told->setObjectName("told");
    told->setTextFormat(Qt::PlainText);
    told->setWordWrap(true);
    told->setTextInteractionFlags(Qt::TextSelectableByMouse);
    contents->addWidget(told);
    rows = new QTableWidget(this);
    rows->setObjectName("rows");
    rows->setAccessibleName(QStringLiteral("Rows"));
    rows->setEditTriggers(QAbstractItemView::NoEditTriggers);
    rows->setMinimumSize(rowsSize / 2);
    contents->addWidget(rows, 1);
    closing = addButtons(*this, {{"cancbut", "Cancel", [this] { reject(); }}}).front();
    resize(rowsSize);
    CentreDialog(*this, &owner);
    preview = std::make_unique<TablePreview>(c, table, [this](const SqlResult &result) { fill(result); });
}

void Tblrows::fill(const SqlResult &result)
{
    closing->setText(QStringLiteral("Close"));
    told->setText(!result.error.empty()     ? fromText(result.error).trimmed()
                  : result.rows.empty()     ? QStringLiteral("The table holds no rows.")
                  : result.rows.size() == 1 ? QStringLiteral("1 row.")
                                            : QStringLiteral("%1 rows.").arg(result.rows.size()));
    if (result.rows.size() == firstRowCount)
        told->setText(QStringLiteral("The first %1 rows.").arg(firstRowCount));
    rows->setColumnCount(static_cast<int>(result.columns.size()));
    rows->setRowCount(static_cast<int>(result.rows.size()));
    for (int column = 0; column < rows->columnCount(); ++column)
        rows->setHorizontalHeaderItem(
            column, new QTableWidgetItem(fromText(result.columns[static_cast<std::size_t>(column)].name)));
    for (int row = 0; row < rows->rowCount(); ++row)
        for (int column = 0; column < rows->columnCount(); ++column) {
            const SqlField &field = result.rows[static_cast<std::size_t>(row)][static_cast<std::size_t>(column)];
            auto *cell = new QTableWidgetItem(field ? fromText(*field) : QStringLiteral("NULL"));
            if (!field)
                cell->setForeground(palette().color(QPalette::PlaceholderText));
            rows->setItem(row, column, cell);
        }
    for (int column = 0; column < rows->columnCount(); ++column) {
        rows->resizeColumnToContents(column);
        rows->setColumnWidth(column, std::clamp(rows->columnWidth(column), startingColumn, widestColumn));
    }
}

} // namespace

void showTableRows(const Connection &c, int table, QWidget &owner)
{
    if (table < 0 || table >= static_cast<int>(c.tableFacts.size()))
        return;
    QDialog *window = new Tblrows(c, table, owner);
    window->show();
}

} // namespace corvanta
