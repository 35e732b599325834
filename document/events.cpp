#include "document/events.h"

#include "document/page.h"

namespace corvanta {

DocumentEvents &documentEvents()
{
    static DocumentEvents events;
    return events;
}

void pageEdited()
{
    editing().pagedirty = true;
    if (documentEvents().edited)
        documentEvents().edited();
}

} // namespace corvanta
