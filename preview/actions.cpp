#include "preview/actions.h"

#include "actions/action.h"
#include "actions/action_kinds.h"
#include "converter/labels.h"
#include "platform/codepage.h"
#include "platform/text.h"
#include "preview/record_statements.h"

#include <algorithm>
#include <charconv>

namespace corvanta {

namespace {

constexpr long largestNumber = 1'000'000'000; // of objects, results and rows
constexpr int deepestList = 8, mostActions = 200;

long parsed(const std::string &text, long fallback)
{
    long number = 0;
    const auto [end, error] = std::from_chars(text.data(), text.data() + text.size(), number);
    const bool whole = error == std::errc() && end == text.data() + text.size();
    return whole && number >= 0 && number <= largestNumber ? number : fallback;
}

const ObjectRecord &objectAt(const Page &p, std::int16_t index) { return p.objects[static_cast<std::size_t>(index)]; }

// What the visitor entered, by object.
ObjectValues enteredValues(const UsedPage &used)
{
    const Page &p = used.loaded.page;
    const std::vector<std::string> names = fieldNames(p);
    ObjectValues values(p.objects.size());
    for (std::size_t i = 0; i < names.size(); ++i)
        for (const FormValue &v : used.request.form)
            if (!names[i].empty() && v.name == names[i] && !values[i])
                values[i] = v.value;
    return values;
}

// What the objects' placeholders stand for: what the visitor entered, else the row that the page shows.
ObjectValues shownValues(const UsedPage &used, ObjectValues values)
{
    if (!used.result || used.row >= static_cast<long>(used.result->data.rows.size()))
        return values;
    for (std::int16_t i = 0; i < objectCount(used.loaded.page); ++i) {
        const int place = columnPlace(used.result->data.columns, columnName(objectAt(used.loaded.page, i).datacol));
        std::optional<std::string> &value = values[static_cast<std::size_t>(i)];
        if (!value && place >= 0)
            value = used.result->data.rows[static_cast<std::size_t>(used.row)][static_cast<std::size_t>(place)];
    }
    return values;
}

// One use of an object: its action, with all that a List of Actions holds.
class ActionRunner {
public:
    ActionRunner(HostParts &hostParts, const UsedPage &usedPage)
        : parts(hostParts),
          used(usedPage),
          p(usedPage.loaded.page),
          entered(enteredValues(usedPage)),
          values(shownValues(usedPage, entered))
    {
    }

    std::string run()
    {
        const unsigned long before = parts.journal.last();
        stay();
        use(valueOf(used.request.form, "object"));
        const unsigned long after = parts.journal.last();
        if (after == before)
            return location;
        return location + (location.find('?') == std::string::npos ? "?" : "&") + "said=" + std::to_string(before + 1) +
               "-" + std::to_string(after);
    }

private:
    HostParts &parts;
    const UsedPage &used;
    const Page &p;
    ObjectValues entered, values;
    std::string location;
    bool stopped = false;
    int count = 0;

    void say(JournalEntry::Kind kind, std::string text, std::string title = {})
    {
        JournalEntry entry;
        entry.kind = kind;
        entry.text = std::move(text);
        entry.title = std::move(title);
        parts.journal.add(std::move(entry));
    }
    void note(std::string text) { say(JournalEntry::Kind::Note, std::move(text)); }
    void fail(std::string text)
    {
        say(JournalEntry::Kind::Failure, std::move(text));
        stopped = true;
    }

    // The page that is in use, as it was.
    void stay()
    {
        location = pageLocation(used.loaded.name);
        if (!used.result)
            return;
        const bool rows = valueOf(used.request.query, "row").empty();
        location = rows ? rowsLocation(used.loaded.name, used.result->number, used.row)
                        : rowLocation(used.loaded.name, used.result->number, used.row);
    }

    // "7" is object 7, "7:2" its entry or row 2.
    void use(const std::string &object)
    {
        const std::size_t colon = std::min(object.find(':'), object.size());
        const long index = parsed(object.substr(0, colon), -1);
        const long part = colon < object.size() ? parsed(object.substr(colon + 1), -1) : -1;
        if (index < 0 || index >= objectCount(p))
            return;
        const auto i = static_cast<std::int16_t>(index);
        const std::optional<Kind> kind = kindOf(objectAt(p, i).kind);
        if (kind == Kind::ListBox) {
            const auto &entries = p.lbxextras[static_cast<std::size_t>(p.ctlindex[static_cast<std::size_t>(i)])];
            if (part >= 0 && part < static_cast<long>(entries.size()))
                carryOut(entries[static_cast<std::size_t>(part)].action, 0);
            return;
        }
        if (kind == Kind::Grid && part >= 0)
            pointedRow = part;
        carryOut(objectAt(p, i).actlist, 0);
    }

