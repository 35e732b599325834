#pragma once

#include "preview/statement_fill.h"

#include <string>
#include <vector>

// The statements of "Update current record", "Delete current record" and "Insert a new record": the page's default
// table, the columns that its objects are bound to, the update keys as the condition. Names come from the page alone,
// values are bound.
namespace corvanta {

// The page's default table, else the table of its first bound object; bytes of the code page.
std::string recordTable(const Page &p);

// The table that a data column names; empty when it names none.
std::string tableName(std::string_view datacol);

// The column that an object is bound to, without its table; bytes of the code page.
std::string columnName(std::string_view datacol);

// The place of a column (bytes of the code page) in a result; -1 when it is not there.
int columnPlace(const std::vector<SqlColumn> &columns, std::string_view name);

// All columns of a table (bytes of the code page) and none of its rows: what parameters are bound as.
SqlStatement describingStatement(const std::string &table);

// What a record is compared with: the columns of its table, and the row that the page shows.
struct ShownRecord {
    const std::vector<SqlColumn> &tableColumns;
    const std::vector<SqlColumn> &columns; // of the row
    const SqlRow &row;
};

// Sets the columns whose fields differ from the row that is shown; read-only fields are left out. With no difference
// the statement is empty and there is no failure.
FilledStatement updateStatement(const Page &p, const ShownRecord &record, const ObjectValues &values);
FilledStatement deleteStatement(const Page &p, const ShownRecord &record);

// Columns of read-only and of empty fields are left to the database.
FilledStatement insertStatement(const Page &p, const std::vector<SqlColumn> &tableColumns, const ObjectValues &values);

} // namespace corvanta
