#include "database/catalogue.h"

#include "database/catalogue_odbc.h"
#include "database/catalogue_thread.h"

#include <algorithm>
#include <cstring>
#include <string>
#include <utility>
#include <vector>

namespace corvanta {
namespace {

constexpr std::int32_t success = 0, failure = 1;

struct OpenConnection {
    std::string dsn, user;
    OdbcHandle handle;
    std::vector<OdbcTable> tables; // as last listed
};

// What a First call has found and the Next calls give out.
template <class Entry> struct Listing {
    std::vector<Entry> entries;
    std::size_t next = 0;

    void start(std::vector<Entry> found)
    {
        entries = std::move(found);
        next = 0;
    }
    const Entry *take() { return next < entries.size() ? &entries[next++] : nullptr; }
};

struct Library {
    OdbcHandle environment{nullptr, nullptr};
    std::vector<OpenConnection> connections;
    Listing<ListedName> sources;
    Listing<OdbcTable> tables;
    Listing<OdbcColumn> columns;
    bool lost = false;
};

Library &library()
{
    thread_local Library instance;
    return instance;
}

void *environment()
{
    if (!library().environment)
        library().environment = openOdbc();
    return library().environment.get();
}

auto connectionPlace(const std::string &dsn, const std::string &user)
{
    auto &connections = library().connections;
    return std::find_if(connections.begin(), connections.end(),
                        [&](const OpenConnection &c) { return c.dsn == dsn && c.user == user; });
}

OpenConnection *openConnection(const char *dsn, const char *user)
{
    auto place = connectionPlace(dsn, user);
    return place == library().connections.end() ? nullptr : &*place;
}

// After an enumeration; what was found tells that the connection stood.
void noteLoss(const OpenConnection &connection, bool found)
{
    library().lost = takeLost() || (!found && odbcDead(connection.handle.get()));
}

std::int32_t giveName(const std::string &name, char *buffer)
{
    std::size_t length = std::min(name.size(), nameBufferSize - 1);
    std::memcpy(buffer, name.data(), length);
    buffer[length] = '\0';
    return success;
}

} // namespace

std::int32_t GetFirstOdbcDsn(char *name)
{
    library().sources.start(odbcSources(environment()));
    return GetNextOdbcDsn(name);
}

std::int32_t GetNextOdbcDsn(char *name)
{
    const ListedName *source = library().sources.take();
    return source ? giveName(source->name, name) : failure;
}

std::int32_t ConnectDsn(const char *dsn, const char *user, const char *password, std::string *reason)
{
    OdbcHandle handle = connectOdbc(environment(), dsn, user, password, reason);
    if (!handle)
        return failure;
    DisconnectDsn(dsn, user);
    library().connections.push_back({dsn, user, std::move(handle), {}});
    return success;
}

std::int32_t DisconnectDsn(const char *dsn, const char *user)
{
    auto place = connectionPlace(dsn, user);
    if (place == library().connections.end())
        return failure;
    library().connections.erase(place);
    return success;
}

// The password is that of the connection, which is open already.
std::int32_t GetFirstTableName(const char *dsn, const char *user, const char *, char *name)
{
    library().tables.start({});
    OpenConnection *connection = openConnection(dsn, user);
    if (!connection)
        return failure;
    takeLost();
    connection->tables = odbcTables(connection->handle.get());
    noteLoss(*connection, !connection->tables.empty());
    library().tables.start(connection->tables);
    return GetNextTableName(name);
}

std::int32_t GetNextTableName(char *name)
{
    const OdbcTable *table = library().tables.take();
    return table ? giveName(table->name.listed.name, name) : failure;
}

std::int32_t GetFirstColumn(const char *dsn, const char *user, const char *, const char *table, char *name,
                            std::int16_t &type, std::int16_t &length)
{
    library().columns.start({});
    OpenConnection *connection = openConnection(dsn, user);
    if (!connection)
        return failure;
    std::string wanted = table;
    // A listed table is asked for as the driver spelt it.
    auto listed = std::find_if(connection->tables.begin(), connection->tables.end(),
                               [&](const OdbcTable &t) { return t.name.listed.name == wanted; });
    takeLost();
    library().columns.start(
        odbcColumns(connection->handle.get(), listed == connection->tables.end() ? odbcTableNamed(wanted) : *listed));
    noteLoss(*connection, !library().columns.entries.empty());
    return GetNextColumn(name, type, length);
}

std::int32_t GetNextColumn(char *name, std::int16_t &type, std::int16_t &length)
{
    const OdbcColumn *column = library().columns.take();
    if (!column)
        return failure;
    type = column->type;
    length = column->length;
    return giveName(column->name, name);
}

std::vector<std::string> shownSources()
{
    std::vector<std::string> shown;
    for (const ListedName &source : library().sources.entries)
        shown.push_back(source.shown);
    return shown;
}

std::vector<TableFacts> tableFacts()
{
    std::vector<TableFacts> facts;
    for (const OdbcTable &t : library().tables.entries)
        facts.push_back({t.name.listed.shown, t.name.dropped, t.firstRows, t.view});
    return facts;
}

std::vector<ColumnFacts> columnFacts()
{
    std::vector<ColumnFacts> facts;
    for (const OdbcColumn &c : library().columns.entries)
        facts.push_back({c.typeName, c.key});
    return facts;
}

bool connectionLost() { return library().lost; }

std::int32_t OdbcNameEndDll()
{
    library().connections.clear(); // before their environment
    library() = Library{};
    return success;
}

} // namespace corvanta
