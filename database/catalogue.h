#pragma once

#include <cstddef>
#include <cstdint>
#include <functional>
#include <string>
#include <vector>

// The ODBC catalogue: data sources, tables and columns. Texts are NUL-terminated bytes of the code page; a
// name is written into a buffer of nameBufferSize bytes that the caller owns, and cut when it is longer.
// Every function returns a status: 0 = success (of an enumeration: a name was written), any other value =
// failure (no more names). An enumeration is a First call and then Next calls until a non-zero status; the
// three enumerations do not disturb each other. Several connections may be open at once. Every thread has a catalogue
// of its own, with its own connections: one that hangs in a driver holds up no other.
namespace corvanta {

inline constexpr std::size_t nameBufferSize = 256;

// The data sources of the user and of the system that can be connected to, each name once.
std::int32_t GetFirstOdbcDsn(char *name);
std::int32_t GetNextOdbcDsn(char *name);

// Connects within the log-in time-out. Why a connection failed is told on standard error and in the
// reason, in lines of UTF-8 (SQLSTATE and the driver's text, without the password). A file database is never created.
std::int32_t ConnectDsn(const char *dsn, const char *user, const char *password, std::string *reason = nullptr);
// Drops the connection that was made with these values.
std::int32_t DisconnectDsn(const char *dsn, const char *user);

// Tables and views of a connected source's own catalogue in the driver's order, without system tables. No two have the
// same name: where they would, the schema or the driver's spelling stands behind it.
std::int32_t GetFirstTableName(const char *dsn, const char *user, const char *password, char *name);
std::int32_t GetNextTableName(char *name);

// Columns of a table: the type as an index into "String" (0), "Integer" (1), "Real" (2), "Date" (3), "Time" (4),
// "Currency" (5), "Numeric" (6), the length as the column size, 0 to 32767.
std::int32_t GetFirstColumn(const char *dsn, const char *user, const char *password, const char *table, char *name,
                            std::int16_t &type, std::int16_t &length);
std::int32_t GetNextColumn(char *name, std::int16_t &type, std::int16_t &length);

// What else is known of the names of the last listing, parallel to them. Texts shown are UTF-8.
struct TableFacts {
    std::string shown;     // the name as people read it
    std::string dropped;   // the name in SQL, in the code page; empty when no text of the code page reaches the table
    std::string firstRows; // the statement that reads its first rows, with the table's true name
    bool view = false;
};
inline constexpr int firstRowCount = 20;
struct ColumnFacts {
    std::string type; // the driver's whole type
    bool key = false; // belongs to the primary key
};
std::vector<std::string> shownSources();
std::vector<TableFacts> tableFacts();
std::vector<ColumnFacts> columnFacts();

// Whether the last enumeration of tables or columns found the connection gone; its list may be incomplete then.
bool connectionLost();

// How long drivers may take, in seconds: to connect, and for one call of the catalogue.
struct CatalogueTimes {
    int login = 5, call = 15;
};
void setCatalogueTimes(const CatalogueTimes &times); // of the whole process
CatalogueTimes catalogueTimes();

// A function by which other threads break off the calls that this thread is in. Drivers may make it wait.
std::function<void()> catalogueBreaker();

// Whether any thread holds the library. The program must not end in the ordinary way then: a driver may still run.
bool catalogueInUse();

// Drops every connection of this thread and releases its library; a later call starts it again.
std::int32_t OdbcNameEndDll();

} // namespace corvanta
