#include "actions/action_list.h"

#include "actions/action_kinds.h"

namespace corvanta {

namespace {

auto iteratorAt(std::vector<ActionEntry> &entries, std::size_t position)
{
    return entries.begin() + static_cast<std::ptrdiff_t>(position);
}

} // namespace

bool insertActionEntry(std::vector<ActionEntry> &entries, std::size_t position, std::string_view reply)
{
    if (reply.empty() || position > entries.size())
        return false;
    entries.insert(iteratorAt(entries, position), decodeActionEntry(reply));
    return true;
}

bool replaceActionEntry(std::vector<ActionEntry> &entries, std::size_t position, std::string_view reply)
{
    if (reply.empty() || position >= entries.size())
        return false;
    entries[position] = decodeActionEntry(reply);
    return true;
}

bool removeActionEntry(std::vector<ActionEntry> &entries, std::size_t position)
{
    if (position >= entries.size())
        return false;
    entries.erase(iteratorAt(entries, position));
    return true;
}

std::string actionCaption(std::string_view text) { return actionKind(ActionCode(text)).caption; }

} // namespace corvanta
