#include "database/connection.h"
#include "document/parse.h"
#include "document/tablist.h"

namespace corvanta {

std::string dragOfColumn(const DroppedColumn &column)
{
    return column.table + '\t' + column.name + '\t' + std::to_string(column.type) + '\t' +
           std::to_string(column.length);
}

std::optional<DroppedColumn> columnOfDrag(std::string_view payload)
{
    if (fieldCount(payload) != 4)
        return std::nullopt;
    return DroppedColumn{fieldAt(payload, 0), fieldAt(payload, 1), ParseInt16Clamped(fieldAt(payload, 2)),
                         ParseInt16Clamped(fieldAt(payload, 3))};
}

} // namespace corvanta
