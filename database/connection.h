#pragma once

#include "database/catalogue.h"
#include "document/page.h"

#include <array>
#include <cstddef>
#include <cstdint>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

// The editor's connection to a data source, what the ODBC tool window lists of it, and what a column
// becomes when it is dropped.
namespace corvanta {

// The kind buttons of the tool window in their order; exactly one is pressed.
struct KindButton {
    const char *name; // shown in its tip
    Kind kind;
};
inline constexpr std::array<KindButton, 9> kindButtons{{{"Button", Kind::Button},
                                                        {"ComboBox", Kind::ComboBox},
                                                        {"File Box", Kind::File},
                                                        {"Grid", Kind::Grid},
                                                        {"Image", Kind::Image},
                                                        {"ImageDB", Kind::ImageDb},
                                                        {"Label", Kind::Label},
                                                        {"TextBox", Kind::TextBox},
                                                        {"URL", Kind::Url}}};
inline constexpr std::size_t textBoxButton = 7; // pressed when the window opens

struct Connection {
    std::string source, user, password;    // empty source: not connected
    std::vector<std::string> tables;       // as listed
    int listedTable = -1;                  // the table whose columns are listed; -1 = none
    std::vector<std::string> columns;      // of that table
    std::vector<std::int16_t> columnTypes; // parallel to columns: 0 String, 1 Integer, 2 Real, 3 Date, 4 Time,
                                           // 5 Currency, 6 Numeric
    std::vector<std::int16_t> columnLengths;
    std::vector<TableFacts> tableFacts;        // parallel to tables
    std::vector<ColumnFacts> columnFacts;      // parallel to columns
    std::size_t pressedButton = textBoxButton; // the chosen object kind
};

// What a connection is made with. Bytes of the code page.
struct Login {
    std::string source, user, password;
};
Login loginOf(std::string_view reply); // of the dialog: source, user and password, tab-separated

// What the catalogue of this thread tells, which may take as long as the driver does.
struct ListedTables {
    std::vector<std::string> names;
    std::vector<TableFacts> facts;
    bool lost = false; // the connection is gone
};
struct ListedColumns {
    std::vector<std::string> names;
    std::vector<std::int16_t> types, lengths;
    std::vector<ColumnFacts> facts;
    bool lost = false;
};
ListedTables readTables(const Login &login);
ListedColumns readColumns(const Login &login, const std::string &table);

// The same in the connection's state: another source, without tables and columns, and what was listed of it.
void adoptSource(Connection &c, const Login &login);
void takeTables(Connection &c, ListedTables listed);
void clearColumns(Connection &c);
void takeColumns(Connection &c, int table, ListedColumns listed);

// "Failure connecting to ...", with the reason in the code page.
void tellFailure(const std::string &source, const std::string &reason);

// The one connection of the editor.
Connection &connection();

// The names of all data sources, for the choice of one.
std::vector<std::string> dataSources();

// In this thread, which waits: connects to the source that was chosen; the reply holds source, user and password,
// tab-separated, and is empty after a cancel. True when there is a new connection, with its tables listed and no
// columns. A failure is told and changes nothing; the source that is already connected is left alone.
bool SelectDataSource(Connection &c, std::string_view reply);

void ListTables(Connection &c);

// Lists the columns of a table by its place in the list; a place outside it does nothing.
void ListColumns(Connection &c, int table);
// The same after a key was released in the list of tables: only when the table is not listed already.
void listColumnsAfterKey(Connection &c, int table);

// A column that is being dragged.
struct DroppedColumn {
    std::string table, name;
    std::int16_t type = 0, length = 0;
};

// A listed table's name in SQL, which is what is dragged of it; empty outside the list, and when there is no such name
// in the code page.
std::string droppedTable(const Connection &c, int place);

// The listed column at a place of the list; none outside it, and none of a table that has no name in SQL.
std::optional<DroppedColumn> columnAt(const Connection &c, int place);

// A column as the payload of a drag, and back: table, name, type and length, tab-separated.
std::string dragOfColumn(const DroppedColumn &column);
std::optional<DroppedColumn> columnOfDrag(std::string_view payload);
// Several columns, one a line. A payload of which one line is no column gives none.
std::string dragOfColumns(const std::vector<DroppedColumn> &columns);
std::vector<DroppedColumn> columnsOfDrag(std::string_view payload);

// What a data column field takes: table, full stop, column, as in orders.amount.
std::string qualifiedName(const DroppedColumn &column);

// Whether a column dropped on the page becomes an object of this kind.
bool acceptsColumn(const Page &p, Kind chosen);

// Binds a new object to the column that it was dropped as: kinds with data binding get name and data column, a
// Text Box also input type and, of a "String" column, length; captioned kinds show the column's name.
void bindColumn(Page &p, std::int16_t index, const DroppedColumn &column);

} // namespace corvanta
