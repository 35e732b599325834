#include "database/catalogue_handles.h"

#include "database/catalogue_thread.h"
#include "platform/codepage.h"

namespace corvanta {

namespace {

constexpr SQLSMALLINT mostDiagnoses = 8;

static_assert(sizeof(SQLWCHAR) == sizeof(char16_t));

void releaseStatement(void *handle)
{
    statementEnds(handle);
    SQLFreeHandle(SQL_HANDLE_STMT, handle);
}

} // namespace

OdbcHandle newHandle(SQLSMALLINT kind, SQLHANDLE parent, void (*release)(void *))
{
    SQLHANDLE handle = nullptr;
    if (!parent && kind != SQL_HANDLE_ENV)
        return {nullptr, release};
    if (!SQL_SUCCEEDED(SQLAllocHandle(kind, parent, &handle)))
        handle = nullptr;
    return {handle, release};
}

OdbcHandle newStatement(void *connection)
{
    OdbcHandle statement = newHandle(SQL_HANDLE_STMT, connection, releaseStatement);
    if (statement)
        statementBegins(statement.get());
    return statement;
}

SQLWCHAR *odbcText(const std::u16string &text)
{
    return const_cast<SQLWCHAR *>(reinterpret_cast<const SQLWCHAR *>(text.c_str()));
}

std::string utf8OfOdbc(const SQLWCHAR *text) { return utf8FromUtf16(reinterpret_cast<const char16_t *>(text)); }

std::u16string utf16OfBytes(std::string_view bytes)
{
    std::u16string text;
    for (unsigned char byte : bytes)
        text += static_cast<char16_t>(characterOf(byte));
    return text;
}

std::u16string utf16OfEither(std::string_view text)
{
    std::u16string units = utf16FromUtf8(text);
    return utf8FromUtf16(units) == text ? units : utf16OfBytes(text);
}

std::u16string connectionText(SQLHDBC connection, SQLUSMALLINT what)
{
    SQLWCHAR text[odbcTextLimit] = {};
    SQLSMALLINT length = 0;
    SQLGetInfoW(connection, what, text, sizeof text, &length);
    return reinterpret_cast<const char16_t *>(text);
}

bool isSqlite(SQLHDBC connection) { return connectionText(connection, SQL_DBMS_NAME).starts_with(u"SQLite"); }

std::u16string textAt(SQLHSTMT statement, SQLUSMALLINT column)
{
    SQLWCHAR wide[odbcTextLimit] = {};
    SQLLEN length = 0;
    if (SQL_SUCCEEDED(SQLGetData(statement, column, SQL_C_WCHAR, wide, sizeof wide, &length)))
        return reinterpret_cast<const char16_t *>(wide);
    const auto diagnoses = odbcDiagnoses(SQL_HANDLE_STMT, statement);
    if (diagnoses.empty() || diagnoses.front().state != "07006")
        return {};
    char narrow[odbcTextLimit] = ""; // a driver without Unicode
    if (!SQL_SUCCEEDED(SQLGetData(statement, column, SQL_C_CHAR, narrow, sizeof narrow, &length)))
        return {};
    return utf16OfEither(narrow);
}

SQLINTEGER numberAt(SQLHSTMT statement, SQLUSMALLINT column)
{
    SQLINTEGER value = 0;
    SQLLEN length = 0;
    bool got = SQL_SUCCEEDED(SQLGetData(statement, column, SQL_C_SLONG, &value, sizeof value, &length));
    return got && length != SQL_NULL_DATA ? value : 0;
}

std::vector<OdbcDiagnosis> odbcDiagnoses(SQLSMALLINT kind, SQLHANDLE handle)
{
    std::vector<OdbcDiagnosis> diagnoses;
    for (SQLSMALLINT number = 1; number <= mostDiagnoses; ++number) {
        SQLWCHAR state[SQL_SQLSTATE_SIZE + 1] = {}, text[odbcTextLimit] = {};
        SQLINTEGER native = 0;
        SQLSMALLINT length = 0;
        if (!SQL_SUCCEEDED(SQLGetDiagRecW(kind, handle, number, state, &native, text, odbcTextLimit, &length)))
            break;
        diagnoses.push_back({utf8OfOdbc(state), utf8OfOdbc(text)});
    }
    return diagnoses;
}

} // namespace corvanta
