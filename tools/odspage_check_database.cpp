#include "tools/odspage_check_database.h"

#include "actions/links.h"
#include "database/catalogue.h"
#include "database/catalogue_odbc.h"
#include "database/catalogue_reason.h"
#include "database/sql.h"
#include "platform/codepage.h"
#include "platform/text.h"
#include "preview/data_source.h"
#include "preview/record_statements.h"
#include "preview/statement_fill.h"

#include <algorithm>
#include <atomic>
#include <future>
#include <optional>
#include <thread>

namespace corvanta {

namespace {

constexpr std::chrono::seconds grace{1}; // the driver's own time-out comes before, and knows the reason

std::atomic<bool> leftBehind = false;

// Waits for a driver on a thread of its own; none when it does not come back in time.
std::optional<SqlResult> inTime(std::function<SqlResult()> call, std::chrono::seconds longest)
{
    std::packaged_task<SqlResult()> task(std::move(call));
    std::future<SqlResult> told = task.get_future();
    std::thread(std::move(task)).detach();
    if (told.wait_for(longest + grace) != std::future_status::ready) {
        leftBehind = true;
        return std::nullopt;
    }
    return told.get();
}

// Something of each object's class in the place of its placeholder.
ObjectValues sampleValues(const Page &p)
{
    ObjectValues values;
    for (std::int16_t i = 0; i < objectCount(p); ++i) {
        const ObjectRecord &o = p.objects[static_cast<std::size_t>(i)];
        const bool condition = std::any_of(p.objects.begin(), p.objects.end(), [&](const ObjectRecord &other) {
            return !o.ctlname.empty() && sameText(other.condobjname, o.ctlname);
        });
        switch (valueClass(p, i)) {
        case ValueClass::Text: values.emplace_back(condition ? "=" : "1"); break;
        case ValueClass::Number: values.emplace_back(condition ? "=" : "1"); break;
        case ValueClass::Date: values.emplace_back(condition ? "=" : "2001-12-31"); break;
        }
    }
    return values;
}

std::string firstLine(const std::string &utf8) { return fromUtf8Lossy(utf8.substr(0, utf8.find('\n'))); }

struct NamedStatement {
    std::int16_t object;
    std::string what, text;
};

// The page's own statement, and those of its actions.
std::vector<NamedStatement> statementsOf(const Page &p)
{
    std::vector<NamedStatement> statements;
    if (!trimmed(p.SelectStmt).empty())
        statements.push_back({noObject, "the SELECT statement", p.SelectStmt});
    eachAction(p, [&](std::int16_t object, const Action &action) {
        const bool sql = action.code == action::submitSelect || action.code == action::executeSql;
        if (sql && !trimmed(action.values[0]).empty())
            statements.push_back({object, "the statement", action.values[0]});
    });
    return statements;
}

// The columns that objects show and find their records by.
std::vector<std::pair<std::int16_t, std::string>> boundColumns(const Page &p)
{
    std::vector<std::pair<std::int16_t, std::string>> columns;
    for (std::int16_t i = 0; i < objectCount(p); ++i)
        for (const std::string &column :
             {p.objects[static_cast<std::size_t>(i)].datacol, p.objects[static_cast<std::size_t>(i)].updatekey})
            if (!columnName(column).empty())
                columns.emplace_back(i, column);
    return columns;
}

} // namespace

struct DatabaseCheck::Source {
    OdbcHandle environment{nullptr, nullptr}, connection{nullptr, nullptr};
    bool givenUp = false;
};

DatabaseCheck::DatabaseCheck(ToolRun &toolRun) : run(toolRun) {}

bool DatabaseCheck::driverLeftBehind() { return leftBehind; }

void DatabaseCheck::giveUp(const std::string &file, Source &source, const std::string &reason)
{
    source.givenUp = true;
    run.exitCode = 1;
    complain(run, file, reason);
}

// An error without a text when the source was given up.
SqlResult DatabaseCheck::ask(const std::string &file, const Page &p, const SqlStatement &statement)
{
    const PageSource wanted = sourceOf(p);
    auto &source = sources[wanted.source + '\t' + wanted.credentials.user + '\t' + wanted.credentials.password];
    if (!source)
        source = std::make_shared<Source>();
    SqlResult none;
    none.state = "08001";
    if (source->givenUp)
        return none;
    const std::chrono::seconds login(catalogueTimes().login), call(catalogueTimes().call);
    const auto told = inTime(
        [shared = source, wanted, statement, call] {
            SqlResult result;
            if (!shared->environment)
                shared->environment = openOdbc();
            if (!shared->connection)
                shared->connection = connectOdbc(shared->environment.get(), wanted.source, wanted.credentials.user,
                                                 wanted.credentials.password, &result.error);
            if (!shared->connection) {
                result.state = "08001";
                return result;
            }
            SqlLimits limits;
            limits.time = call;
            result = prepareStatement(shared->connection.get(), statement, limits);
            result.error = withoutPassword(result.error, toUtf8(wanted.credentials.password));
            return result;
        },
        login + call);
    if (told && !connectionLost(*told))
        return *told;
    giveUp(file, *source,
           "no answer of data source \"" + toUtf8(wanted.source) + "\"" +
               (told ? ": " + told->error.substr(0, told->error.find('\n')) : std::string()));
    return none;
}

std::vector<Finding> DatabaseCheck::check(const std::string &file, const Page &p)
{
    std::vector<Finding> findings;
    if (connectPart(p, 0).empty())
        return findings;
    const ObjectValues values = sampleValues(p);
    const auto report = [&](std::int16_t object, const std::string &text) {
        findings.push_back({object, databaseRule, text});
    };
    for (const NamedStatement &s : statementsOf(p)) {
        const FilledStatement filled = fillStatement(p, s.text, values);
        if (!filled.failure.empty()) {
            report(s.object, s.what + " cannot be filled: " + fromUtf8Lossy(filled.failure));
            continue;
        }
        const SqlResult told = ask(file, p, filled.statement);
        if (!told.error.empty() && !connectionLost(told))
            report(s.object, s.what + " is refused: " + firstLine(told.error));
    }
    std::map<std::string, SqlResult> tables;
    const auto columnsOf = [&](std::int16_t object, const std::string &table) -> const SqlResult & {
        const auto [entry, first] = tables.try_emplace(table);
        if (first)
            entry->second = ask(file, p, describingStatement(table));
        if (first && !entry->second.error.empty() && !connectionLost(entry->second))
            report(object, "no table \"" + table + "\": " + firstLine(entry->second.error));
        return entry->second;
    };
    if (const std::string table = recordTable(p); !table.empty())
        columnsOf(noObject, table);
    for (const auto &[object, column] : boundColumns(p)) {
        const std::string table = tableName(column).empty() ? recordTable(p) : tableName(column);
        if (table.empty())
            continue;
        const SqlResult &described = columnsOf(object, table);
        if (!described.columns.empty() && columnPlace(described.columns, columnName(column)) < 0)
            report(object, "table \"" + table + "\" has no column \"" + columnName(column) + "\"");
    }
    return findings;
}

} // namespace corvanta
