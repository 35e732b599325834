#include "database/table_preview.h"

#include "database/catalogue_reason.h"
#include "platform/codepage.h"
#include "platform/post.h"

#include <condition_variable>
#include <list>
#include <mutex>
#include <thread>

namespace corvanta {

namespace {

constexpr std::chrono::seconds readingTime{15};
constexpr std::chrono::milliseconds endingTime{500};
constexpr std::size_t longestShown = 200; // bytes of a text

struct Readings {
    std::mutex mutex;
    std::condition_variable ended;
    std::list<std::stop_source> running;
};

// Never destroyed: a driver that never answers may keep its thread beyond the end of main.
Readings &readings()
{
    static auto *all = new Readings;
    return *all;
}

struct Order {
    std::string source, user, password, statement;
    std::stop_token cancelled;
};

SqlResult readFirstRows(const Order &order)
{
    SqlResult result;
    const OdbcHandle environment = openOdbc();
    const OdbcHandle handle = connectOdbc(environment.get(), order.source, order.user, order.password, &result.error);
    if (!handle || order.cancelled.stop_requested())
        return result;
    beginUse(handle.get(), SqlUse::Reading);
    SqlLimits limits;
    limits.rows = firstRowCount;
    limits.textBytes = longestShown;
    limits.time = readingTime;
    limits.cancelled = order.cancelled;
    result = readRows(handle.get(), {order.statement, {}}, limits);
    result.error = withoutPassword(result.error, toUtf8(order.password));
    return result;
}

} // namespace

TablePreview::TablePreview(const Connection &c, int table, std::function<void(const SqlResult &)> told)
{
    const Order order{c.source, c.user, c.password, c.tableFacts.at(static_cast<std::size_t>(table)).firstRows,
                      reading.get_token()};
    Readings &all = readings();
    const std::lock_guard lock(all.mutex);
    const auto place = all.running.insert(all.running.end(), reading);
    std::thread([order, place, told = std::move(told), codePage = codePageNumber()] {
        const CodePageOfThread bytes(codePage);
        SqlResult result = readFirstRows(order);
        postToEventLoop([told, cancelled = order.cancelled, result = std::move(result)] {
            if (!cancelled.stop_requested())
                told(result);
        });
        Readings &own = readings();
        const std::lock_guard last(own.mutex);
        own.running.erase(place);
        own.ended.notify_all();
    }).detach();
}

TablePreview::~TablePreview() { reading.request_stop(); }

void endTablePreviews()
{
    Readings &all = readings();
    std::unique_lock lock(all.mutex);
    for (std::stop_source &running : all.running)
        running.request_stop();
    all.ended.wait_for(lock, endingTime, [&all] { return all.running.empty(); });
}

std::size_t tablePreviewsRunning()
{
    const std::lock_guard lock(readings().mutex);
    return readings().running.size();
}

} // namespace corvanta
