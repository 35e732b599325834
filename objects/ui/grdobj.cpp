#include "actions/ui/entry_buttons.h"
#include "document/tablist.h"
#include "objects/ui/dialogs.h"
#include "objects/ui/entry_look.h"
#include "objects/ui/grdcol.h"
#include "platform/qt/text.h"

#include <QGroupBox>
#include <QHeaderView>
#include <QListWidget>
#include <QTableWidget>

#include <cmath>

namespace corvanta {

namespace {

constexpr std::int16_t newColumnWidth = 1200; // twips
constexpr int previewHeight = 70;             // pixels

// The preview has one empty column when there are no entries.
void showPreview(QTableWidget &preview, const std::vector<GridColumn> &columns)
{
    const QSignalBlocker quiet(preview.horizontalHeader());
    preview.setColumnCount(std::max(1, static_cast<int>(columns.size())));
    for (int i = 0; i < preview.columnCount(); ++i) {
        const bool entry = static_cast<std::size_t>(i) < columns.size();
        const GridColumn column = entry ? columns[static_cast<std::size_t>(i)] : GridColumn{"", newColumnWidth};
        preview.setHorizontalHeaderItem(i, new QTableWidgetItem(toQString(fieldAt(column.descriptor, 0))));
        preview.setColumnWidth(i, static_cast<int>(std::lround(column.width / twipsPerPixelX())));
    }
}

// The width of a column that the author has changed in the preview; the preview cannot show every width of the others.
void takeWidth(std::vector<GridColumn> &columns, int column, int pixels)
{
    if (static_cast<std::size_t>(column) < columns.size())
        columns[static_cast<std::size_t>(column)].width =
            static_cast<std::int16_t>(std::min(pixels * twipsPerPixelX(), 32767.0));
}

EntryList<GridColumn> entriesOf(PropertyDialog &d, QListWidget &list)
{
    auto &columns = d.values.columns;
    const auto ask = [&columns](EntryCommand command, const GridColumn &selected) -> std::optional<GridColumn> {
        const bool edits = command == EntryCommand::Edit;
        if (!edits && !checkEntryLimit(columns.size(), "grid header", "Grid Properties"))
            return std::nullopt;
        GridColumn column = edits ? selected : GridColumn{"", newColumnWidth};
        column.descriptor = EditGridColumn(column.descriptor);
        return column.descriptor.empty() ? std::nullopt : std::optional(column);
    };
    return {
        columns, list, [](const GridColumn &column, std::size_t) { return fieldAt(column.descriptor, 0); }, ask, {}};
}

QTableWidget *addPreview(PropertyDialog &d, Group &header)
{
    auto *preview = new QTableWidget(1, 1, header.box);
    preview->setMinimumHeight(previewHeight);
    preview->setMaximumHeight(2 * previewHeight);
    preview->verticalHeader()->hide();
    preview->setEditTriggers(QAbstractItemView::NoEditTriggers);
    preview->setTabKeyNavigation(false);
    addWidgetRow(header.fields, *preview, "grd", "");
    QObject::connect(preview->horizontalHeader(), &QHeaderView::sectionResized, preview,
                     [&d](int column, int, int pixels) { takeWidth(d.values.columns, column, pixels); });
    return preview;
}

} // namespace

void buildGrdobj(PropertyDialog &d)
{
    const auto columns = addColumns(d.contents(), 2);
    addStandardProperties(d, *columns[0]);
    addActionGroup(d, *columns[0]);
    Group look = addGroup(*columns[0], "look", "Appearance");
    addEntryAppearance(d, look, "grdedit", false);

    Group header = addGroup(*columns[1], "header", "Header");
    QListWidget *list = addListRow(header.fields, "grdedit", "");
    QTableWidget *preview = addPreview(d, header);
    const EntryList<GridColumn> entries = entriesOf(d, *list);
    addEntryButtons(*header.contents, "lbbut",
                    {EntryCommand::New, EntryCommand::Edit, EntryCommand::Insert, EntryCommand::Delete}, entries);
    QObject::connect(list, &QListWidget::currentRowChanged, preview, [&d, preview](int row) {
        showPreview(*preview, d.values.columns);
        preview->scrollTo(preview->model()->index(0, row));
    });
    d.onLoad([entries] { showEntries(entries, -1); });
}

} // namespace corvanta
