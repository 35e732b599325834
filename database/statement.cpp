#include "database/statement.h"

#include "database/catalogue_handles.h"
#include "platform/codepage.h"
#include "platform/text.h"

#include <algorithm>
#include <condition_variable>
#include <mutex>
#include <thread>

namespace corvanta {

namespace {

using Clock = std::chrono::steady_clock;

constexpr std::size_t chunkUnits = 4096;     // UTF-16 units
constexpr std::size_t longestVarchar = 4000; // characters that every driver takes as a plain text

void takeDiagnosis(SQLSMALLINT kind, SQLHANDLE handle, SqlResult &result)
{
    for (const OdbcDiagnosis &d : odbcDiagnoses(kind, handle)) {
        if (result.error.empty())
            result.state = d.state;
        result.error += (result.error.empty() ? "" : "\n") + d.state + " " + d.text;
    }
    if (result.error.empty())
        result.error = "The driver gives no reason.";
}

bool isTextType(std::int16_t type)
{
    switch (type) {
    case 0:
    case SQL_CHAR:
    case SQL_VARCHAR:
    case SQL_LONGVARCHAR:
    case SQL_WCHAR:
    case SQL_WVARCHAR:
    case SQL_WLONGVARCHAR: return true;
    default: return false;
    }
}

// Drivers without Unicode take and give texts as bytes.
enum class Units { Wide, Narrow };

// The texts that are bound stay where they are until the statement has run.
struct Bound {
    std::u16string wide;
    std::string narrow;
    SQLLEN length = 0; // bytes
};

bool bind(SQLHSTMT handle, SQLUSMALLINT number, const SqlParameter &parameter, Units units, Bound &bound)
{
    bound.narrow = parameter.value.value_or(std::string());
    bound.wide = utf16FromUtf8(bound.narrow);
    const bool text = isTextType(parameter.column.type), wide = units == Units::Wide;
    const bool isLong = bound.narrow.size() > longestVarchar;
    const std::size_t bytes = wide ? bound.wide.size() * sizeof(SQLWCHAR) : bound.narrow.size();
    bound.length = parameter.value ? static_cast<SQLLEN>(bytes) : SQL_NULL_DATA;
    constexpr SQLSMALLINT wideTypes[] = {SQL_WVARCHAR, SQL_WLONGVARCHAR}, types[] = {SQL_VARCHAR, SQL_LONGVARCHAR};
    const SQLSMALLINT textType = wide ? wideTypes[isLong] : types[isLong];
    const SQLULEN size = text ? std::max<SQLULEN>(bound.narrow.size(), 1) : parameter.column.size;
    const SQLPOINTER value = wide ? static_cast<SQLPOINTER>(bound.wide.data()) : bound.narrow.data();
    return SQL_SUCCEEDED(SQLBindParameter(handle, number, SQL_PARAM_INPUT, wide ? SQL_C_WCHAR : SQL_C_CHAR,
                                          text ? textType : parameter.column.type, size, parameter.column.digits, value,
                                          0, &bound.length));
}

std::vector<SqlColumn> describe(SQLHSTMT handle)
{
    SQLSMALLINT count = 0;
    SQLNumResultCols(handle, &count);
    std::vector<SqlColumn> columns(static_cast<std::size_t>(std::max<SQLSMALLINT>(count, 0)));
    SQLUSMALLINT number = 0;
    for (SqlColumn &column : columns) {
        SQLWCHAR name[odbcTextLimit] = {};
        SQLSMALLINT length = 0, nullable = 0;
        SQLULEN size = 0;
        SQLDescribeColW(handle, ++number, name, odbcTextLimit, &length, &column.type, &size, &column.digits, &nullable);
        column.name = utf8OfOdbc(name);
        column.size = size;
    }
    return columns;
}

// One text of the current row in as many pieces as the driver gives, up to a limit; none for NULL. The last status is
// that of a failure when the driver does not give it in these units.
template <class Text>
std::optional<Text> pieces(SQLHSTMT handle, SQLUSMALLINT column, SQLSMALLINT type, std::size_t limit, SQLRETURN &status)
{
    Text text;
    for (;;) {
        typename Text::value_type chunk[chunkUnits] = {};
        SQLLEN length = 0;
        status = SQLGetData(handle, column, type, chunk, sizeof chunk, &length);
        if (status == SQL_NO_DATA)
            return text;
        if (!SQL_SUCCEEDED(status) || length == SQL_NULL_DATA)
            return std::nullopt;
        text += chunk;
        if (status == SQL_SUCCESS || text.size() > limit)
            return text;
    }
}

SqlField textOf(SQLHSTMT handle, SQLUSMALLINT column, std::size_t limit)
{
    SQLRETURN status = SQL_SUCCESS;
    std::optional<std::u16string> text = pieces<std::u16string>(handle, column, SQL_C_WCHAR, limit, status);
    if (!SQL_SUCCEEDED(status) && status != SQL_NO_DATA) {
        const auto narrow = pieces<std::string>(handle, column, SQL_C_CHAR, limit, status);
        text = narrow ? std::optional(utf16FromUtf8(*narrow)) : std::nullopt;
    }
    if (!text)
        return std::nullopt;
    std::string utf8 = utf8FromUtf16(*text);
    if (utf8.size() > limit) {
        while (limit > 0 && (static_cast<unsigned char>(utf8[limit]) & 0xC0) == 0x80)
            --limit;
        utf8.resize(limit);
    }
    return utf8;
}

void fetch(SQLHSTMT handle, const SqlLimits &limits, SqlResult &result)
{
    const auto end = Clock::now() + limits.time;
    std::size_t bytes = 0;
    for (;;) {
        const SQLRETURN status = SQLFetch(handle);
        if (status == SQL_NO_DATA)
            return;
        if (!SQL_SUCCEEDED(status))
            return takeDiagnosis(SQL_HANDLE_STMT, handle, result);
        result.more = result.rows.size() >= limits.rows || bytes > limits.bytes || Clock::now() > end;
        if (result.more)
            return;
        SqlRow row;
        for (std::size_t i = 0; i < result.columns.size(); ++i) {
            row.push_back(textOf(handle, static_cast<SQLUSMALLINT>(i + 1), limits.textBytes));
            bytes += row.back() ? row.back()->size() : 0;
        }
        result.rows.push_back(std::move(row));
    }
}

// Drivers that know no time-out of their own are told to stop.
class Watchdog {
public:
    Watchdog(SQLHSTMT handle, std::chrono::seconds time)
        : watching([this, handle, time] {
              std::unique_lock lock(mutex);
              if (!over.wait_for(lock, time + grace, [this] { return ended; }))
                  SQLCancel(handle);
          })
    {
    }
    Watchdog(const Watchdog &) = delete;
    Watchdog &operator=(const Watchdog &) = delete;
    ~Watchdog()
    {
        {
            const std::lock_guard lock(mutex);
            ended = true;
        }
        over.notify_one();
        watching.join();
    }

private:
    static constexpr std::chrono::seconds grace{1}; // for the driver's own
    std::mutex mutex;
    std::condition_variable over;
    bool ended = false;
    std::thread watching;
};

void limitTime(SQLHSTMT handle, const SqlLimits &limits)
{
    SQLSetStmtAttr(handle, SQL_ATTR_QUERY_TIMEOUT,
                   reinterpret_cast<SQLPOINTER>(static_cast<SQLULEN>(limits.time.count())), 0);
}

void execute(SQLHSTMT handle, const SqlStatement &statement, Units units, const SqlLimits &limits, SqlResult &result)
{
    limitTime(handle, limits);
    const Watchdog watchdog(handle, limits.time);
    std::vector<Bound> bound(statement.parameters.size());
    for (std::size_t i = 0; i < bound.size(); ++i)
        if (!bind(handle, static_cast<SQLUSMALLINT>(i + 1), statement.parameters[i], units, bound[i]))
            return takeDiagnosis(SQL_HANDLE_STMT, handle, result);
    const std::u16string text = utf16FromUtf8(statement.text);
    const SQLRETURN status = SQLExecDirectW(handle, odbcText(text), SQL_NTS);
    if (!SQL_SUCCEEDED(status) && status != SQL_NO_DATA)
        return takeDiagnosis(SQL_HANDLE_STMT, handle, result);
    result.columns = describe(handle);
    SQLLEN changed = -1;
    if (!result.columns.empty())
        fetch(handle, limits, result);
    else if (status == SQL_NO_DATA)
        result.changed = 0;
    else if (SQL_SUCCEEDED(SQLRowCount(handle, &changed)))
        result.changed = static_cast<long>(changed);
}

// Drivers without Unicode say so in different ways, before the statement runs.
bool refusesUnits(const SqlResult &result)
{
    return result.state == "HYC00" || result.state == "07006" || result.state == "HY003";
}

// MariaDB's driver writes a limit behind the statement, which may have one already.
void limitRows(void *connection, SQLHSTMT handle, const std::string &statement, std::size_t rows)
{
    const std::u16string database = connectionText(connection, SQL_DBMS_NAME);
    const bool writes = database.starts_with(u"MariaDB") || database.starts_with(u"MySQL");
    if (!writes || lowerCase(statement).find("limit") == std::string::npos)
        SQLSetStmtAttr(handle, SQL_ATTR_MAX_ROWS, reinterpret_cast<SQLPOINTER>(static_cast<SQLULEN>(rows + 1)), 0);
}

SqlResult run(void *connection, const SqlStatement &statement, const SqlLimits &limits)
{
    SqlResult result;
    const auto start = Clock::now();
    for (const Units units : {Units::Wide, Units::Narrow}) {
        const OdbcHandle own = newStatement(connection);
        result = {};
        if (own)
            limitRows(connection, own.get(), statement.text, limits.rows);
        if (own)
            execute(own.get(), statement, units, limits, result);
        else
            takeDiagnosis(SQL_HANDLE_DBC, connection, result);
        if (statement.parameters.empty() || !refusesUnits(result))
            break;
    }
    result.milliseconds = std::chrono::duration<double, std::milli>(Clock::now() - start).count();
    return result;
}

} // namespace

SqlClass sqlClass(const SqlColumn &column)
{
    switch (column.type) {
    case SQL_BIT:
    case SQL_TINYINT:
    case SQL_SMALLINT:
    case SQL_INTEGER:
    case SQL_BIGINT:
    case SQL_REAL:
    case SQL_FLOAT:
    case SQL_DOUBLE:
    case SQL_NUMERIC:
    case SQL_DECIMAL: return SqlClass::Number;
    case SQL_DATE:
    case SQL_TYPE_DATE: return SqlClass::Date;
    case SQL_TIME:
    case SQL_TYPE_TIME: return SqlClass::Time;
    case SQL_TIMESTAMP:
    case SQL_TYPE_TIMESTAMP: return SqlClass::DateAndTime;
    default: return SqlClass::Text;
    }
}

SqlColumn columnOfClass(SqlClass kind)
{
    switch (kind) {
    case SqlClass::Text:
    case SqlClass::Number: return {}; // databases read a number from a text
    case SqlClass::Date: return {{}, SQL_TYPE_DATE, 10, 0};
    case SqlClass::Time: return {{}, SQL_TYPE_TIME, 8, 0};
    case SqlClass::DateAndTime: return {{}, SQL_TYPE_TIMESTAMP, 19, 0};
    }
    return {};
}

void beginUse(void *connection, SqlUse use)
{
    // Each in words of its own, and not every database knows how to read only; what it does all the same is undone
    // after each statement.
    const bool sqlite = isSqlite(connection);
    if (sqlite)
        run(connection, {"PRAGMA busy_timeout = 5000", {}}, {});
    if (use == SqlUse::Reading && sqlite)
        run(connection, {"PRAGMA query_only = 1", {}}, {});
    else if (use == SqlUse::Reading)
        for (const char *words :
             {"SET SESSION CHARACTERISTICS AS TRANSACTION READ ONLY", "SET SESSION TRANSACTION READ ONLY"})
            run(connection, {words, {}}, {});
    SQLSetConnectAttr(connection, SQL_ATTR_AUTOCOMMIT, reinterpret_cast<SQLPOINTER>(SQL_AUTOCOMMIT_OFF), 0);
}

SqlResult prepareStatement(void *connection, const SqlStatement &statement, const SqlLimits &limits)
{
    SqlResult result;
    const OdbcHandle own = newStatement(connection);
    if (!own) {
        takeDiagnosis(SQL_HANDLE_DBC, connection, result);
        return result;
    }
    limitTime(own.get(), limits);
    const Watchdog watchdog(own.get(), limits.time);
    const std::u16string text = utf16FromUtf8(statement.text);
    SQLSMALLINT count = 0; // some drivers read the statement when they are asked for it
    if (SQL_SUCCEEDED(SQLPrepareW(own.get(), odbcText(text), SQL_NTS)) &&
        SQL_SUCCEEDED(SQLNumResultCols(own.get(), &count)))
        result.columns = describe(own.get());
    else
        takeDiagnosis(SQL_HANDLE_STMT, own.get(), result);
    return result;
}

SqlResult readRows(void *connection, const SqlStatement &statement, const SqlLimits &limits)
{
    SqlResult result = run(connection, statement, limits);
    SQLEndTran(SQL_HANDLE_DBC, connection, SQL_ROLLBACK);
    return result;
}

SqlResult changeRows(void *connection, const SqlStatement &statement, std::optional<long> mostRows,
                     const SqlLimits &limits)
{
    SqlResult result = run(connection, statement, limits);
    if (result.error.empty() && mostRows) {
        if (result.changed > *mostRows)
            result.error = "The statement would change " + std::to_string(result.changed) + " rows";
        else if (result.changed < 0)
            result.error = "The driver does not tell how many rows the statement changes";
        else if (result.changed == 0)
            result.error = "There is no such row any more";
        if (!result.error.empty()) {
            result.error += "; nothing was changed.";
            result.changed = 0;
        }
    }
    const bool keep = result.error.empty();
    if (!SQL_SUCCEEDED(SQLEndTran(SQL_HANDLE_DBC, connection, keep ? SQL_COMMIT : SQL_ROLLBACK)) && keep)
        takeDiagnosis(SQL_HANDLE_DBC, connection, result);
    return result;
}

// A server that shuts down says so in a class of its own.
bool connectionLost(const SqlResult &result)
{
    return result.state.starts_with("08") || result.state.starts_with("57P0");
}

} // namespace corvanta
