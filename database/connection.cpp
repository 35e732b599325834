#include "database/connection.h"

#include "database/catalogue.h"
#include "document/tablist.h"
#include "platform/asking.h"
#include "platform/codepage.h"
#include "platform/text.h"

#include <utility>

namespace corvanta {

Connection &connection()
{
    static Connection instance;
    return instance;
}

std::vector<std::string> dataSources()
{
    std::vector<std::string> names;
    char name[nameBufferSize];
    for (std::int32_t status = GetFirstOdbcDsn(name); status == 0; status = GetNextOdbcDsn(name))
        names.emplace_back(name);
    return names;
}

Login loginOf(std::string_view reply) { return {fieldAt(reply, 0), fieldAt(reply, 1), fieldAt(reply, 2)}; }

ListedTables readTables(const Login &login)
{
    ListedTables listed;
    char name[nameBufferSize];
    for (std::int32_t status =
             GetFirstTableName(login.source.c_str(), login.user.c_str(), login.password.c_str(), name);
         status == 0; status = GetNextTableName(name))
        listed.names.emplace_back(name);
    listed.facts = tableFacts();
    listed.lost = connectionLost();
    return listed;
}

ListedColumns readColumns(const Login &login, const std::string &table)
{
    ListedColumns listed;
    char name[nameBufferSize];
    std::int16_t type = 0, length = 0;
    for (std::int32_t status = GetFirstColumn(login.source.c_str(), login.user.c_str(), login.password.c_str(),
                                              table.c_str(), name, type, length);
         status == 0; status = GetNextColumn(name, type, length)) {
        listed.names.emplace_back(name);
        listed.types.push_back(type);
        listed.lengths.push_back(length);
    }
    listed.facts = columnFacts();
    listed.lost = connectionLost();
    return listed;
}

void adoptSource(Connection &c, const Login &login)
{
    c.source = login.source;
    c.user = login.user;
    c.password = login.password;
    takeTables(c, {});
    clearColumns(c);
}

void takeTables(Connection &c, ListedTables listed)
{
    c.tables = std::move(listed.names);
    c.tableFacts = std::move(listed.facts);
}

void clearColumns(Connection &c) { takeColumns(c, -1, {}); }

void takeColumns(Connection &c, int table, ListedColumns listed)
{
    c.listedTable = table;
    c.columns = std::move(listed.names);
    c.columnTypes = std::move(listed.types);
    c.columnLengths = std::move(listed.lengths);
    c.columnFacts = std::move(listed.facts);
}

void tellFailure(const std::string &source, const std::string &reason)
{
    showMessage({.text = "Failure connecting to " + source, .title = "Error", .further = reason});
}

bool SelectDataSource(Connection &c, std::string_view reply)
{
    const Login login = loginOf(reply);
    if (login.source.empty() || login.source == c.source)
        return false;
    std::string reason;
    if (ConnectDsn(login.source.c_str(), login.user.c_str(), login.password.c_str(), &reason) != 0) {
        tellFailure(login.source, fromUtf8Lossy(reason));
        return false;
    }
    if (!c.source.empty())
        DisconnectDsn(c.source.c_str(), c.user.c_str());
    adoptSource(c, login);
    ListTables(c);
    return true;
}

void ListTables(Connection &c) { takeTables(c, readTables({c.source, c.user, c.password})); }

void ListColumns(Connection &c, int table)
{
    if (table >= 0 && table < static_cast<int>(c.tables.size()))
        takeColumns(c, table, readColumns({c.source, c.user, c.password}, c.tables[table]));
}

void listColumnsAfterKey(Connection &c, int table)
{
    if (table != c.listedTable)
        ListColumns(c, table);
}

std::string droppedTable(const Connection &c, int place)
{
    return place < 0 || place >= static_cast<int>(c.tableFacts.size()) ? "" : c.tableFacts[place].dropped;
}

std::optional<DroppedColumn> columnAt(const Connection &c, int place)
{
    const std::string table = droppedTable(c, c.listedTable);
    if (place < 0 || place >= static_cast<int>(c.columns.size()) || table.empty())
        return std::nullopt;
    return DroppedColumn{table, c.columns[place], c.columnTypes[place], c.columnLengths[place]};
}

std::string qualifiedName(const DroppedColumn &column) { return column.table + "." + column.name; }

bool acceptsColumn(const Page &p, Kind chosen)
{
    bool kindAccepts = kindRow(chosen).hasBinding || chosen == Kind::Button || chosen == Kind::Label;
    return kindAccepts && p.PageType != static_cast<std::int16_t>(PageKind::Menu);
}

void bindColumn(Page &p, std::int16_t index, const DroppedColumn &column)
{
    std::optional<Kind> kind = hasObject(p, index) ? kindOf(p.objects[index].kind) : std::nullopt;
    if (!kind)
        return;
    if (kindRow(*kind).hasBinding) {
        p.objects[index].ctlname = column.name;
        p.objects[index].datacol = qualifiedName(column);
    }
    if (*kind == Kind::TextBox) {
        TextBoxExtras &extras = p.tbxextras[p.ctlindex[index]];
        extras.inptype = column.type;
        if (column.type == 0)
            extras.maxlen = column.length;
    }
    if (*kind == Kind::Button || *kind == Kind::Label)
        elementOf(p, index)->Caption = doubleAmpersands(column.name);
    if (*kind == Kind::Url) // shown as it is
        elementOf(p, index)->Caption = column.name;
}

} // namespace corvanta
