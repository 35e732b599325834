#include "database/connection_jobs.h"

#include "database/catalogue.h"
#include "platform/asking.h"
#include "platform/codepage.h"

#include <algorithm>
#include <utility>

namespace corvanta {

namespace {

// The driver's own time-out comes before, and knows the reason.
constexpr std::chrono::milliseconds grace{250};

std::chrono::milliseconds within(int seconds) { return std::chrono::seconds(seconds) + grace; }

std::string noAnswer(int seconds)
{
    return "The data source has not answered for " + std::to_string(seconds) +
           (seconds == 1 ? " second." : " seconds.");
}

int placeOf(const std::string &table, const std::vector<std::string> &tables)
{
    const auto found = std::find(tables.begin(), tables.end(), table);
    return table.empty() || found == tables.end() ? -1 : static_cast<int>(found - tables.begin());
}

} // namespace

ConnectionJobs::ConnectionJobs(Connection &connection, std::function<void(Change)> told)
    : c(connection), changed(std::move(told))
{
}

void ConnectionJobs::connectTo(std::string_view reply)
{
    const Login chosen = loginOf(reply);
    if (!chosen.source.empty() && !(worker && chosen.source == c.source))
        start(chosen, {});
}

// With the table whose columns are wanted then.
void ConnectionJobs::start(const Login &to, std::string table)
{
    goal = to.source;
    connecting = std::make_unique<ConnectionWorker>();
    const int seconds = catalogueTimes().login;
    connecting->run({[this, to, table = std::move(table)]() -> Job {
                         std::string reason;
                         if (ConnectDsn(to.source.c_str(), to.user.c_str(), to.password.c_str(), &reason) == 0)
                             return [this, to, table] { connected(to, table); };
                         return [this, to, reason] {
                             connecting.reset();
                             unlistEmpty();
                             tellFailure(to.source, fromUtf8Lossy(reason));
                         };
                     },
                     within(seconds),
                     [this, to, seconds] {
                         connecting.reset();
                         unlistEmpty();
                         tellFailure(to.source, noAnswer(seconds));
                     }});
    tell(Change::Doing);
}

void ConnectionJobs::connected(const Login &to, const std::string &table)
{
    worker = std::move(connecting); // the connection before it ends in its own thread
    reading.clear();
    if (table.empty()) {
        adoptSource(c, to);
        tell(Change::Source);
    }
    readTablesThen(table);
}

void ConnectionJobs::refresh()
{
    if (c.source.empty())
        return;
    const std::string table = c.listedTable < 0 ? std::string() : c.tables[static_cast<std::size_t>(c.listedTable)];
    if (worker)
        readTablesThen(table);
    else
        start(login(), table);
}

void ConnectionJobs::readTablesThen(const std::string &table)
{
    order("Reading the tables of " + c.source + "...", [this, with = login(), table]() -> Job {
        return [this, table, listed = readTables(with)] { tablesRead(listed, table); };
    });
}

void ConnectionJobs::tablesRead(ListedTables listed, const std::string &table)
{
    reading.clear();
    if (listed.lost)
        return lose("The connection to " + c.source + " is lost. The next click on a table connects again.", {});
    clearColumns(c);
    takeTables(c, std::move(listed));
    c.listedTable = placeOf(table, c.tables);
    tell(Change::Tables);
    if (c.listedTable >= 0)
        listColumns(c.listedTable);
}

void ConnectionJobs::listColumns(int table)
{
    if (table < 0 || table >= static_cast<int>(c.tables.size()))
        return;
    clearColumns(c);
    c.listedTable = table;
    tell(Change::Columns);
    const std::string name = c.tables[static_cast<std::size_t>(table)];
    if (!worker)
        return start(login(), name);
    order("Reading the columns of " + name + "...", [this, with = login(), table, name]() -> Job {
        return [this, table, listed = readColumns(with, name)] { columnsRead(table, listed); };
    });
}

void ConnectionJobs::listColumnsAfterKey(int table)
{
    if (table != c.listedTable)
        listColumns(table);
}

void ConnectionJobs::columnsRead(int table, ListedColumns listed)
{
    reading.clear();
    if (listed.lost)
        return lose("The connection to " + c.source + " is lost. The next click on a table connects again.", {});
    takeColumns(c, table, std::move(listed));
    tell(Change::Columns);
}

void ConnectionJobs::order(const std::string &what, std::function<Job()> work)
{
    reading = what;
    const int seconds = catalogueTimes().call;
    worker->run({std::move(work), within(seconds),
                 [this, seconds] { lose("Failure connecting to " + c.source, noAnswer(seconds)); }});
    tell(Change::Doing);
}

// The state first: a message lets the event loop run.
void ConnectionJobs::lose(const std::string &text, const std::string &reason)
{
    worker.reset();
    reading.clear();
    clearColumns(c);
    tell(Change::Columns);
    showMessage({.text = text, .title = "Error", .further = reason});
}

void ConnectionJobs::cancel()
{
    connecting.reset();
    if (!std::exchange(reading, {}).empty())
        worker.reset();
    unlistEmpty();
}

// A table whose columns never came is not listed: the next key lists it.
void ConnectionJobs::unlistEmpty()
{
    if (c.columns.empty())
        c.listedTable = -1;
    tell(Change::Doing);
}

std::string ConnectionJobs::doing() const { return connecting ? "Connecting to " + goal + "..." : reading; }

} // namespace corvanta
