#include "database/ui/name_list.h"

#include "platform/qt/dialogs.h"

#include <QAction>
#include <QKeySequence>
#include <QLineEdit>
#include <QListWidget>
#include <QPainter>
#include <QShortcut>
#include <QStyledItemDelegate>

#include <algorithm>

namespace corvanta {

namespace {

constexpr int detailRole = Qt::UserRole + 1, keyRole = Qt::UserRole + 2;
constexpr int gap = 8, keyWidth = 14; // pixels

void paintKey(QPainter &painter, const QRect &place, const QColor &colour)
{
    const int y = place.center().y();
    painter.setRenderHint(QPainter::Antialiasing);
    painter.setPen(QPen(colour, 1.5));
    painter.drawEllipse(QPointF(place.left() + 3.5, y + 0.5), 2.5, 2.5);
    painter.drawLine(QPointF(place.left() + 6, y + 0.5), QPointF(place.left() + 12, y + 0.5));
    painter.drawLine(QPointF(place.left() + 11.5, y + 0.5), QPointF(place.left() + 11.5, y + 3.5));
    painter.drawLine(QPointF(place.left() + 8.5, y + 0.5), QPointF(place.left() + 8.5, y + 3));
}

class NameDelegate : public QStyledItemDelegate {
public:
    using QStyledItemDelegate::QStyledItemDelegate;

    void paint(QPainter *painter, const QStyleOptionViewItem &option, const QModelIndex &index) const override
    {
        QStyledItemDelegate::paint(painter, option, index);
        const QString detail = index.data(detailRole).toString();
        const bool key = index.data(keyRole).toBool();
        const bool chosen = option.state.testFlag(QStyle::State_Selected);
        const auto group = option.state.testFlag(QStyle::State_Active) ? QPalette::Active : QPalette::Inactive;
        const QColor colour =
            option.palette.color(group, chosen ? QPalette::HighlightedText : QPalette::PlaceholderText);
        const int name = option.fontMetrics.horizontalAdvance(index.data().toString());
        QRect room = option.rect.adjusted(name + 2 * gap, 0, -gap / 2, 0);
        painter->save();
        if (key && room.width() > keyWidth) {
            paintKey(*painter, QRect(room.left(), room.top(), keyWidth, room.height()), colour);
            room.setLeft(room.left() + keyWidth + gap);
        }
        painter->setPen(colour);
        painter->drawText(room, Qt::AlignRight | Qt::AlignVCenter | Qt::TextSingleLine,
                          option.fontMetrics.elidedText(detail, Qt::ElideRight, std::max(0, room.width())));
        painter->restore();
    }
};

} // namespace

void prepareNameList(QListWidget &list)
{
    list.setItemDelegate(new NameDelegate(&list));
    list.setUniformItemSizes(true);
}

void fillNames(QListWidget &list, const std::vector<NameRow> &rows)
{
    list.clear();
    for (const NameRow &row : rows) {
        auto *item = new QListWidgetItem(row.name, &list);
        item->setData(detailRole, row.detail);
        item->setData(keyRole, row.key);
        item->setToolTip(row.tip);
        const QString spoken = row.key ? row.detail + QStringLiteral(", primary key") : row.detail;
        item->setData(Qt::AccessibleTextRole, spoken.isEmpty() ? row.name : row.name + QStringLiteral(", ") + spoken);
    }
}

QLineEdit *addNameFilter(Fields &fields, const char *name, const QString &hint)
{
    QLineEdit *filter = addTextRow(fields, name, QString());
    filter->setPlaceholderText(hint);
    filter->setAccessibleName(hint);
    filter->setClearButtonEnabled(true);
    return filter;
}

void filterNames(QLineEdit &filter, QListWidget &list)
{
    const QString wanted = filter.text();
    list.setUpdatesEnabled(false);
    for (int row = 0; row < list.count(); ++row)
        list.setRowHidden(row, !list.item(row)->text().contains(wanted, Qt::CaseInsensitive));
    list.setUpdatesEnabled(true);
    if (list.currentItem() && !list.currentItem()->isHidden())
        list.scrollToItem(list.currentItem());
}

void enterNames(QListWidget &list)
{
    list.setFocus();
    if (!list.selectedItems().isEmpty() && !list.currentItem()->isHidden())
        return;
    for (int row = 0; row < list.count(); ++row)
        if (!list.item(row)->isHidden())
            return list.setCurrentRow(row);
}

} // namespace corvanta
