#include "preview/host_parts.h"

#include "converter/address.h"

namespace corvanta {

namespace {

constexpr std::size_t longestTrail = 50;

std::string pageOnly(const std::string &address) { return address.substr(0, address.find('?')); }

} // namespace

void Trail::visit(const std::string &address)
{
    const std::lock_guard lock(mutex);
    if (!addresses.empty() && pageOnly(addresses.back()) == pageOnly(address))
        addresses.pop_back(); // another row of the same page
    addresses.push_back(address);
    if (addresses.size() > longestTrail)
        addresses.erase(addresses.begin());
}

std::string Trail::leave(const std::string &page)
{
    const std::lock_guard lock(mutex);
    while (!addresses.empty() && pageOnly(addresses.back()) == page)
        addresses.pop_back();
    return addresses.empty() ? std::string() : addresses.back();
}

std::string pageLocation(const std::string &page) { return pageAddress(page); }

std::string rowLocation(const std::string &page, unsigned result, long row)
{
    return pageAddress(page) + "?result=" + std::to_string(result) + "&row=" + std::to_string(row);
}

std::string rowsLocation(const std::string &page, unsigned result, long from)
{
    return pageAddress(page) + "?result=" + std::to_string(result) + "&from=" + std::to_string(from);
}

std::vector<std::string> shownParameters(const SqlStatement &statement)
{
    std::vector<std::string> shown;
    for (const SqlParameter &parameter : statement.parameters)
        shown.push_back(parameter.secret ? "•••" : parameter.value.value_or("NULL"));
    return shown;
}

SqlResult readNoted(HostParts &parts, const PageSource &source, const SqlStatement &statement, bool aside)
{
    SqlResult result = parts.sources.read(source, statement);
    JournalEntry entry;
    entry.kind = JournalEntry::Kind::Statement;
    entry.aside = aside;
    entry.text = statement.text;
    entry.parameters = shownParameters(statement);
    entry.milliseconds = result.milliseconds;
    entry.error = result.error;
    if (result.error.empty())
        entry.rows = static_cast<long>(result.rows.size());
    parts.journal.add(std::move(entry));
    return result;
}

ResultPtr runQuery(HostParts &parts, ResultSet query, const SqlStatement &statement)
{
    query.data = readNoted(parts, query.source, statement);
    query.statement = statement;
    return query.data.error.empty() ? parts.results.add(std::move(query)) : nullptr;
}

} // namespace corvanta
