#include "shell/object_list.h"

#include "canvas/selection.h"
#include "document/events.h"
#include "document/kinds.h"
#include "document/objects.h"
#include "platform/text.h"
#include "shell/commands.h"

namespace corvanta {

std::string objectListRow(const Page &p, std::int16_t index)
{
    constexpr std::size_t wideName = 9;
    const ObjectRecord &o = p.objects.at(static_cast<std::size_t>(index));
    const auto kind = kindOf(o.kind);
    const std::string name = kind ? kindRow(*kind).displayName : "";
    return name + (name.size() < wideName ? "\t\t" : "\t") + std::to_string(o.ptop) + '\t' + std::to_string(o.pleft);
}

ObjectListDetails objectListDetails(const Page &p, std::int16_t index)
{
    const Element *element = elementOf(p, index);
    return {p.objects.at(static_cast<std::size_t>(index)).datacol, element ? element->Caption : std::string()};
}

bool listedUnder(const Page &p, std::int16_t index, std::string_view filter)
{
    const ObjectListDetails details = objectListDetails(p, index);
    const std::string texts = objectListRow(p, index) + '\t' + details.column + '\t' + details.caption + '\t' +
                              p.objects.at(static_cast<std::size_t>(index)).ctlname;
    return upperCase(texts).find(upperCase(trimmed(filter))) != std::string::npos;
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
    const std::string name = objectName(page().objects[static_cast<std::size_t>(index)].kind);
    deleteObject(index);
    pageEdited("Delete " + name);
    tellDeleted(name);
}

} // namespace corvanta
