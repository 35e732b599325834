#pragma once

#include "database/catalogue_names.h"
#include "database/catalogue_odbc.h"

#include <string>
#include <string_view>
#include <vector>

#include <sql.h>
#include <sqlext.h>
#include <sqlucode.h>

// What the sources that speak to the driver manager share: handles that release themselves, texts and diagnoses.
namespace corvanta {

OdbcHandle newHandle(SQLSMALLINT kind, SQLHANDLE parent, void (*release)(void *)); // empty on failure
OdbcHandle newStatement(void *connection);

constexpr std::size_t odbcTextLimit = 1024; // UTF-16 units of a name or message

// A text as an argument; it belongs to the text.
SQLWCHAR *odbcText(const std::u16string &text);
std::string utf8OfOdbc(const SQLWCHAR *text);

std::u16string utf16OfBytes(std::string_view bytes); // of the code page
// What a program without Unicode wrote: UTF-8, or else bytes of the code page.
std::u16string utf16OfEither(std::string_view text);

// A text that SQLGetInfo tells of the connection; empty when it tells none.
std::u16string connectionText(SQLHDBC connection, SQLUSMALLINT what);
bool isSqlite(SQLHDBC connection);

// Of the current row: a text, empty for NULL and cut beyond the limit, and a number, 0 for NULL.
std::u16string textAt(SQLHSTMT statement, SQLUSMALLINT column);
SQLINTEGER numberAt(SQLHSTMT statement, SQLUSMALLINT column);

// Why the last call failed: SQLSTATE and the driver's words, in UTF-8.
struct OdbcDiagnosis {
    std::string state, text;
};
std::vector<OdbcDiagnosis> odbcDiagnoses(SQLSMALLINT kind, SQLHANDLE handle);

} // namespace corvanta
