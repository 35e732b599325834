#include "tests/support/database_sources.h"

#include <gtest/gtest.h>

#include <arpa/inet.h>
#include <sys/socket.h>
#include <unistd.h>

#include <cstdlib>
#include <fstream>

namespace corvanta::testsources {
namespace {

constexpr const char *typesScript = R"sql(
create table Types(a_integer integer primary key autoincrement, a_smallint smallint, a_tinyint tinyint,
    a_bigint bigint, a_real real, a_double double, a_float float, a_numeric numeric(10,2), a_decimal decimal(12,3),
    a_money money, a_currency currency, a_date date, a_time time, a_timestamp timestamp, a_datetime datetime,
    a_varchar varchar(40), a_char char(5), a_text text, a_boolean boolean, a_blob blob, an_unknown wibble,
    a_wide varchar(70000));
create view Seen as select a_varchar, a_date from Types;
create table "a_b"(inside integer);
create table "axb"(outside integer);
create table "50% off"(discount integer);
create table "50 and off"(wrong integer);
create table "say ""hi"""(greeting varchar(7));
create table "back\slash"(path varchar(9));
create table "Straße €"("Größe" varchar(3));
create table "Ω"("Ωmega 𝄞" integer);
create table "表一"(one integer primary key);
create table "表二"(two integer);
insert into Types(a_real) values(1);
)sql";

// A listening socket that nobody accepts from; open until the process ends.
int silentPort()
{
    int server = socket(AF_INET, SOCK_STREAM | SOCK_CLOEXEC, 0);
    sockaddr_in address{};
    address.sin_family = AF_INET;
    address.sin_addr.s_addr = htonl(INADDR_LOOPBACK);
    socklen_t length = sizeof address;
    auto *plain = reinterpret_cast<sockaddr *>(&address);
    if (bind(server, plain, length) != 0 || listen(server, 5) != 0 || getsockname(server, plain, &length) != 0)
        ADD_FAILURE() << "no port to listen on";
    return ntohs(address.sin_port);
}

void makeDatabase(const std::filesystem::path &file, const std::filesystem::path &script)
{
    std::string command = "sqlite3 -bail '" + file.string() + "' < '" + script.string() + "'";
    if (std::system(command.c_str()) != 0)
        ADD_FAILURE() << command;
}

std::string section(const std::string &name, const std::string &driver, const std::string &entries)
{
    return "[" + name + "]\nDriver=" + driver + "\n" + entries + "\n\n";
}

std::filesystem::path makeSources()
{
    std::string name = (std::filesystem::temp_directory_path() / "corvanta-odbc-XXXXXX").string();
    if (!mkdtemp(name.data()))
        ADD_FAILURE() << "no folder for the data sources";
    std::filesystem::path folder = name;
    std::ofstream(folder / "types.sql") << typesScript << "create table \"" << std::string(300, 'n') << "\"(\""
                                        << std::string(300, 'c') << "\" date);";
    makeDatabase(folder / "types.db", folder / "types.sql");
    makeDatabase(folder / "shop.db", CORVANTA_SOURCE "/samples/shop.sql");

    std::string shop = "Database=" + (folder / "shop.db").string();
    const char *port = std::getenv("CORVANTA_TEST_POSTGRES_PORT");
    const auto server = [port](const std::string &database) {
        return "Servername=127.0.0.1\nDatabase=" + database + "\nPort=" + std::string(port ? port : "1");
    };
    const char *mariaPort = std::getenv("CORVANTA_TEST_MARIADB_PORT");
    std::string maria = "Server=127.0.0.1\nDatabase=shop\nPort=" + std::string(mariaPort ? mariaPort : "1");
    std::ofstream(folder / "odbcinst.ini")
        << section("SQLite3", "libsqlite3odbc.so", "") << section("PostgreSQL Unicode", "psqlodbcw.so", "")
        << section("PostgreSQL ANSI", "psqlodbca.so", "") << section("MariaDB", "libmaodbc.so", "")
        << section("MariaDB away", "/nowhere/libmaodbc.so", "");
    std::ofstream(folder / "odbc.ini") << section("Archive", "SQLite3", shop) << section("Shop", "SQLite3", shop);
    std::ofstream(folder / "user.ini") << section("Shop", "SQLite3", shop) << section("Größe", "SQLite3", shop)
                                       << section("Types", "SQLite3", "Database=" + (folder / "types.db").string())
                                       << section("Lost File", "SQLite3", "Database=" + (folder / "lost.db").string())
                                       << section("Lost Driver", "No Such Driver", "")
                                       << section("Silent", "PostgreSQL Unicode",
                                                  "Servername=127.0.0.1\nDatabase=x\nPort=" +
                                                      std::to_string(silentPort()))
                                       << section("Live", "PostgreSQL Unicode", server("shop"))
                                       << section("Live ANSI", "PostgreSQL ANSI", server("shop"))
                                       << section("West ANSI", "PostgreSQL ANSI", server("west"))
                                       << section("Maria", "MariaDB", maria) << section("Away", "MariaDB away", "")
                                       << section("表一", "SQLite3", shop)
                                       << section("表二", "SQLite3", "Database=" + (folder / "types.db").string())
                                       << section("Ein Name von mehr als 32 Bytes: ä", "SQLite3", shop);
    setenv("ODBCSYSINI", folder.c_str(), 1);
    setenv("ODBCINI", (folder / "user.ini").c_str(), 1);
    return folder;
}

struct Sources {
    std::filesystem::path folder = makeSources();
    ~Sources() { std::filesystem::remove_all(folder); }
};

} // namespace

const std::filesystem::path &setUp()
{
    static Sources sources;
    return sources.folder;
}

bool haveMariaDb() { return std::getenv("CORVANTA_TEST_MARIADB_PORT") != nullptr; }

bool haveServer() { return std::getenv("CORVANTA_TEST_POSTGRES_PORT") != nullptr; }

} // namespace corvanta::testsources
