#include "preview/data_source.h"

#include "database/catalogue_reason.h"
#include "platform/codepage.h"

#include <algorithm>

namespace corvanta {

namespace {

constexpr std::size_t mostSources = 8;

SqlResult failed(std::string error)
{
    SqlResult result;
    result.error = std::move(error);
    result.milliseconds = -1; // nothing ran
    return result;
}

} // namespace

PageSource sourceOf(const Page &p) { return {connectPart(p, 0), {connectPart(p, 1), connectPart(p, 2)}}; }

DataSources::Connected &DataSources::entryFor(const PageSource &source)
{
    const auto found =
        std::find_if(connections.begin(), connections.end(), [&](const Connected &c) { return c.source == source; });
    if (found != connections.end())
        return *found;
    if (connections.size() >= mostSources)
        connections.pop_front();
    connections.push_back({source, source.credentials});
    return connections.back();
}

// A page that stores no user may do without one, else the user is asked.
OdbcHandle DataSources::connect(Connected &entry, SqlUse use)
{
    if (!environment)
        environment = openOdbc();
    OdbcHandle handle = connectOdbc(environment.get(), entry.source.source, entry.used.user, entry.used.password);
    if (!handle && entry.source.credentials.user.empty() && ask && !entry.declined) {
        const std::optional<Credentials> given = ask(entry.source.source);
        entry.declined = !given;
        if (given) {
            handle = connectOdbc(environment.get(), entry.source.source, given->user, given->password);
            entry.used = handle ? *given : entry.used;
        }
    }
    if (handle)
        beginUse(handle.get(), use);
    return handle;
}

SqlResult DataSources::run(const PageSource &source, SqlUse use, const std::function<SqlResult(void *)> &work)
{
    const std::lock_guard lock(mutex);
    if (source.source.empty())
        return failed("The page names no data source.");
    Connected &entry = entryFor(source);
    OdbcHandle &handle = use == SqlUse::Reading ? entry.reading : entry.writing;
    SqlResult result;
    for (int tries = 0; tries < 2; ++tries) {
        const bool fresh = !handle;
        if (fresh)
            handle = connect(entry, use);
        if (!handle)
            return failed("No connection to the data source \"" + toUtf8(source.source) +
                          "\". The reason stands on the terminal of the preview.");
        result = work(handle.get());
        if (!connectionLost(result))
            break;
        handle.reset();
        if (fresh || use == SqlUse::Writing) // a change may have been made before the connection went
            break;
    }
    result.error = withoutPassword(result.error, toUtf8(entry.used.password));
    return result;
}

SqlResult DataSources::read(const PageSource &source, const SqlStatement &statement, const SqlLimits &limits)
{
    return run(source, SqlUse::Reading, [&](void *c) { return readRows(c, statement, limits); });
}

SqlResult DataSources::change(const PageSource &source, const SqlStatement &statement, std::optional<long> mostRows)
{
    return run(source, SqlUse::Writing, [&](void *c) { return changeRows(c, statement, mostRows); });
}

} // namespace corvanta
