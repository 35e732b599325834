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

std::shared_ptr<DataSources::Connected> DataSources::entryFor(const PageSource &source)
{
    const std::lock_guard lock(mutex);
    if (!environment)
        environment = openOdbc();
    const auto found =
        std::find_if(connections.begin(), connections.end(), [&](const auto &c) { return c->source == source; });
    if (found != connections.end())
        return *found;
    if (connections.size() >= mostSources)
        connections.pop_front();
    connections.push_back(std::make_shared<Connected>());
    connections.back()->source = source;
    connections.back()->used = source.credentials;
    return connections.back();
}

// A page that stores no user may do without one. Else, and where the source refuses what is stored, the user is asked.
OdbcHandle DataSources::connect(Connected &entry, SqlUse use)
{
    const std::string &source = entry.source.source;
    std::string reason;
    OdbcHandle handle = connectOdbc(environment.get(), source, entry.used.user, entry.used.password, &reason);
    const bool refused = entry.used.user.empty() || ("\n" + reason).find("\n28") != std::string::npos ||
                         reason.find("assword") != std::string::npos; // some drivers say 08001 of a wrong one
    if (!handle && refused && ask && !entry.declined) {
        const std::lock_guard lock(asking);
        const std::optional<Credentials> given = ask(source);
        entry.declined = !given;
        if (given) {
            handle = connectOdbc(environment.get(), source, given->user, given->password);
            entry.used = handle ? *given : entry.used;
        }
    }
    if (handle)
        beginUse(handle.get(), use);
    return handle;
}

SqlResult DataSources::run(const PageSource &source, SqlUse use, const SqlStatement &statement,
                           const std::function<SqlResult(void *)> &work)
{
    if (source.source.empty())
        return failed("The page names no data source.");
    const std::shared_ptr<Connected> entry = entryFor(source);
    const std::lock_guard lock(entry->busy);
    OdbcHandle &handle = use == SqlUse::Reading ? entry->reading : entry->writing;
    SqlResult result;
    for (int tries = 0; tries < 2; ++tries) {
        const bool fresh = !handle;
        if (fresh)
            handle = connect(*entry, use);
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
    result.error = withoutPassword(result.error, toUtf8(entry->used.password));
    for (const SqlParameter &parameter : statement.parameters) // drivers repeat the values that they refuse
        if (parameter.secret)
            result.error = withoutPassword(result.error, parameter.value.value_or(""));
    return result;
}

SqlResult DataSources::read(const PageSource &source, const SqlStatement &statement, const SqlLimits &limits)
{
    return run(source, SqlUse::Reading, statement, [&](void *c) { return readRows(c, statement, limits); });
}

SqlResult DataSources::change(const PageSource &source, const SqlStatement &statement, std::optional<long> mostRows)
{
    return run(source, SqlUse::Writing, statement, [&](void *c) { return changeRows(c, statement, mostRows); });
}

} // namespace corvanta
