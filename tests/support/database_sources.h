#pragma once

#include <filesystem>
#include <string>

// The data sources of the tests, in a folder of their own. Set up once in a process, since the driver
// manager remembers what it has read.
//   Shop            the sample database                     Types           tables of all sorts, on SQLite
//   Größe           the sample database                     Archive         the same, a source of the system
//   Lost File       a SQLite file that does not exist       Lost Driver     a driver that does not exist
//   Silent          a server that accepts and never answers
//   表一, 表二      the sample database, Types              Away            a driver whose library is missing
//   Live, Live ANSI the PostgreSQL server of tests/live/database, through both of its drivers
//   West ANSI       a database of it in Latin-1             Maria           the MariaDB server of tests/live/database
namespace corvanta::testsources {

// Makes the sources known; gives their folder.
const std::filesystem::path &setUp();

// Whether the server is there, and how its sources are entered.
bool haveServer();
bool haveMariaDb();
inline constexpr const char *serverUser = "clerk";
inline constexpr const char *serverPassword = "s;cr}t=\xE4 {"; // in the code page

} // namespace corvanta::testsources
