#pragma once

#include "database/connection.h"
#include "database/connection_worker.h"

#include <functional>
#include <memory>
#include <string>
#include <string_view>

namespace corvanta {

// The orders of the tool window for a connection, carried out in the background: connecting, and listing its tables and
// columns. Each call returns at once; what comes of it is in the connection when the event loop tells the change. A
// connection that has no thread here, because it was lost or given up, is made again, with the same user and password,
// by the next order. Used from the event loop's thread; its end drops what is under way.
class ConnectionJobs {
public:
    enum class Change {
        Doing,   // what is under way
        Source,  // another source
        Tables,  // read again; the listed table, if any, has another place
        Columns, // of another table, or none
    };
    ConnectionJobs(Connection &connection, std::function<void(Change)> changed);

    // By the reply of the dialog. A failure is told and changes nothing; the source that is connected is left alone.
    void connectTo(std::string_view reply);
    void refresh(); // tables, and the columns of the listed one
    void listColumns(int table);
    void listColumnsAfterKey(int table); // only when the table is not listed already

    // Gives up what is under way. Nothing is told; a connection that was listing is made again by the next order.
    void cancel();
    // What is under way, for the user: "Connecting to Shop..."; empty for nothing.
    std::string doing() const;

private:
    void start(const Login &login, std::string table);
    void connected(const Login &login, const std::string &table);
    void readTablesThen(const std::string &table);
    void tablesRead(ListedTables listed, const std::string &table);
    void columnsRead(int table, ListedColumns listed);
    void order(const std::string &what, std::function<Job()> work);
    void lose(const std::string &text, const std::string &reason);
    void unlistEmpty();
    void tell(Change change) const { changed(change); }
    Login login() const { return {c.source, c.user, c.password}; }

    Connection &c;
    std::function<void(Change)> changed;
    std::unique_ptr<ConnectionWorker> worker; // has the connection; none: to be made
    std::unique_ptr<ConnectionWorker> connecting;
    std::string goal;    // of connecting
    std::string reading; // what the worker does; empty for nothing
};

} // namespace corvanta