    std::optional<long> pointedRow; // of a Grid

    void carryOut(const std::string &text, int depth)
    {
        if (stopped || ++count > mostActions)
            return;
        const Action a = decodeAction(text);
        switch (a.code) {
        case action::none: return;
        case action::list: return carryOutList(text, depth);
        case action::goToPage: location = pageLocation(a.values[0]); return;
        case action::nextRecord: return step(1);
        case action::previousRecord: return step(-1);
        case action::updateRecord: return update();
        case action::deleteRecord: return remove();
        case action::insertRecord: return insert();
        case action::submitSelect: return query(a);
        case action::viewRow: return viewRow();
        case action::executeSql: return execute(a.values[0]);
        case action::messageBox:
            return say(JournalEntry::Kind::Message, filledText(p, a.values[1], values),
                       filledText(p, a.values[0], values));
        case action::closePage: return close();
        case action::exitApplication: location = ".end"; return;
        case action::resetForm: return stay();
        default: return tellHost(a);
        }
    }

    void carryOutList(const std::string &text, int depth)
    {
        if (depth >= deepestList)
            return fail("Lists of actions are nested too deeply.");
        for (const ActionEntry &entry : decodeActionList(text)) {
            if (!stopped && !trimmed(entry.status).empty())
                note("Status: " + toUtf8(entry.status));
            carryOut(entry.action, depth + 1);
        }
    }

    // What only a host can do.
    void tellHost(const Action &a)
    {
        const std::string caption = toUtf8(actionKind(a.code).caption);
        std::string told =
            "The host would be told: " + (caption.empty() ? "action " + std::to_string(a.code) : caption);
        const auto parameters = actionParameters(a.code);
        for (std::size_t i = 0; i < a.values.size(); ++i)
            told += std::string(i == 0 ? "; " : ", ") + parameters[i].name + " \"" +
                    filledText(p, a.values[i], values) + "\"";
        for (const SentFile &file : used.request.files)
            told += "; file \"" + file.fileName + "\" with " + std::to_string(file.size) + " bytes in " + file.name;
        note(told + ".");
    }

    void close()
    {
        const std::string before = parts.trail.leave(pageLocation(used.loaded.name));
        location = before.empty() ? pageLocation(parts.pages.start) : before;
    }

    void step(int direction)
    {
        if (!used.result)
            return fail("There is no query whose records could be gone through.");
        const auto size = static_cast<long>(used.result->data.rows.size());
        const bool hits = valueOf(used.request.query, "row").empty();
        const long next = used.row + direction * (hits ? rowsAStep : 1);
        if (next < 0 || next >= size)
            return note(direction > 0 ? "There are no more records." : "This is the first record.");
        location = hits ? rowsLocation(used.loaded.name, used.result->number, next)
                        : rowLocation(used.loaded.name, used.result->number, next);
    }

    void viewRow()
    {
        const long row = pointedRow.value_or(used.row);
        if (!used.result || row >= static_cast<long>(used.result->data.rows.size()))
            return fail("There is no record to be viewed.");
        if (trimmed(used.result->queryView).empty())
            return fail("The query names no query view page.");
        location = rowLocation(used.result->queryView, used.result->number, row);
    }

    void query(const Action &a)
    {
        const FilledStatement filled = fillStatement(p, a.values[0], values);
        if (!filled.failure.empty())
            return fail(filled.failure);
        if (!isOneSelect(filled.statement.text))
            return fail("\"Submit a SELECT query\" takes one SELECT statement: " + filled.statement.text);
        ResultSet wanted;
        wanted.source = sourceOf(p);
        wanted.hitList = trimmed(a.values[1]);
        wanted.queryView = trimmed(a.values[2]);
        for (std::int16_t i = 0; i < objectCount(p); ++i)
            if (const auto &value = values[static_cast<std::size_t>(i)]; value && !isPasswordField(p, i))
                wanted.asked.push_back({toUtf8(objectAt(p, i).ctlname), *value});
        const ResultPtr result = runQuery(parts, std::move(wanted), filled.statement);
        if (!result)
            stopped = true;
        else if (!result->hitList.empty())
            location = rowsLocation(result->hitList, result->number, 0);
        else if (!result->queryView.empty())
            location = rowLocation(result->queryView, result->number, 0);
    }

