#include "objects/ui/drop_column.h"

#include "platform/qt/drag.h"
#include "platform/qt/drop_target.h"

namespace corvanta {

void acceptColumn(QWidget &field, std::function<void(const DroppedColumn &)> dropped)
{
    acceptDrag(field, "fld", [dropped](const DragPayload &drag) {
        if (const auto column = columnOfDrag(drag.payload.toStdString()))
            dropped(*column);
    });
}

} // namespace corvanta
