#pragma once

#include "database/catalogue_names.h"

#include <cstdint>
#include <memory>
#include <string>
#include <vector>

// The catalogue's half towards the driver manager. Texts are bytes of the code page; handles release
// themselves, a connection with its disconnect.
namespace corvanta {

using OdbcHandle = std::unique_ptr<void, void (*)(void *)>;

struct OdbcTable {
    TableName name;
    bool view = false;
    std::string firstRows;                        // the statement that reads them
    std::u16string driverName, schema, catalogue; // as the driver spells them
};

struct OdbcColumn {
    std::string name;
    std::int16_t type = 0;   // 0 String, 1 Integer, 2 Real, 3 Date, 4 Time, 5 Currency, 6 Numeric
    std::int16_t length = 0; // 0 to 32767
    std::string typeName;    // the driver's, with length and digits as it tells them: "numeric(10,2)", UTF-8
    bool key = false;        // belongs to the primary key
};

OdbcHandle openOdbc(); // empty on failure

// The sources that can be connected to.
std::vector<ListedName> odbcSources(void *environment);

// Empty on failure, with the reason on standard error and where it is asked for: lines with SQLSTATE and the driver's
// text, in UTF-8, without the password. A name that is not listed is the driver manager's own.
OdbcHandle connectOdbc(void *environment, const std::string &dsn, const std::string &user, const std::string &password,
                       std::string *reason = nullptr);

// Whether the driver knows that its server is gone; it may ask the server.
bool odbcDead(void *connection);

// Those of the connection's own catalogue.
std::vector<OdbcTable> odbcTables(void *connection);
std::vector<OdbcColumn> odbcColumns(void *connection, const OdbcTable &table);

// A table by its name alone, in whatever schema the driver finds it.
OdbcTable odbcTableNamed(const std::string &name);

} // namespace corvanta
