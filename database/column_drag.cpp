#include "database/connection.h"
#include "document/parse.h"
#include "document/tablist.h"

#include <algorithm>

namespace corvanta {

std::string dragOfColumn(const DroppedColumn &column)
{
    return column.table + '\t' + column.name + '\t' + std::to_string(column.type) + '\t' +
           std::to_string(column.length);
}

std::string dragOfColumns(const std::vector<DroppedColumn> &columns)
{
    std::string payload;
    for (const DroppedColumn &column : columns)
        payload += (payload.empty() ? "" : "\n") + dragOfColumn(column);
    return payload;
}

std::vector<DroppedColumn> columnsOfDrag(std::string_view payload)
{
    std::vector<DroppedColumn> columns;
    while (!payload.empty()) {
        const std::size_t end = std::min(payload.find('\n'), payload.size());
        const auto column = columnOfDrag(payload.substr(0, end));
        if (!column)
            return {};
        columns.push_back(*column);
        payload.remove_prefix(std::min(end + 1, payload.size()));
    }
    return columns;
}

std::optional<DroppedColumn> columnOfDrag(std::string_view payload)
{
    if (fieldCount(payload) != 4)
        return std::nullopt;
    return DroppedColumn{fieldAt(payload, 0), fieldAt(payload, 1), ParseInt16Clamped(fieldAt(payload, 2)),
                         ParseInt16Clamped(fieldAt(payload, 3))};
}

} // namespace corvanta
