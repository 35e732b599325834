#pragma once

#include "database/connection.h"
#include "database/statement.h"

#include <functional>
#include <memory>
#include <optional>

// The first rows of a listed table, read in the background by a connection of their own.
namespace corvanta {

// Ends with the reading; until then it can be cancelled. The driver is told to stop and never waited for.
class TablePreview {
public:
    // The rows, or why there are none, come to the event loop unless the preview was cancelled.
    TablePreview(const Connection &c, int table, std::function<void(const SqlResult &)> told);
    ~TablePreview(); // cancels
    TablePreview(const TablePreview &) = delete;
    TablePreview &operator=(const TablePreview &) = delete;

private:
    std::stop_source reading;
};

// Cancels all that are being read, and waits half a second at most for their threads: before the program ends.
void endTablePreviews();

std::size_t tablePreviewsRunning();

} // namespace corvanta
