#include "database/table_preview.h"

#include "database/catalogue_reason.h"
#include "platform/codepage.h"

#include <utility>

namespace corvanta {

namespace {

constexpr std::size_t longestShown = 200; // bytes of a text
constexpr std::chrono::seconds grace{1};  // for the driver's own time-outs

// With a connection that ends here.
SqlResult readFirstRows(const Login &login, const std::string &statement, std::chrono::seconds time,
                        const std::atomic<bool> &wanted)
{
    SqlResult result;
    const OdbcHandle environment = openOdbc();
    const OdbcHandle handle = connectOdbc(environment.get(), login.source, login.user, login.password, &result.error);
    if (!handle || !wanted)
        return result;
    beginUse(handle.get(), SqlUse::Reading);
    SqlLimits limits;
    limits.rows = firstRowCount;
    limits.textBytes = longestShown;
    limits.time = time;
    result = readRows(handle.get(), {statement, {}}, limits);
    result.error = withoutPassword(result.error, toUtf8(login.password));
    return result;
}

} // namespace

TablePreview::TablePreview(const Connection &c, int table, const std::function<void(const SqlResult &)> &told)
    : wanted(std::make_shared<std::atomic<bool>>(true))
{
    const CatalogueTimes times = catalogueTimes();
    const std::chrono::seconds login(times.login), call(times.call);
    worker.run({[login = Login{c.source, c.user, c.password}, call, told, still = wanted,
                 statement = c.tableFacts.at(static_cast<std::size_t>(table)).firstRows]() -> Job {
                    return [told, result = readFirstRows(login, statement, call, *still)] { told(result); };
                },
                login + call + grace,
                [told] {
                    SqlResult none;
                    none.error = "The data source does not answer.";
                    told(none);
                }});
}

TablePreview::~TablePreview() { *wanted = false; }

} // namespace corvanta
