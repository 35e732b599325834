#pragma once

#include "platform/post.h"

#include <chrono>
#include <condition_variable>
#include <deque>
#include <mutex>
#include <thread>

namespace corvanta {

// A thread that carries out jobs one after the other. Its end lets it finish what waits.
class Worker {
public:
    Worker();
    ~Worker();
    Worker(const Worker &) = delete;
    Worker &operator=(const Worker &) = delete;

    void post(Job job);
    // Waits until all jobs are done, for so long at most. False when some are left.
    bool finish(std::chrono::milliseconds longest);

private:
    void run(const std::stop_token &stop);

    std::mutex lock;
    std::condition_variable_any changed;
    std::deque<Job> jobs;
    bool busy = false;
    std::jthread thread;
};

} // namespace corvanta
