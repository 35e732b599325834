#include "shell/object_list.h"

#include "canvas/selection.h"
#include "document/events.h"
#include "document/kinds.h"
#include "document/objects.h"

namespace corvanta {

std::string objectListRow(const Page &p, std::int16_t index)
{
    constexpr std::size_t wideName = 9;
    const ObjectRecord &o = p.objects.at(static_cast<std::size_t>(index));
    const auto kind = kindOf(o.kind);
    const std::string name = kind ? kindRow(*kind).displayName : "";
    return name + (name.size() < wideName ? "\t\t" : "\t") + std::to_string(o.ptop) + '\t' + std::to_string(o.pleft);
}

void chooseListedObject(std::int16_t index)
{
    if (!hasObject(page(), index) || index == editing().curobj)
        return;
    selectObject(index);
    showTrackers();
}

void deleteListedObject(std::int16_t index)
{
    if (!hasObject(page(), index))
        return;
    const std::string act = "Delete " + objectName(page().objects[static_cast<std::size_t>(index)].kind);
    deleteObject(index);
    pageEdited(act);
}

} // namespace corvanta
