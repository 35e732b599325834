#include "database/catalogue.h"
#include "database/catalogue_handles.h"
#include "database/catalogue_reason.h"

#include "platform/codepage.h"
#include "platform/text.h"

#include <algorithm>
#include <atomic>
#include <chrono>
#include <dlfcn.h>
#include <filesystem>
#include <iostream>
#include <locale.h>
#include <odbcinst.h>

namespace corvanta {
namespace {

constexpr std::size_t convertedLength = SQL_MAX_DSN_LENGTH + 1;

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

// Data source names are bytes of the configuration file; the driver manager carries each as a character of its own.
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
    char value[odbcTextLimit] = "";
    SQLGetPrivateProfileString(section.c_str(), key, "", value, sizeof value, file);
    return value;
}

// A data source as the driver manager spells it, with its driver's name and library.
struct Source {
    std::string spelling, driver, library;
};

// The file of a SQLite data source; empty for any other source and without a file.
std::string sqliteFile(const Source &source)
{
    std::string file = setting(source.spelling, "Database", "odbc.ini");
    bool sqlite = lowerCase(source.driver + source.library).find("sqlite") != std::string::npos;
    return sqlite && file != ":memory:" ? file : std::string();
}

// The names that the driver manager accepts, each once.
std::vector<std::string> spellings(void *environment)
{
    std::vector<std::string> names;
    SQLCHAR name[odbcTextLimit] = "", driver[odbcTextLimit] = "";
    SQLSMALLINT nameLength = 0, driverLength = 0;
    SQLUSMALLINT which = SQL_FETCH_FIRST;
    while (environment && SQL_SUCCEEDED(SQLDataSources(environment, which, name, odbcTextLimit, &nameLength, driver,
                                                       odbcTextLimit, &driverLength))) {
        const std::string text = reinterpret_cast<const char *>(name);
        if (text.size() <= SQL_MAX_DSN_LENGTH && std::find(names.begin(), names.end(), text) == names.end())
            names.push_back(text);
        which = SQL_FETCH_NEXT;
    }
    return names;
}

std::vector<ListedName> listed(const std::vector<std::string> &sources)
{
    std::vector<std::u16string> texts;
    texts.reserve(sources.size());
    for (const std::string &source : sources)
        texts.push_back(utf16OfEither(source));
    return listedNames(texts);
}

Source sourceNamed(void *environment, const std::string &dsn)
{
    const std::vector<std::string> all = spellings(environment);
    const std::vector<ListedName> names = listed(all);
    const auto found =
        std::find_if(names.begin(), names.end(), [&](const ListedName &name) { return name.name == dsn; });
    Source source{found == names.end() ? toUtf8(dsn) : all[static_cast<std::size_t>(found - names.begin())], {}, {}};
    source.driver = setting(source.spelling, "Driver", "odbc.ini");
    if (!source.driver.empty()) // without a section the driver manager answers with the names of all
        source.library = setting(source.driver, "Driver", "odbcinst.ini");
    if (source.library.empty())
        source.library = source.driver;
    return source;
}

// Libraries without a directory stand in that of the driver manager's drivers.
bool takesUnicode(const Source &source)
{
    Dl_info manager{};
    std::string library = source.library;
    if (library.find('/') == std::string::npos && dladdr(reinterpret_cast<void *>(&SQLAllocHandle), &manager) != 0)
        library = std::filesystem::path(manager.dli_fname).parent_path() / "odbc" / library;
    void *driver = dlopen(library.c_str(), RTLD_LAZY | RTLD_LOCAL);
    if (!driver)
        return true;
    const bool takes = dlsym(driver, "SQLConnectW") != nullptr;
    dlclose(driver);
    return takes;
}

bool isAscii(const std::string &text)
{
    return std::all_of(text.begin(), text.end(), [](char c) { return static_cast<unsigned char>(c) < 0x80; });
}

std::atomic<int> environments = 0;

void releaseEnvironment(void *handle)
{
    SQLFreeHandle(SQL_HANDLE_ENV, handle);
    --environments;
}

void releaseConnection(void *handle)
{
    SQLDisconnect(handle); // does nothing for one that was never connected
    SQLFreeHandle(SQL_HANDLE_DBC, handle);
}

OdbcHandle newConnection(void *environment, SQLULEN seconds)
{
    Utf8Locale utf8;
    OdbcHandle connection = newHandle(SQL_HANDLE_DBC, environment, releaseConnection);
    if (connection)
        SQLSetConnectAttrW(connection.get(), SQL_ATTR_LOGIN_TIMEOUT, reinterpret_cast<SQLPOINTER>(seconds), 0);
    return connection;
}

bool connectWide(void *connection, const Source &source, const std::string &user, const std::string &password)
{
    std::u16string name = padded(widened(source.spelling));
    std::u16string userText = padded(utf16OfBytes(user)), passwordText = padded(utf16OfBytes(password));
    return SQL_SUCCEEDED(
        SQLConnectW(connection, odbcText(name), SQL_NTS, odbcText(userText), SQL_NTS, odbcText(passwordText), SQL_NTS));
}

SQLCHAR *bytes(const std::string &text) { return reinterpret_cast<SQLCHAR *>(const_cast<char *>(text.c_str())); }

bool connectNarrow(void *connection, const Source &source, const std::string &user, const std::string &password)
{
    return SQL_SUCCEEDED(
        SQLConnect(connection, bytes(source.spelling), SQL_NTS, bytes(user), SQL_NTS, bytes(password), SQL_NTS));
}

std::string reasonOf(const std::vector<OdbcDiagnosis> &diagnoses, const Source &source, const std::string &password)
{
    std::string reason;
    bool noDriver = false;
    for (const OdbcDiagnosis &d : diagnoses) {
        reason += d.state + " " + withoutPassword(d.text, toUtf8(password)) + "\n";
        noDriver = noDriver || d.state == "IM002" || d.state == "IM003" || d.state == "IM004" ||
                   d.text.find("Can't open lib") != std::string::npos;
    }
    const std::string package = noDriver ? driverPackage(source.driver + "\n" + source.library) : std::string();
    if (!package.empty())
        reason += "The driver is not installed. It comes with the package " + package + ".\n";
    return reason.empty() ? "The driver gives no reason.\n" : reason;
}

// With UTF-8; what a driver without Unicode refuses so is tried in the code page, in the time that is left.
OdbcHandle connected(void *environment, const Source &source, const std::string &user, const std::string &password,
                     std::string &reason)
{
    const auto start = std::chrono::steady_clock::now();
    const auto loginSeconds = static_cast<SQLULEN>(catalogueTimes().login);
    OdbcHandle connection = newConnection(environment, loginSeconds);
    if (!connection || connectWide(connection.get(), source, user, password))
        return connection;
    reason = reasonOf(odbcDiagnoses(SQL_HANDLE_DBC, connection.get()), source, password);
    connection.reset();
    const auto passed = std::chrono::duration_cast<std::chrono::seconds>(std::chrono::steady_clock::now() - start);
    const auto seconds = static_cast<SQLULEN>(passed.count()) + 1;
    if (seconds >= loginSeconds || isAscii(user + password) || takesUnicode(source))
        return connection;
    connection = newConnection(environment, loginSeconds - seconds);
    if (connection && !connectNarrow(connection.get(), source, user, password))
        connection.reset();
    return connection;
}

} // namespace

