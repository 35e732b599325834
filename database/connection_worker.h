#pragma once

#include "platform/post.h"

#include <chrono>
#include <functional>
#include <memory>

namespace corvanta {

// A thread for the ODBC calls of one connection, with the catalogue that is its own. A driver that never answers keeps
// the thread, not the program: nobody ever waits for it. Used from the event loop's thread alone.
class ConnectionWorker {
public:
    struct Task {
        std::function<Job()> work;         // on the thread; gives what the event loop does with the result
        std::chrono::milliseconds longest; // from the work's start
        Job failed; // on the event loop instead: the time has passed, or the work threw. No task is done any more
    };

    ConnectionWorker();
    // Gives the thread up: no result of it is delivered any more. A call that runs is broken off, as far as the driver
    // can do that; when it comes back, or at once, the thread disconnects and ends.
    ~ConnectionWorker();
    ConnectionWorker(const ConnectionWorker &) = delete;
    ConnectionWorker &operator=(const ConnectionWorker &) = delete;

    // Takes the place of a task that has not begun; of one that runs the result is dropped.
    void run(Task task);

private:
    struct State; // the threads' too
    std::shared_ptr<State> state;
};

} // namespace corvanta
