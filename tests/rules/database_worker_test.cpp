#include "database/catalogue.h"
#include "database/connection_worker.h"

#include <gtest/gtest.h>

#include <functional>
#include <future>
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
        letGo.set_value();
        while (hanging.use_count() > 1) // the threads have ended, and with them what they hold
            std::this_thread::yield();
        runPostedJobs();
        EXPECT_EQ(told, toldBefore);
    }

    ConnectionWorker::Task task(const std::string &name, std::chrono::milliseconds longest, bool hangs = false,
                                bool throws = false)
    {
        return {[this, name, hangs, throws, kept = hanging]() -> Job {
                    if (hangs) {
                        begun.set_value();
                        answer.wait();
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

    std::shared_ptr<int> hanging = std::make_shared<int>();
    std::promise<void> letGo, begun;
    std::shared_future<void> answer = letGo.get_future().share();
    std::string told, toldBefore;
};

TEST_F(DatabaseWorker, DeliversInItsThreadsOrderAndOnlyWhatIsWantedLast)
{
    ConnectionWorker worker;
    worker.run(task("first", 1h));
    expectTold("first;");
    worker.run(task("running", 1h, true));
    begun.get_future().wait();
    worker.run(task("superseded", 1h));
    worker.run(task("last", 1h));
    std::promise<void> other = std::exchange(letGo, {});
    other.set_value();
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
    begun.get_future().wait();
}

} // namespace
} // namespace corvanta
