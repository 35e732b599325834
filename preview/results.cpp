#include "preview/results.h"

namespace corvanta {

namespace {

constexpr std::size_t mostResults = 8;

} // namespace

ResultPtr Results::add(ResultSet result)
{
    const std::lock_guard lock(mutex);
    result.number = ++count;
    results.push_back(std::make_shared<const ResultSet>(std::move(result)));
    if (results.size() > mostResults)
        results.pop_front();
    return results.back();
}

void Results::refresh(unsigned number, SqlResult data)
{
    const std::lock_guard lock(mutex);
    for (ResultPtr &kept : results) {
        if (kept->number != number)
            continue;
        ResultSet changed = *kept;
        changed.data = std::move(data);
        kept = std::make_shared<const ResultSet>(std::move(changed));
        return;
    }
}

ResultPtr Results::find(unsigned number) const
{
    const std::lock_guard lock(mutex);
    for (const ResultPtr &kept : results)
        if (kept->number == number)
            return kept;
    return nullptr;
}

} // namespace corvanta
