#include "canvas/ui/drop_field.h"

#include "canvas/free_place.h"
#include "canvas/selection.h"
#include "canvas/ui/drop.h"
#include "canvas/ui/paint_kinds.h"
#include "document/encoding.h"
#include "document/events.h"
#include "document/objects.h"
#include "platform/qt/text.h"

#include <QFontMetrics>

#include <functional>

namespace corvanta {

namespace {

constexpr int labelMargin = 4; // pixels, of both sides together

// Given the size of what is placed, its top left corner on the page.
using Place = std::function<Point(Size)>;

Kind chosenKind() { return kindButtons[connection().pressedButton].kind; }

// What a new object of the kind takes.
Size sizeOfNew(Kind kind)
{
    Page sample;
    const std::int16_t index = createVisual(sample, encodeInt16(static_cast<std::int16_t>(kind)));
    const Rect r = rectOf(sample.objects.at(static_cast<std::size_t>(index)));
    return {r.width, r.height};
}

Size sizeOfLabel(const DroppedColumn &column)
{
    const Element &label = page().lbl.front();
    const QFontMetrics metrics(fontOf(label.font));
    return {metrics.horizontalAdvance(toQString(column.name)) + labelMargin, metrics.height() + labelMargin};
}

void bindTo(std::int16_t index, const DroppedColumn &column)
{
    bindColumn(page(), index, column);
    documentEvents().objectChanged(index);
}

std::int16_t addBound(Kind kind, const DroppedColumn &column, const Rect &r)
{
    const std::int16_t index = addObject(kind);
    if (index == noObject)
        return noObject;
    setObjectGeometry(index, toPixels(r.top), toPixels(r.left), toPixels(r.height), toPixels(r.width));
    bindTo(index, column);
    return index;
}

void placeOne(Kind kind, const DroppedColumn &column, const Place &place)
{
    const std::int16_t index = addObjectAt(kind, place(sizeOfNew(kind)));
    if (index == noObject)
        return;
    bindTo(index, column);
    pageEdited("Add bound " + objectName(static_cast<std::int16_t>(kind)));
}

void placeRows(Kind kind, const std::vector<DroppedColumn> &columns, const Place &place)
{
    std::vector<Size> labels;
    for (const DroppedColumn &column : columns)
        labels.push_back(sizeOfLabel(column));
    const LabelledRows rows = labelledRows(labels, sizeOfNew(kind), sizeOf(page()));
    const Rect whole = droppedRect({0, 0, rows.whole.width, rows.whole.height}, place(rows.whole), sizeOf(page()));
    const auto onPage = [&whole](const Rect &r) { // more rows than the page has room for lie at its edge
        return droppedRect(r, {whole.left + r.left, whole.top + r.top}, sizeOf(page()));
    };
    std::vector<std::int16_t> added;
    for (std::size_t i = 0; i < columns.size(); ++i) {
        added.push_back(addBound(Kind::Label, columns[i], onPage(rows.rows[i].label)));
        added.push_back(addBound(kind, columns[i], onPage(rows.rows[i].field)));
    }
    std::erase(added, noObject);
    if (added.empty())
        return;
    chooseObjects(added);
    pageEdited("Add " + std::to_string(columns.size()) + " bound objects");
}

void placeAll(const std::vector<DroppedColumn> &columns, const Place &place)
{
    const Kind kind = chosenKind();
    if (columns.empty() || !acceptsColumn(page(), kind))
        return;
    if (columns.size() == 1)
        placeOne(kind, columns.front(), place);
    else
        placeRows(kind, columns, place);
}

} // namespace

void dropField(Point at, std::string_view payload)
{
    placeAll(columnsOfDrag(payload), [at](Size) { return at; });
}

void placeColumns(const std::vector<DroppedColumn> &columns)
{
    placeAll(columns, [](Size wanted) { return freePlace(page(), editing().curobj, wanted); });
}

} // namespace corvanta
