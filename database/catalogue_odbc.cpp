#include "database/catalogue_odbc.h"

#include "platform/codepage.h"
#include "platform/text.h"

#include <algorithm>
#include <cstdio>
#include <filesystem>
#include <locale.h>
#include <odbcinst.h>
#include <sql.h>
#include <sqlext.h>
#include <sqlucode.h>
#include <string_view>

namespace corvanta {
namespace {

constexpr SQLULEN loginSeconds = 5;
constexpr std::size_t textLimit = 1024; // characters of a name or message
constexpr SQLLEN longestColumn = 32767;
constexpr std::size_t convertedLength = SQL_MAX_DSN_LENGTH + 1;
enum Type : std::int16_t { stringType, integerType, realType, dateType, timeType, currencyType, numericType };

static_assert(sizeof(SQLWCHAR) == sizeof(char16_t));
SQLWCHAR *odbcText(const std::u16string &text)
{
    return const_cast<SQLWCHAR *>(reinterpret_cast<const SQLWCHAR *>(text.c_str()));
}

// The driver manager converts for drivers without Unicode by the character set that is in force when the
// connection's handle is made.
class Utf8Locale {
    locale_t own = newlocale(LC_CTYPE_MASK, "C.UTF-8", nullptr);
    locale_t before = own ? uselocale(own) : nullptr;

public:
    Utf8Locale() = default;
    Utf8Locale(const Utf8Locale &) = delete;
    Utf8Locale &operator=(const Utf8Locale &) = delete;
    ~Utf8Locale()
    {
        if (own) {
            uselocale(before);
            freelocale(own);
        }
    }
};

std::u16string toUtf16(std::string_view bytes)
{
    std::u16string text;
    for (unsigned char byte : bytes)
        text += static_cast<char16_t>(characterOf(byte));
    return text;
}

bool isHighSurrogate(char16_t unit) { return unit >= 0xD800 && unit < 0xDC00; }

// "?" for what the code page lacks.
std::string fromUtf16(const std::u16string &text)
{
    std::string bytes;
    for (std::size_t i = 0; i < text.size(); ++i) {
        bytes += static_cast<char>(byteOf(text[i]).value_or('?'));
        if (isHighSurrogate(text[i]))
            ++i;
    }
    return bytes;
}

// Data source names are bytes of the configuration file, in UTF-8; the driver manager carries each as a
// character of its own.
std::u16string widened(std::string_view bytes)
{
    std::u16string text;
    for (unsigned char byte : bytes)
        text += byte;
    return text;
}

// For a driver without Unicode the driver manager reads this many characters, also of a shorter text.
std::u16string padded(std::u16string text)
{
    text.resize(std::max(text.size(), convertedLength));
    return text;
}

std::string setting(const std::string &section, const char *key, const char *file)
{
    char value[textLimit] = "";
    SQLGetPrivateProfileString(section.c_str(), key, "", value, sizeof value, file);
    return value;
}

// The file of a SQLite data source (its name in UTF-8); empty for any other source and without a file.
std::string sqliteFile(const std::string &dsn)
{
    std::string driver = setting(dsn, "Driver", "odbc.ini");
    driver += setting(driver, "Driver", "odbcinst.ini");
    std::string file = setting(dsn, "Database", "odbc.ini");
    bool sqlite = lowerCase(driver).find("sqlite") != std::string::npos;
    return sqlite && file != ":memory:" ? file : std::string();
}

std::string withoutPassword(std::string text, const std::string &password)
{
    if (password.empty())
        return text;
    for (std::size_t at = 0; (at = text.find(password, at)) != std::string::npos; at += 3)
        text.replace(at, password.size(), "***");
    return text;
}

std::string sqlState(SQLSMALLINT kind, SQLHANDLE handle, SQLSMALLINT number, std::string &message)
{
    SQLWCHAR state[SQL_SQLSTATE_SIZE + 1] = {}, text[textLimit] = {};
    SQLINTEGER native = 0;
    SQLSMALLINT length = 0;
    if (!SQL_SUCCEEDED(SQLGetDiagRecW(kind, handle, number, state, &native, text, textLimit, &length)))
        return {};
    message = fromUtf16(reinterpret_cast<const char16_t *>(text));
    return fromUtf16(reinterpret_cast<const char16_t *>(state));
}

void reportFailure(SQLHDBC connection, const std::string &password)
{
    std::string message;
    for (SQLSMALLINT number = 1;; ++number) {
        std::string state = sqlState(SQL_HANDLE_DBC, connection, number, message);
        if (state.empty())
            return;
        std::fprintf(stderr, "%s %s\n", state.c_str(), toUtf8(withoutPassword(message, password)).c_str());
    }
}

void releaseEnvironment(void *handle) { SQLFreeHandle(SQL_HANDLE_ENV, handle); }
void releaseConnection(void *handle)
{
    SQLDisconnect(handle); // does nothing for one that was never connected
    SQLFreeHandle(SQL_HANDLE_DBC, handle);
}
void releaseStatement(void *handle) { SQLFreeHandle(SQL_HANDLE_STMT, handle); }

OdbcHandle newHandle(SQLSMALLINT kind, SQLHANDLE parent, void (*release)(void *))
{
    SQLHANDLE handle = nullptr;
    if (!parent && kind != SQL_HANDLE_ENV)
        return {nullptr, release};
    if (!SQL_SUCCEEDED(SQLAllocHandle(kind, parent, &handle)))
        handle = nullptr;
    return {handle, release};
}

OdbcHandle newStatement(void *connection) { return newHandle(SQL_HANDLE_STMT, connection, releaseStatement); }

std::u16string connectionText(SQLHDBC connection, SQLUSMALLINT what)
{
    SQLWCHAR text[textLimit] = {};
    SQLSMALLINT length = 0;
    SQLGetInfoW(connection, what, text, sizeof text, &length);
    return reinterpret_cast<const char16_t *>(text);
}

// A text of the current row, empty for NULL; what is beyond the limit is cut.
std::u16string textAt(SQLHSTMT statement, SQLUSMALLINT column)
{
    SQLWCHAR wide[textLimit] = {};
    SQLLEN length = 0;
    if (SQL_SUCCEEDED(SQLGetData(statement, column, SQL_C_WCHAR, wide, sizeof wide, &length)))
        return reinterpret_cast<const char16_t *>(wide);
    std::string message;
    if (sqlState(SQL_HANDLE_STMT, statement, 1, message) != "07006")
        return {};
    char narrow[textLimit] = ""; // a driver without Unicode
    if (!SQL_SUCCEEDED(SQLGetData(statement, column, SQL_C_CHAR, narrow, sizeof narrow, &length)))
        return {};
    return toUtf16(fromUtf8(narrow).value_or(narrow));
}

SQLINTEGER numberAt(SQLHSTMT statement, SQLUSMALLINT column)
{
    SQLINTEGER value = 0;
    SQLLEN length = 0;
    bool got = SQL_SUCCEEDED(SQLGetData(statement, column, SQL_C_SLONG, &value, sizeof value, &length));
    return got && length != SQL_NULL_DATA ? value : 0;
}

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

bool isSqlite(SQLHDBC connection) { return connectionText(connection, SQL_DBMS_NAME).starts_with(u"SQLite"); }

std::u16string quoted(const std::u16string &name)
{
    std::u16string text = u"\"";
    for (char16_t unit : name)
        text += unit == u'"' ? u"\"\"" : std::u16string(1, unit);
    return text + u'"';
}

// SQLite's driver tells a scale or nothing as the column size; of a prepared statement it tells the size.
void describeLengths(SQLHDBC connection, const OdbcTable &table, std::vector<OdbcColumn> &columns)
{
    OdbcHandle statement = newStatement(connection);
    std::u16string select = u"Select * From " + quoted(table.driverName);
    SQLSMALLINT count = 0;
    if (!statement || !SQL_SUCCEEDED(SQLPrepareW(statement.get(), odbcText(select), SQL_NTS)) ||
        !SQL_SUCCEEDED(SQLNumResultCols(statement.get(), &count)) || count != static_cast<int>(columns.size()))
        return;
    for (SQLUSMALLINT i = 0; i < count; ++i) {
        SQLSMALLINT nameLength = 0, code = 0, digits = 0, nullable = 0;
        SQLULEN size = 0;
        if (SQL_SUCCEEDED(SQLDescribeColW(statement.get(), static_cast<SQLUSMALLINT>(i + 1), nullptr, 0, &nameLength,
                                          &code, &size, &digits, &nullable)))
            columns[i].length = columnLength(static_cast<SQLLEN>(size));
    }
}

// A name where the catalogue functions take a pattern.
std::u16string asPattern(SQLHDBC connection, const std::u16string &name)
{
    std::u16string escape = connectionText(connection, SQL_SEARCH_PATTERN_ESCAPE), pattern;
    for (char16_t unit : name) {
        if (unit == u'_' || unit == u'%' || escape == std::u16string(1, unit))
            pattern += escape;
        pattern += unit;
    }
    return pattern;
}

} // namespace

OdbcHandle openOdbc()
{
    OdbcHandle environment = newHandle(SQL_HANDLE_ENV, nullptr, releaseEnvironment);
    if (environment)
        SQLSetEnvAttr(environment.get(), SQL_ATTR_ODBC_VERSION, reinterpret_cast<SQLPOINTER>(SQL_OV_ODBC3), 0);
    return environment;
}

std::vector<std::string> odbcSources(void *environment)
{
    std::vector<std::string> names;
    SQLCHAR name[textLimit] = "", driver[textLimit] = "";
    SQLSMALLINT nameLength = 0, driverLength = 0;
    SQLUSMALLINT which = SQL_FETCH_FIRST;
    while (environment && SQL_SUCCEEDED(SQLDataSources(environment, which, name, textLimit, &nameLength, driver,
                                                       textLimit, &driverLength))) {
        std::string text = fromUtf8Lossy(reinterpret_cast<const char *>(name));
        if (std::find(names.begin(), names.end(), text) == names.end())
            names.push_back(text);
        which = SQL_FETCH_NEXT;
    }
    return names;
}

OdbcHandle connectOdbc(void *environment, const std::string &dsn, const std::string &user, const std::string &password)
{
    Utf8Locale utf8;
    OdbcHandle connection = newHandle(SQL_HANDLE_DBC, environment, releaseConnection);
    if (!connection)
        return connection;
    std::string file = sqliteFile(toUtf8(dsn));
    if (std::error_code error; !file.empty() && !std::filesystem::exists(file, error)) {
        std::fprintf(stderr, "08001 No such database file: %s\n", file.c_str());
        connection.reset();
        return connection;
    }
    SQLSetConnectAttrW(connection.get(), SQL_ATTR_LOGIN_TIMEOUT, reinterpret_cast<SQLPOINTER>(loginSeconds), 0);
    std::u16string source = padded(widened(toUtf8(dsn)));
    std::u16string userText = padded(toUtf16(user)), passwordText = padded(toUtf16(password));
    if (!SQL_SUCCEEDED(SQLConnectW(connection.get(), odbcText(source), SQL_NTS, odbcText(userText), SQL_NTS,
                                   odbcText(passwordText), SQL_NTS))) {
        reportFailure(connection.get(), password);
        connection.reset();
    }
    return connection;
}

std::vector<OdbcTable> odbcTables(void *connection)
{
    std::vector<OdbcTable> tables;
    OdbcHandle statement = newStatement(connection);
    if (!statement || !SQL_SUCCEEDED(SQLTablesW(statement.get(), nullptr, 0, nullptr, 0, nullptr, 0, nullptr, 0)))
        return tables;
    bool sqlite = isSqlite(connection);
    while (SQL_SUCCEEDED(SQLFetch(statement.get()))) {
        OdbcTable table;
        table.schema = textAt(statement.get(), 2);
        table.driverName = textAt(statement.get(), 3);
        table.name = fromUtf16(table.driverName);
        if (isListed(fromUtf16(textAt(statement.get(), 4)), table.name, sqlite))
            tables.push_back(table);
    }
    return tables;
}

std::vector<OdbcColumn> odbcColumns(void *connection, const OdbcTable &table)
{
    std::vector<OdbcColumn> columns;
    OdbcHandle statement = newStatement(connection);
    std::u16string schema = asPattern(connection, table.schema), name = asPattern(connection, table.driverName);
    if (!statement ||
        !SQL_SUCCEEDED(SQLColumnsW(statement.get(), nullptr, 0, schema.empty() ? nullptr : odbcText(schema), SQL_NTS,
                                   odbcText(name), SQL_NTS, nullptr, 0)))
        return columns;
    while (SQL_SUCCEEDED(SQLFetch(statement.get()))) {
        OdbcColumn column;
        column.name = fromUtf16(textAt(statement.get(), 4));
        SQLINTEGER code = numberAt(statement.get(), 5);
        column.type = columnType(code, fromUtf16(textAt(statement.get(), 6)));
        column.length = columnLength(numberAt(statement.get(), 7));
        columns.push_back(column);
    }
    if (isSqlite(connection))
        describeLengths(connection, table, columns);
    return columns;
}

OdbcTable odbcTableNamed(const std::string &name) { return {name, toUtf16(name), {}}; }

} // namespace corvanta
