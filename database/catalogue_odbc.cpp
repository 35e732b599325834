#include "database/catalogue.h"
#include "database/catalogue_handles.h"

#include "platform/codepage.h"
#include "platform/text.h"

#include <algorithm>

namespace corvanta {
namespace {

constexpr SQLLEN longestColumn = 32767;
enum Type : std::int16_t { stringType, integerType, realType, dateType, timeType, currencyType, numericType };

// Tables and views of whatever sort; temporary, system and auxiliary ones have other types.
bool isListed(const std::string &type, const std::string &name, bool sqlite)
{
    bool table = type.ends_with("TABLE") || type.ends_with("VIEW"); // MATVIEW, too
    return table && !type.starts_with("SYSTEM") && !(sqlite && name.starts_with("sqlite_"));
}

std::int16_t columnType(SQLINTEGER code, const std::string &typeName)
{
    std::string name = lowerCase(typeName);
    if (name.starts_with("money") || name.starts_with("smallmoney") || name.starts_with("currency"))
        return currencyType;
    if (name.starts_with("numeric") || name.starts_with("decimal")) // the code may be that of a real or a text
        return numericType;
    switch (code) {
    case SQL_TINYINT:
    case SQL_SMALLINT:
    case SQL_INTEGER:
    case SQL_BIGINT: return integerType;
    case SQL_REAL:
    case SQL_FLOAT:
    case SQL_DOUBLE: return realType;
    case SQL_DATE:
    case SQL_TYPE_DATE:
    case SQL_TIMESTAMP:
    case SQL_TYPE_TIMESTAMP: return dateType;
    case SQL_TIME:
    case SQL_TYPE_TIME: return timeType;
    case SQL_NUMERIC:
    case SQL_DECIMAL: return numericType;
    default: return stringType;
    }
}

std::int16_t columnLength(SQLLEN size) { return static_cast<std::int16_t>(std::clamp<SQLLEN>(size, 0, longestColumn)); }

std::u16string currentCatalogue(SQLHDBC connection)
{
    SQLWCHAR text[odbcTextLimit] = {};
    SQLINTEGER length = 0;
    SQLGetConnectAttrW(connection, SQL_ATTR_CURRENT_CATALOG, text, sizeof text, &length);
    return reinterpret_cast<const char16_t *>(text);
}

// As an argument: nothing where there is none.
SQLWCHAR *argument(const std::u16string &text) { return text.empty() ? nullptr : odbcText(text); }

std::u16string answerTo(SQLHDBC connection, const std::u16string &select)
{
    OdbcHandle statement = newStatement(connection);
    const bool answered = statement && SQL_SUCCEEDED(SQLExecDirectW(statement.get(), odbcText(select), SQL_NTS)) &&
                          SQL_SUCCEEDED(SQLFetch(statement.get()));
    return answered ? textAt(statement.get(), 1) : std::u16string();
}

// The driver manager does not know the search path.
std::u16string firstSchema(SQLHDBC connection, const std::u16string &database)
{
    if (database.starts_with(u"PostgreSQL"))
        return answerTo(connection, u"Select current_schema()");
    if (database.starts_with(u"Microsoft"))
        return answerTo(connection, u"Select schema_name()");
    return connectionText(connection, SQL_USER_NAME);
}

NameRules nameRules(SQLHDBC connection)
{
    const std::u16string database = connectionText(connection, SQL_DBMS_NAME);
    NameRules rules;
    rules.firstSchema = firstSchema(connection, database);
    rules.quote = connectionText(connection, SQL_IDENTIFIER_QUOTE_CHAR);
    rules.escapes = database.starts_with(u"PostgreSQL");
    SQLUSMALLINT letters = 0;
    SQLGetInfoW(connection, SQL_IDENTIFIER_CASE, &letters, sizeof letters, nullptr);
    if (letters == SQL_IC_UPPER || letters == SQL_IC_LOWER)
        rules.folding = letters == SQL_IC_UPPER ? NameRules::Folding::Upper : NameRules::Folding::Lower;
    return rules;
}

// A name where the catalogue functions take a pattern. Not every driver wants its escape escaped.
std::u16string asPattern(const std::u16string &name, const std::u16string &escape, bool escapeTwice)
{
    std::u16string pattern;
    for (char16_t unit : name) {
        if (unit == u'_' || unit == u'%' || (escapeTwice && escape == std::u16string(1, unit)))
            pattern += escape;
        pattern += unit;
    }
    return pattern;
}

// A column as the driver tells it.
struct ToldColumn {
    std::u16string name, typeName;
    SQLINTEGER code = 0, size = 0, digits = 0;
};

std::vector<ToldColumn> toldColumns(SQLHDBC connection, const OdbcTable &table, bool escapeTwice)
{
    std::vector<ToldColumn> columns;
    OdbcHandle statement = newStatement(connection);
    const std::u16string escape = connectionText(connection, SQL_SEARCH_PATTERN_ESCAPE),
                         schema = asPattern(table.schema, escape, escapeTwice),
                         name = asPattern(table.driverName, escape, escapeTwice);
    if (!statement || !SQL_SUCCEEDED(SQLColumnsW(statement.get(), argument(table.catalogue), SQL_NTS, argument(schema),
                                                 SQL_NTS, odbcText(name), SQL_NTS, nullptr, 0)))
        return columns;
    while (SQL_SUCCEEDED(SQLFetch(statement.get()))) {
        const std::u16string itsSchema = textAt(statement.get(), 2);
        if (textAt(statement.get(), 3) != table.driverName || (!table.schema.empty() && itsSchema != table.schema))
            continue;
        ToldColumn &column = columns.emplace_back();
        column.name = textAt(statement.get(), 4);
        column.code = numberAt(statement.get(), 5);
        column.typeName = textAt(statement.get(), 6);
        column.size = numberAt(statement.get(), 7);
        column.digits = numberAt(statement.get(), 9);
    }
    return columns;
}

// SQLite's driver tells a scale or nothing as the column size; of a prepared statement it tells the size.
void describeSizes(SQLHDBC connection, const OdbcTable &table, std::vector<ToldColumn> &columns)
{
    OdbcHandle statement = newStatement(connection);
    std::u16string select = u"Select * From " + quotedName(table.driverName, u"\"");
    SQLSMALLINT count = 0;
    if (!statement || !SQL_SUCCEEDED(SQLPrepareW(statement.get(), odbcText(select), SQL_NTS)) ||
        !SQL_SUCCEEDED(SQLNumResultCols(statement.get(), &count)) || count != static_cast<int>(columns.size()))
        return;
    for (SQLUSMALLINT i = 0; i < count; ++i) {
        SQLSMALLINT nameLength = 0, code = 0, digits = 0, nullable = 0;
        SQLULEN size = 0;
        if (!SQL_SUCCEEDED(SQLDescribeColW(statement.get(), static_cast<SQLUSMALLINT>(i + 1), nullptr, 0, &nameLength,
                                           &code, &size, &digits, &nullable)))
            continue;
        columns[i].size = static_cast<SQLINTEGER>(std::min<SQLULEN>(size, longestColumn));
        columns[i].digits = digits;
    }
}

std::vector<std::u16string> keyColumns(SQLHDBC connection, const OdbcTable &table)
{
    std::vector<std::u16string> names;
    OdbcHandle statement = newStatement(connection);
    if (table.view || !statement ||
        !SQL_SUCCEEDED(SQLPrimaryKeysW(statement.get(), argument(table.catalogue), SQL_NTS, argument(table.schema),
                                       SQL_NTS, odbcText(table.driverName), SQL_NTS)))
        return names;
    while (SQL_SUCCEEDED(SQLFetch(statement.get())))
        names.push_back(textAt(statement.get(), 4));
    return names;
}

// Others are only told how many rows are wanted.
bool takesLimit(SQLHDBC connection)
{
    const std::u16string database = connectionText(connection, SQL_DBMS_NAME);
    return isSqlite(connection) || database.starts_with(u"PostgreSQL") || database.starts_with(u"MariaDB") ||
           database.starts_with(u"MySQL");
}

// "varchar(40)", "numeric(10,2)", "integer"
std::string typeText(const ToldColumn &told, std::int16_t type)
{
    std::string text = utf8FromUtf16(told.typeName);
    const bool sized = type == numericType || lowerCase(text).find("char") != std::string::npos;
    if (!sized || told.size <= 0 || text.find('(') != std::string::npos)
        return text;
    const bool fraction = type == numericType && told.digits > 0;
    return text + "(" + std::to_string(told.size) + (fraction ? "," + std::to_string(told.digits) : "") + ")";
}

// Of one catalogue. Asked for it, the driver may take its name for a pattern.
std::vector<OdbcTable> toldTables(SQLHDBC connection, const std::u16string &catalogue, bool askForIt)
{
    std::vector<OdbcTable> tables;
    OdbcHandle statement = newStatement(connection);
    if (!statement || !SQL_SUCCEEDED(SQLTablesW(statement.get(), askForIt ? argument(catalogue) : nullptr, SQL_NTS,
                                                nullptr, 0, nullptr, 0, nullptr, 0)))
        return tables;
    bool sqlite = isSqlite(connection);
    while (SQL_SUCCEEDED(SQLFetch(statement.get()))) {
        OdbcTable table;
        table.catalogue = textAt(statement.get(), 1);
        table.schema = textAt(statement.get(), 2);
        table.driverName = textAt(statement.get(), 3);
        const std::string type = bytesOfUtf16(textAt(statement.get(), 4));
        table.view = type.ends_with("VIEW");
        const bool ours = catalogue.empty() || table.catalogue.empty() || table.catalogue == catalogue;
        if (ours && isListed(type, bytesOfUtf16(table.driverName), sqlite))
            tables.push_back(table);
    }
    return tables;
}

} // namespace

std::vector<OdbcTable> odbcTables(void *connection)
{
    const std::u16string catalogue = currentCatalogue(connection);
    std::vector<OdbcTable> tables = toldTables(connection, catalogue, true);
    if (tables.empty()) // a driver that tells a catalogue and knows none
        tables = toldTables(connection, catalogue, false);
    std::vector<DriverTable> names;
    names.reserve(tables.size());
    for (const OdbcTable &table : tables) // without a catalogue of the connection's own it tells the tables apart
        names.push_back({catalogue.empty() && table.schema.empty() ? table.catalogue : table.schema, table.driverName});
    const NameRules rules = nameRules(connection);
    const std::vector<TableName> given = tableNames(names, rules);
    const bool limits = takesLimit(connection);
    for (std::size_t i = 0; i < tables.size(); ++i) {
        tables[i].name = given[i];
        tables[i].firstRows = "Select * From " + utf8FromUtf16(trueName(names[i], rules)) +
                              (limits ? " Limit " + std::to_string(firstRowCount) : "");
    }
    return tables;
}

std::vector<OdbcColumn> odbcColumns(void *connection, const OdbcTable &table)
{
    std::vector<ToldColumn> told = toldColumns(connection, table, true);
    if (told.empty())
        told = toldColumns(connection, table, false);
    if (isSqlite(connection))
        describeSizes(connection, table, told);
    const std::vector<std::u16string> keys = keyColumns(connection, table);
    std::vector<OdbcColumn> columns;
    for (const ToldColumn &t : told) {
        OdbcColumn &column = columns.emplace_back();
        column.name = bytesOfUtf16(t.name);
        column.type = columnType(t.code, bytesOfUtf16(t.typeName));
        column.length = columnLength(t.size);
        column.typeName = typeText(t, column.type);
        column.key = std::find(keys.begin(), keys.end(), t.name) != keys.end();
    }
    return columns;
}

OdbcTable odbcTableNamed(const std::string &name)
{
    OdbcTable table;
    table.name.listed.name = name;
    table.driverName = utf16OfBytes(name);
    return table;
}

} // namespace corvanta
