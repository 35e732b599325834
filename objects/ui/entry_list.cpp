#include "objects/ui/entry_list.h"

#include "objects/properties.h"
#include "platform/asking.h"

namespace corvanta {

namespace {

const char *titleOf(EntryCommand command)
{
    switch (command) {
    case EntryCommand::Edit: return "Edit Entry";
    case EntryCommand::Insert: return "Insert Entry";
    case EntryCommand::New:
    case EntryCommand::Delete:
    case EntryCommand::Up:
    case EntryCommand::Down: break;
    }
    return "New Entry";
}

bool grows(EntryCommand command) { return command == EntryCommand::New || command == EntryCommand::Insert; }

} // namespace

std::string askEntryText(const TextEntries &what, EntryCommand command, std::size_t count, const std::string &current)
{
    if (grows(command) && !checkEntryLimit(count, what.kind, what.title))
        return {};
    const std::string initial = command == EntryCommand::Edit ? current : "";
    return askText(std::string(what.prompt) + '\t' + titleOf(command) + '\t' + initial);
}

} // namespace corvanta
