#pragma once

#include <cstdint>
#include <memory>
#include <string>
#include <vector>

// The catalogue's half towards the driver manager. Texts are bytes of the code page; handles release
// themselves, a connection with its disconnect.
namespace corvanta {

using OdbcHandle = std::unique_ptr<void, void (*)(void *)>;

struct OdbcTable {
    std::string name;
    std::u16string driverName, schema; // as the driver spells them
};

struct OdbcColumn {
    std::string name;
    std::int16_t type = 0;   // 0 String, 1 Integer, 2 Real, 3 Date, 4 Time, 5 Currency, 6 Numeric
    std::int16_t length = 0; // 0 to 32767
};

OdbcHandle openOdbc(); // empty on failure
std::vector<std::string> odbcSources(void *environment);

// Empty on failure, with the reason on standard error.
OdbcHandle connectOdbc(void *environment, const std::string &dsn, const std::string &user, const std::string &password);

std::vector<OdbcTable> odbcTables(void *connection);
std::vector<OdbcColumn> odbcColumns(void *connection, const OdbcTable &table);

// A table by its name alone, in whatever schema the driver finds it.
OdbcTable odbcTableNamed(const std::string &name);

} // namespace corvanta
