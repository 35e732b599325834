#include "document/events.h"

#include "document/page.h"

namespace corvanta {

DocumentEvents &documentEvents()
{
    static DocumentEvents events;
    return events;
}

void pageEdited(std::string_view act)
{
    editing().pagedirty = true;
    documentEvents().edited(act);
}

} // namespace corvanta
