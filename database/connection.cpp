#include "database/connection.h"

#include "database/catalogue.h"
#include "document/tablist.h"
#include "platform/asking.h"
#include "platform/codepage.h"
#include "platform/text.h"

namespace corvanta {
namespace {

constexpr std::size_t firstColumnRoom = 11;

void clearColumns(Connection &c)
{
    c.listedTable = -1;
    c.columns.clear();
    c.columnTypes.clear();
    c.columnLengths.clear();
    c.columnFacts.clear();
    c.columnTypes.reserve(firstColumnRoom);
    c.columnLengths.reserve(firstColumnRoom);
}

} // namespace

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

bool SelectDataSource(Connection &c, std::string_view reply)
{
    std::string source = fieldAt(reply, 0), user = fieldAt(reply, 1), password = fieldAt(reply, 2);
    if (source.empty() || source == c.source)
        return false;
    std::string reason;
    if (ConnectDsn(source.c_str(), user.c_str(), password.c_str(), &reason) != 0) {
        showMessage({.text = "Failure connecting to " + source, .title = "Error", .further = fromUtf8Lossy(reason)});
        return false;
    }
    if (!c.source.empty())
        DisconnectDsn(c.source.c_str(), c.user.c_str());
    c.source = source;
    c.user = user;
    c.password = password;
    clearColumns(c);
    ListTables(c);
    return true;
}

void ListTables(Connection &c)
{
    c.tables.clear();
    char name[nameBufferSize];
    for (std::int32_t status = GetFirstTableName(c.source.c_str(), c.user.c_str(), c.password.c_str(), name);
         status == 0; status = GetNextTableName(name))
        c.tables.emplace_back(name);
    c.tableFacts = tableFacts();
}

void ListColumns(Connection &c, int table)
{
    if (table < 0 || table >= static_cast<int>(c.tables.size()))
        return;
    clearColumns(c);
    c.listedTable = table;
    char name[nameBufferSize];
    std::int16_t type = 0, length = 0;
    for (std::int32_t status = GetFirstColumn(c.source.c_str(), c.user.c_str(), c.password.c_str(),
                                              c.tables[table].c_str(), name, type, length);
         status == 0; status = GetNextColumn(name, type, length)) {
        c.columns.emplace_back(name);
        c.columnTypes.push_back(type);
        c.columnLengths.push_back(length);
    }
    c.columnFacts = columnFacts();
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
