#include "platform/qt/dialogs.h"

#include <QGridLayout>
#include <QGroupBox>
#include <QLabel>

#include <algorithm>

namespace corvanta {

namespace {

using Grids = std::vector<QGridLayout *>;

// The width of a grid's widest label at the left; 0 without one.
int labelWidth(const QGridLayout &grid)
{
    int width = 0;
    for (int row = 0; row < grid.rowCount(); ++row) {
        const QLayoutItem *item = grid.itemAtPosition(row, 0);
        const auto *label = item ? qobject_cast<const QLabel *>(item->widget()) : nullptr;
        if (label && label->buddy())
            width = std::max(width, label->sizeHint().width());
    }
    return width;
}

void beginOnOneLine(const Grids &column)
{
    int widest = 0;
    for (const QGridLayout *grid : column)
        widest = std::max(widest, labelWidth(*grid));
    for (QGridLayout *grid : column)
        if (labelWidth(*grid) > 0)
            grid->setColumnMinimumWidth(0, widest);
}

void alignBeside(QLayoutItem &part)
{
    if (const QLayout *layout = part.layout())
        alignFields(*layout);
}

// Takes the grids that stand under each other, also in frames; those beside each other make lines of their own.
void gather(const QLayout &layout, Grids &column)
{
    for (int i = 0; i < layout.count(); ++i) {
        QLayoutItem *item = layout.itemAt(i);
        const auto *frame = qobject_cast<const QGroupBox *>(item->widget());
        QLayout *inner = frame ? frame->layout() : item->layout();
        if (auto *grid = qobject_cast<QGridLayout *>(inner))
            column.push_back(grid);
        else if (qobject_cast<const QHBoxLayout *>(inner))
            for (int beside = 0; beside < inner->count(); ++beside)
                alignBeside(*inner->itemAt(beside));
        else if (inner)
            gather(*inner, column);
    }
}

} // namespace

void alignFields(const QLayout &layout)
{
    Grids column;
    gather(layout, column);
    beginOnOneLine(column);
}

} // namespace corvanta
