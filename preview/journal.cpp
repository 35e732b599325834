#include "preview/journal.h"

namespace corvanta {

namespace {

constexpr std::size_t mostEntries = 50;

} // namespace

unsigned long Journal::add(JournalEntry entry)
{
    const std::lock_guard lock(mutex);
    entry.number = ++count;
    entries.push_back(std::move(entry));
    if (entries.size() > mostEntries)
        entries.pop_front();
    return count;
}

unsigned long Journal::last() const
{
    const std::lock_guard lock(mutex);
    return count;
}

std::vector<JournalEntry> Journal::newestFirst() const
{
    const std::lock_guard lock(mutex);
    return {entries.rbegin(), entries.rend()};
}

} // namespace corvanta
