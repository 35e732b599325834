#include "preview/shown_page.h"

#include "actions/action.h"
#include "converter/html_template.h"
#include "converter/text.h"
#include "document/tablist.h"
#include "platform/codepage.h"
#include "platform/text.h"
#include "preview/actions.h"
#include "preview/record_statements.h"

#include <algorithm>
#include <charconv>

namespace corvanta {

namespace {

constexpr int soundHeight = 60; // pixels of the player below a page

bool isType(const Page &p, PageKind kind) { return p.PageType == static_cast<std::int16_t>(kind); }

bool hasGrid(const Page &p)
{
    return std::any_of(p.objects.begin(), p.objects.end(),
                       [](const ObjectRecord &o) { return kindOf(o.kind) == Kind::Grid; });
}

// What a request shows of a result.
struct Shown {
    ResultPtr result;
    bool single = false; // one row, else rows from first on
    long first = 0;

    long size() const { return static_cast<long>(result->data.rows.size()); }
};

Shown shownOf(const HostParts &parts, const PreviewRequest &request)
{
    Shown shown{resultOf(parts, request), !valueOf(request.query, "row").empty(), 0};
    shown.first = numberOf(request, shown.single ? "row" : "from", 0);
    return shown;
}

std::string fieldOf(const SqlRow &row, int place)
{
    return place < 0 ? std::string() : row[static_cast<std::size_t>(place)].value_or(std::string());
}

// What the placeholders of a page stand for. A bound object stands for its column of the row; without a row for
// nothing. What the visitor asked for stands where the page has no object of that name.
std::vector<TemplateValue> valuesOn(const Page &p, const Shown &shown)
{
    const bool record = shown.result && shown.single && shown.first < shown.size();
    std::vector<TemplateValue> values;
    for (std::int16_t i = 0; i < objectCount(p); ++i) {
        const ObjectRecord &o = p.objects[static_cast<std::size_t>(i)];
        if (isBlank(o.ctlname) || isBlank(o.datacol))
            continue;
        std::string value;
        if (record && !isPasswordField(p, i))
            value = fieldOf(shown.result->data.rows[static_cast<std::size_t>(shown.first)],
                            columnPlace(shown.result->data.columns, columnName(o.datacol)));
        values.push_back({toUtf8(o.ctlname), std::move(value)});
    }
    if (shown.result)
        values.insert(values.end(), shown.result->asked.begin(), shown.result->asked.end());
    return values;
}

// The content of a row's first cell: a link to the record, or the button of the Grid's own action.
std::string actingCell(const Page &p, std::int16_t grid, const Shown &shown, long row, const std::string &text)
{
    const std::string content = isBlank(fromUtf8Lossy(text)) ? "…" : escapedUtf8(text);
    const std::int16_t code = ActionCode(p.objects[static_cast<std::size_t>(grid)].actlist);
    if (code != action::none && code != action::viewRow)
        return "<button type=\"submit\" name=\"object\" value=\"" + std::to_string(grid) + ":" + std::to_string(row) +
               "\">" + content + "</button>";
    if (shown.result->queryView.empty() || (code == action::none && !shown.result->ownPage.empty()))
        return escapedUtf8(text);
    return "<a href=\"" + escapedUtf8(rowLocation(shown.result->queryView, shown.result->number, row)) + "\">" +
           content + "</a>";
}

std::string gridRows(const Page &p, std::int16_t grid, const Shown &shown)
{
    std::vector<int> places;
    for (std::size_t i = 0; i < gridColumnCount(p); ++i)
        places.push_back(columnPlace(shown.result->data.columns, columnName(fieldAt(p.gridcolumns[i].descriptor, 1))));
    std::string html;
    for (long row = shown.first; row < std::min(shown.first + rowsAStep, shown.size()); ++row) {
        html += "<tr>";
        for (std::size_t i = 0; i < places.size(); ++i) {
            const std::string text = fieldOf(shown.result->data.rows[static_cast<std::size_t>(row)], places[i]);
            html += "<td>" + (i == 0 ? actingCell(p, grid, shown, row, text) : escapedUtf8(text)) + "</td>";
        }
        html += "</tr>\n";
    }
    return html;
}

std::map<std::string, std::string> filledGrids(const Page &p, const Shown &shown)
{
    std::map<std::string, std::string> grids;
    for (std::int16_t i = 0; shown.result && !shown.single && i < objectCount(p); ++i)
        if (kindOf(p.objects[static_cast<std::size_t>(i)].kind) == Kind::Grid)
            grids["o" + std::to_string(i)] = gridRows(p, i, shown);
    return grids;
}

void addState(Strip &strip, const LoadedPage &loaded, const Shown &shown)
{
    if (!shown.result)
        return;
    const long size = shown.size(), step = shown.single ? 1 : rowsAStep;
    const std::string all = std::to_string(size) + (shown.result->data.more ? " and more" : "");
    if (shown.first >= size)
        strip.state = size == 0 ? "no rows" : "beyond the last of " + all + " rows";
    else if (shown.single)
        strip.state = "row " + std::to_string(shown.first + 1) + " of " + all;
    else
        strip.state = "rows " + std::to_string(shown.first + 1) + " to " +
                      std::to_string(std::min(shown.first + rowsAStep, size)) + " of " + all;
    const auto at = [&](long row) {
        return shown.single ? rowLocation(loaded.name, shown.result->number, row)
                            : rowsLocation(loaded.name, shown.result->number, row);
    };
    if (shown.first > 0)
        strip.links.push_back({"Previous", at(std::max(0L, std::min(shown.first, size) - step))});
    if (shown.first + step < size)
        strip.links.push_back({"Next", at(shown.first + step)});
}

} // namespace

std::string ownRecords(HostParts &parts, const LoadedPage &loaded, const PreviewRequest &request)
{
    const Page &p = loaded.page;
    const ResultPtr shown = resultOf(parts, request);
    const bool showsRecords = isType(p, PageKind::Record) || isType(p, PageKind::QueryView);
    if (!showsRecords || isBlank(p.SelectStmt) || (shown && shown->ownPage != loaded.name))
        return {};
    const FilledStatement filled = fillStatement(p, p.SelectStmt, ObjectValues(p.objects.size()));
    if (shown && shown->statement.text == filled.statement.text) // the author has not changed it meanwhile
        return {};
    JournalEntry failure;
    failure.kind = JournalEntry::Kind::Failure;
    failure.text = filled.failure;
    if (filled.failure.empty() && !isOneSelect(filled.statement.text))
        failure.text = "The page's statement is not one SELECT: " + filled.statement.text;
    if (!failure.text.empty()) {
        parts.journal.add(std::move(failure));
        return {};
    }
    ResultSet wanted;
    wanted.source = sourceOf(p);
    wanted.ownPage = wanted.queryView = loaded.name;
    const ResultPtr result = runQuery(parts, std::move(wanted), filled.statement);
    if (!result)
        return {};
    return hasGrid(p) ? rowsLocation(loaded.name, result->number, 0) : rowLocation(loaded.name, result->number, 0);
}

Strip stripOf(const HostParts &parts, const std::string &page, const PreviewRequest &request)
{
    Strip strip;
    strip.page = toUtf8(page);
    strip.stamp = pageStamp(parts.pages, page);
    strip.entries = parts.journal.newestFirst();
    const std::string said = valueOf(request.query, "said");
    const std::size_t dash = std::min(said.find('-'), said.size());
    std::from_chars(said.data(), said.data() + dash, strip.saidFrom);
    std::from_chars(said.data() + std::min(dash + 1, said.size()), said.data() + said.size(), strip.saidTo);
    return strip;
}

std::string shownPage(HostParts &parts, const LoadedPage &loaded, const PreviewRequest &request)
{
    const Page &p = loaded.page;
    const Shown shown = shownOf(parts, request);
    Strip strip = stripOf(parts, loaded.name, request);
    strip.pageHeight = std::max<int>(p.bkght, 0) + (p.sndfn.empty() ? 0 : soundHeight);
    addState(strip, loaded, shown);
    if (!shown.result && !valueOf(request.query, "result").empty())
        strip.state = "the result is no longer kept: ask again";
    const std::vector<TemplateValue> values = valuesOn(p, shown);
    parts.pictureFolders.add(pictureFolders(p, values));
    return withStrip(fillTemplate(htmlTemplate(p, parts.pages.folder), values, filledGrids(p, shown)), strip);
}

} // namespace corvanta
