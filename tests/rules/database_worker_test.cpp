#include "database/catalogue.h"
#include "database/connection_worker.h"

#include <gtest/gtest.h>

#include <atomic>
#include <memory>
#include <stdexcept>
#include <string>
#include <thread>

namespace corvanta {
namespace {

using std::chrono_literals::operator""ms;
using std::chrono_literals::operator""h;

// Calls that never answer until they are let go, and what the event loop hears of them.
class DatabaseWorker : public testing::Test {
protected:
    ~DatabaseWorker() override
    {
        letGo = true;
        hanging.reset();
        while (!ended) // the threads, and with them what they hold
            std::this_thread::yield();
        runPostedJobs();
        EXPECT_EQ(told, toldBefore);
    }

    ConnectionWorker::Task task(const std::string &name, std::chrono::milliseconds longest, bool hangs = false,
                                bool throws = false)
    {
        return {[this, name, hangs, throws, kept = hanging]() -> Job {
                    if (hangs) {
                        begun = true;
                        while (!letGo)
                            std::this_thread::yield();
                    }
                    if (throws)
                        throw std::runtime_error("a driver's");
                    return [this, name] { told += name + ";"; };
                },
                longest, [this, name] { told += name + " failed;"; }};
    }

    void expectTold(const std::string &expected)
    {
        while (told.size() < expected.size()) {
            std::this_thread::yield();
            runPostedJobs();
        }
        EXPECT_EQ(toldBefore = told, expected);
    }

    void awaitBegin() const
    {
        while (!begun)
            std::this_thread::yield();
    }

    std::atomic<bool> letGo = false, begun = false, ended = false;
    std::shared_ptr<void> hanging{this, [this](void *) { ended = true; }}; // held by every task
    std::string told, toldBefore;
};

TEST_F(DatabaseWorker, DeliversInItsThreadsOrderAndOnlyWhatIsWantedLast)
{
    ConnectionWorker worker;
    worker.run(task("first", 1h));
    expectTold("first;");
    worker.run(task("running", 1h, true));
    awaitBegin();
    worker.run(task("superseded", 1h));
    worker.run(task("last", 1h));
    letGo = true;
    expectTold("first;last;");
}

TEST_F(DatabaseWorker, GivesUpACallThatNeverComesBack)
{
    ConnectionWorker worker;
    worker.run(task("call", 1ms, true));
    expectTold("call failed;");
    worker.run(task("next", 1h)); // the thread is no more
    expectTold("call failed;next failed;");
}

TEST_F(DatabaseWorker, AnExceptionIsAFailure)
{
    ConnectionWorker worker;
    worker.run(task("call", 1h, false, true));
    expectTold("call failed;");
}

TEST_F(DatabaseWorker, ItsEndWaitsForNothingAndTellsNothing)
{
    ConnectionWorker().run(task("unbegun", 1h));
    ConnectionWorker worker;
    worker.run(task("call", 1ms, true));
    awaitBegin();
}

} // namespace
} // namespace corvanta