OdbcHandle openOdbc()
{
    OdbcHandle environment = newHandle(SQL_HANDLE_ENV, nullptr, releaseEnvironment);
    if (!environment)
        return environment;
    ++environments;
    SQLSetEnvAttr(environment.get(), SQL_ATTR_ODBC_VERSION, reinterpret_cast<SQLPOINTER>(SQL_OV_ODBC3), 0);
    return environment;
}

bool catalogueInUse() { return environments > 0; }

bool odbcDead(void *connection)
{
    SQLUINTEGER dead = SQL_CD_FALSE;
    return SQL_SUCCEEDED(SQLGetConnectAttr(connection, SQL_ATTR_CONNECTION_DEAD, &dead, 0, nullptr)) &&
           dead == SQL_CD_TRUE;
}

std::vector<ListedName> odbcSources(void *environment) { return listed(spellings(environment)); }

OdbcHandle connectOdbc(void *environment, const std::string &dsn, const std::string &user, const std::string &password,
                       std::string *reason)
{
    const Source source = sourceNamed(environment, dsn);
    std::string why = "The driver manager gives no connection.\n";
    OdbcHandle connection{nullptr, releaseConnection};
    const std::string file = sqliteFile(source);
    if (std::error_code error; !file.empty() && !std::filesystem::exists(file, error))
        why = "08001 No such database file: " + file + "\n";
    else
        connection = connected(environment, source, user, password, why);
    if (!connection)
        std::cerr << why;
    if (reason)
        *reason = connection ? std::string() : why;
    return connection;
}

} // namespace corvanta