    // Runs a statement that changes the database, or shows it. True when it was carried out.
    bool change(const FilledStatement &filled, std::optional<long> mostRows)
    {
        if (!filled.failure.empty()) {
            fail(filled.failure);
            return false;
        }
        JournalEntry entry;
        entry.text = filled.statement.text;
        entry.parameters = shownParameters(filled.statement);
        if (!parts.write) {
            entry.kind = JournalEntry::Kind::Shown;
            parts.journal.add(std::move(entry));
            return false;
        }
        const SqlResult result = parts.sources.change(sourceOf(p), filled.statement, mostRows);
        entry.kind = JournalEntry::Kind::Statement;
        entry.milliseconds = result.milliseconds;
        entry.error = result.error;
        if (result.changed >= 0)
            entry.rows = result.changed;
        parts.journal.add(std::move(entry));
        stopped = !result.error.empty();
        return !stopped;
    }

    void execute(const std::string &statement)
    {
        if (change(fillStatement(p, statement, values), std::nullopt))
            refresh(used.row);
    }

    // The columns of the page's table; none after a failure, which has been told.
    std::optional<std::vector<SqlColumn>> tableColumns()
    {
        if (recordTable(p).empty()) {
            fail("The page names no table.");
            return std::nullopt;
        }
        SqlResult described = readNoted(parts, sourceOf(p), describingStatement(recordTable(p)), true);
        stopped = !described.error.empty();
        return stopped ? std::nullopt : std::optional(std::move(described.columns));
    }

    // The row that the page shows; none when there is none, which has been told.
    const SqlRow *shownRow()
    {
        if (used.result && used.row < static_cast<long>(used.result->data.rows.size()))
            return &used.result->data.rows[static_cast<std::size_t>(used.row)];
        fail("The page shows no record.");
        return nullptr;
    }

    void update()
    {
        const SqlRow *row = shownRow();
        const auto columns = row ? tableColumns() : std::nullopt;
        if (!columns)
            return;
        const FilledStatement filled = updateStatement(p, {*columns, used.result->data.columns, *row}, entered);
        if (filled.failure.empty() && filled.statement.text.empty())
            return note("No field differs from the record: there is nothing to update.");
        if (change(filled, 1))
            refresh(used.row);
    }

    void remove()
    {
        const SqlRow *row = shownRow();
        const auto columns = row ? tableColumns() : std::nullopt;
        if (columns && change(deleteStatement(p, {*columns, used.result->data.columns, *row}), 1))
            refresh(used.row);
    }

    void insert()
    {
        const auto columns = tableColumns();
        if (columns && change(insertStatement(p, *columns, entered), 1))
            refresh(used.row);
    }

    // Asks the query of the page again, and stays near the row.
    void refresh(long row)
    {
        if (!used.result)
            return;
        SqlResult data = readNoted(parts, used.result->source, used.result->statement, true);
        stopped = !data.error.empty();
        if (stopped)
            return;
        const long last = std::max<long>(static_cast<long>(data.rows.size()) - 1, 0);
        parts.results.refresh(used.result->number, std::move(data));
        const bool hits = valueOf(used.request.query, "row").empty();
        location = hits ? rowsLocation(used.loaded.name, used.result->number, used.row)
                        : rowLocation(used.loaded.name, used.result->number, std::min(row, last));
    }
};

} // namespace

ResultPtr resultOf(const HostParts &parts, const PreviewRequest &request)
{
    const long number = parsed(valueOf(request.query, "result"), 0);
    return number > 0 ? parts.results.find(static_cast<unsigned>(number)) : nullptr;
}

long numberOf(const PreviewRequest &request, const char *name, long fallback)
{
    return parsed(valueOf(request.query, name), fallback);
}

std::string useObject(HostParts &parts, const UsedPage &used) { return ActionRunner(parts, used).run(); }

} // namespace corvanta
