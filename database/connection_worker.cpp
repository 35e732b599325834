#include "database/connection_worker.h"

#include "database/catalogue.h"

#include <condition_variable>
#include <mutex>
#include <optional>
#include <system_error>
#include <thread>
#include <utility>

namespace corvanta {

struct ConnectionWorker::State : std::enable_shared_from_this<State> {
    using Clock = std::chrono::steady_clock;
    using Lock = std::unique_lock<std::mutex>;

    std::mutex lock;
    std::condition_variable changed;
    std::optional<Task> waiting, running;
    unsigned ordered = 0, begun = 0; // numbers of tasks; only the last one that was ordered is wanted
    Clock::time_point deadline;      // of the running task
    bool started = false, ended = false;
    Job breakOff; // ends the call that the thread is in, from another thread

    // Both with the lock held. What is told comes only while the order is the last one.
    void tell(Job job, unsigned number);
    void end();

    void work();
    void watch();
};

void ConnectionWorker::State::tell(Job job, unsigned number)
{
    postToEventLoop([state = shared_from_this(), job = std::move(job), number] {
        const bool wanted = [&] {
            const std::lock_guard guard(state->lock);
            return state->ordered == number;
        }();
        if (wanted && job)
            job();
    });
}

void ConnectionWorker::State::end()
{
    if (!std::exchange(ended, true))
        if (const auto &last = waiting ? waiting : running)
            tell(last->failed, ordered);
    waiting.reset();
    changed.notify_all();
}

// The thread of the calls.
void ConnectionWorker::State::work()
{
    Lock guard(lock);
    breakOff = catalogueBreaker();
    for (;;) {
        changed.wait(guard, [this] { return waiting || ended; });
        if (ended)
            break;
        running = std::exchange(waiting, std::nullopt);
        const unsigned number = begun = ordered;
        deadline = Clock::now() + running->longest;
        changed.notify_all();
        const auto task = running->work;
        guard.unlock();
        Job result;
        try {
            result = task();
        } catch (...) { // as if it never came back
        }
        guard.lock();
        if (!result && !ended)
            end();
        running.reset();
        changed.notify_all();
        if (!ended)
            tell(std::move(result), number);
    }
    guard.unlock();
    OdbcNameEndDll(); // a driver may hang here, too
}

// The thread that keeps the time, and breaks off a call that nobody waits for any more. Drivers may hang in that as
// well.
void ConnectionWorker::State::watch()
{
    Lock guard(lock);
    for (;;) {
        changed.wait(guard, [this] { return running || ended; });
        const unsigned watched = begun;
        const auto over = [&] { return ended || !running || begun != watched; };
        if (!changed.wait_until(guard, deadline, over))
            end();
        if (ended)
            break;
    }
    const Job last = running ? breakOff : Job();
    guard.unlock();
    if (last)
        last();
}

ConnectionWorker::ConnectionWorker() : state(std::make_shared<State>()) {}

ConnectionWorker::~ConnectionWorker()
{
    const std::lock_guard guard(state->lock);
    state->end();
    ++state->ordered; // no order is the last one any more
}

void ConnectionWorker::run(Task task)
{
    const std::lock_guard guard(state->lock);
    ++state->ordered;
    if (state->ended)
        return state->tell(std::move(task.failed), state->ordered);
    state->waiting = std::move(task);
    state->changed.notify_all();
    if (std::exchange(state->started, true))
        return;
    try {
        std::thread([shared = state] { shared->work(); }).detach();
        std::thread([shared = state] { shared->watch(); }).detach();
    } catch (const std::system_error &) { // no more threads
        state->end();
    }
}

} // namespace corvanta
