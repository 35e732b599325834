#pragma once

#include "database/catalogue_odbc.h"

#include <chrono>
#include <cstddef>
#include <cstdint>
#include <optional>
#include <string>
#include <vector>

// Statements on a connection of the catalogue: values are bound as parameters, rows come as texts. Texts are UTF-8,
// so that every value comes through, also one that the code page cannot spell. A connection is used by one thread at
// a time.
namespace corvanta {

using SqlField = std::optional<std::string>; // none for NULL
using SqlRow = std::vector<SqlField>;

// A column of a result, and what a parameter is bound as; the codes are those of ODBC.
struct SqlColumn {
    std::string name;
    std::int16_t type = 0; // 0: a text
    std::uint64_t size = 0;
    std::int16_t digits = 0;
};

enum class SqlClass { Text, Number, Date, Time, DateAndTime };
SqlClass sqlClass(const SqlColumn &column);

// What a value of a class is bound as where no column is known.
SqlColumn columnOfClass(SqlClass kind);

struct SqlParameter {
    SqlField value;
    SqlColumn column;    // what it is compared with or stored in
    bool secret = false; // not to be shown to people
};

struct SqlStatement {
    std::string text; // with a "?" for each parameter
    std::vector<SqlParameter> parameters;
};

struct SqlResult {
    std::vector<SqlColumn> columns;
    std::vector<SqlRow> rows;
    bool more = false;        // the limit left rows out
    long changed = -1;        // rows that a statement without a result changed; -1 when the driver does not tell
    std::string state, error; // SQLSTATE and the driver's text; empty on success
    double milliseconds = 0;  // that the driver took; negative when nothing ran
};

struct SqlLimits {
    std::size_t rows = 5000;
    std::size_t bytes = 16U << 20; // of all texts together
    std::size_t textBytes = 65536; // of one; what is beyond is cut
    std::chrono::seconds time{20}; // then the driver is told to stop
};

// What a connection is used for: one that reads undoes whatever a statement did.
enum class SqlUse { Reading, Writing };

// Sets a connection up; without this its statements commit themselves.
void beginUse(void *connection, SqlUse use);

// Lets the driver read a statement without running it: the columns that it would give, or why it is refused.
SqlResult prepareStatement(void *connection, const SqlStatement &statement, const SqlLimits &limits = {});

// Runs a statement and gives its rows; changes are undone.
SqlResult readRows(void *connection, const SqlStatement &statement, const SqlLimits &limits = {});

// Runs a statement that changes rows. With a limit it is to change at least one row and at most so many: else, and
// where the driver does not tell how many, all is undone and the error says so.
SqlResult changeRows(void *connection, const SqlStatement &statement, std::optional<long> mostRows,
                     const SqlLimits &limits = {});

// Whether a statement failed because its connection has gone.
bool connectionLost(const SqlResult &result);

} // namespace corvanta
