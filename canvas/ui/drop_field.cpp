#include "canvas/ui/drop_field.h"

#include "canvas/ui/drop.h"
#include "database/connection.h"
#include "document/events.h"

namespace corvanta {

void dropField(Point at, std::string_view payload)
{
    const Kind kind = kindButtons[connection().pressedButton].kind;
    const auto column = columnOfDrag(payload);
    if (!column || !acceptsColumn(page(), kind))
        return;
    const std::int16_t index = addObjectAt(kind, at);
    if (index == noObject)
        return;
    bindColumn(page(), index, *column);
    documentEvents().objectChanged(index);
    pageEdited("Add bound " + objectName(static_cast<std::int16_t>(kind)));
}

} // namespace corvanta
