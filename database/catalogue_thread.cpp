#include "database/catalogue_thread.h"

#include "database/catalogue.h"
#include "database/catalogue_handles.h"

#include <algorithm>
#include <atomic>
#include <memory>
#include <mutex>
#include <utility>

namespace corvanta {

namespace {

std::atomic<int> loginSeconds = CatalogueTimes().login, callSeconds = CatalogueTimes().call;

struct Statements {
    std::mutex lock;
    std::vector<void *> open;
};

const std::shared_ptr<Statements> &statements()
{
    thread_local const auto ofThread = std::make_shared<Statements>();
    return ofThread;
}

thread_local bool lost = false;

} // namespace

void setCatalogueTimes(const CatalogueTimes &times)
{
    loginSeconds = times.login;
    callSeconds = times.call;
}

CatalogueTimes catalogueTimes() { return {loginSeconds, callSeconds}; }

std::function<void()> catalogueBreaker()
{
    return [broken = statements()] {
        // Held, so that no statement is released meanwhile. Its thread waits; nobody waits for that one.
        const std::lock_guard guard(broken->lock);
        for (void *statement : broken->open)
            SQLCancel(statement);
    };
}

void statementBegins(void *statement)
{
    SQLSetStmtAttr(statement, SQL_ATTR_QUERY_TIMEOUT,
                   reinterpret_cast<SQLPOINTER>(static_cast<SQLULEN>(callSeconds.load())), 0);
    const std::lock_guard guard(statements()->lock);
    statements()->open.push_back(statement);
}

void statementEnds(void *statement)
{
    for (const OdbcDiagnosis &d : odbcDiagnoses(SQL_HANDLE_STMT, statement))
        lost = lost || d.state.starts_with("08") || d.state.starts_with("57P0") || d.state.starts_with("HYT0");
    const std::lock_guard guard(statements()->lock);
    std::erase(statements()->open, statement);
}

bool takeLost() { return std::exchange(lost, false); }

} // namespace corvanta
