#pragma once

#include "database/connection.h"
#include "database/connection_worker.h"
#include "database/statement.h"

#include <atomic>
#include <functional>
#include <memory>

// The first rows of a listed table, read in the background by a connection of their own.
namespace corvanta {

class TablePreview {
public:
    // The rows, or why there are none, come to the event loop unless the preview has ended before.
    TablePreview(const Connection &c, int table, const std::function<void(const SqlResult &)> &told);
    ~TablePreview();
    TablePreview(const TablePreview &) = delete;
    TablePreview &operator=(const TablePreview &) = delete;

private:
    std::shared_ptr<std::atomic<bool>> wanted; // of the thread, too
    ConnectionWorker worker;                   // its end breaks the reading off
};

} // namespace corvanta
