#include "platform/worker.h"

#include <utility>

namespace corvanta {

Worker::Worker() : thread([this](const std::stop_token &stop) { run(stop); }) {}

Worker::~Worker()
{
    thread.request_stop();
    thread.join();
}

void Worker::post(Job job)
{
    const std::lock_guard guard(lock);
    jobs.push_back(std::move(job));
    changed.notify_all();
}

bool Worker::finish(std::chrono::milliseconds longest)
{
    std::unique_lock guard(lock);
    return changed.wait_for(guard, longest, [this] { return jobs.empty() && !busy; });
}

void Worker::run(const std::stop_token &stop)
{
    std::unique_lock guard(lock);
    while (changed.wait(guard, stop, [this] { return !jobs.empty(); })) {
        const Job job = std::move(jobs.front());
        jobs.pop_front();
        busy = true;
        guard.unlock();
        job();
        guard.lock();
        busy = false;
        changed.notify_all();
    }
}

} // namespace corvanta
