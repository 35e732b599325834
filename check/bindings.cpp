#include "actions/links.h"
#include "check/rules.h"
#include "database/sql.h"
#include "document/page_file.h"
#include "platform/text.h"

#include <algorithm>
#include <cctype>
#include <map>
#include <set>

namespace corvanta {

namespace {

bool isNameCharacter(char c)
{
    const auto byte = static_cast<unsigned char>(c);
    return byte >= 0x80 || c == '_' || c == '-' || std::isalnum(byte) != 0;
}

// The names between pairs of "@".
std::vector<std::string> placeholders(const std::string &text)
{
    std::vector<std::string> found;
    for (std::size_t at = text.find('@'); at != std::string::npos;) {
        const std::size_t end = text.find('@', at + 1);
        if (end == std::string::npos)
            break;
        const std::string name = text.substr(at + 1, end - at - 1);
        const bool named = !name.empty() && std::all_of(name.begin(), name.end(), isNameCharacter);
        if (named)
            found.push_back(name);
        at = named ? text.find('@', end + 1) : end;
    }
    return found;
}

// The objects' names in upper case, each with its first object.
std::map<std::string, std::int16_t> objectNames(const Page &p)
{
    std::map<std::string, std::int16_t> names;
    for (std::int16_t i = 0; i < objectCount(p); ++i)
        if (!recordAt(p, i).ctlname.empty())
            names.try_emplace(upperCase(recordAt(p, i).ctlname), i);
    return names;
}

std::string quotingFault(const std::string &column)
{
    const std::size_t dot = column.rfind('.');
    if (column.find(' ') != std::string::npos) {
        if (dot == std::string::npos || column.find('"') != std::string::npos)
            return {};
        return "\"" + column + "\" is quoted as a whole: databases take the table for a part of the column's name";
    }
    const std::string name = dot == std::string::npos ? column : column.substr(dot + 1);
    return isReservedWord(name) ? "\"" + name + "\" is a reserved word" : "";
}

} // namespace

void findTwins(const Checked &checked, const Report &report)
{
    const auto names = objectNames(checked.page);
    for (std::int16_t i = 0; i < objectCount(checked.page); ++i) {
        const std::string &name = recordAt(checked.page, i).ctlname;
        const auto first = names.find(upperCase(name));
        if (first != names.end() && first->second != i)
            report(i, "object " + std::to_string(first->second) + " has the name \"" + name + "\" as well");
    }
}

void findPlaceholders(const Checked &checked, const Report &report)
{
    const auto names = objectNames(checked.page);
    std::set<std::pair<std::int16_t, std::string>> told;
    const auto look = [&](std::int16_t object, const std::string &text) {
        for (const std::string &name : placeholders(text))
            if (!names.contains(upperCase(name)) && told.emplace(object, upperCase(name)).second)
                report(object, "@" + name + "@ names no object of the page");
    };
    look(noObject, checked.page.SelectStmt);
    for (std::int16_t i = 0; i < objectCount(checked.page); ++i)
        if (kindOf(recordAt(checked.page, i).kind) == Kind::Url)
            look(i, elementOf(checked.page, i)->Caption);
    eachAction(checked.page, [&](std::int16_t object, const Action &action) {
        for (const std::string &value : action.values)
            look(object, value);
    });
}

void findConditions(const Checked &checked, const Report &report)
{
    const auto names = objectNames(checked.page);
    for (std::int16_t i = 0; i < objectCount(checked.page); ++i) {
        const std::string &name = recordAt(checked.page, i).condobjname;
        if (!name.empty() && !names.contains(upperCase(name)))
            report(i, "the condition object \"" + name + "\" is not there");
    }
}

void findNameless(const Checked &checked, const Report &report)
{
    for (std::int16_t i = 0; i < objectCount(checked.page); ++i) {
        const ObjectRecord &o = recordAt(checked.page, i);
        if (!o.datacol.empty() && o.ctlname.empty())
            report(i, "bound to \"" + o.datacol + "\" without a name");
    }
}

void findTransfers(const Checked &checked, const Report &report)
{
    const auto names = objectNames(checked.page);
    eachAction(checked.page, [&](std::int16_t object, const Action &action) {
        if (action.code != action::downloadFile && action.code != action::uploadFile)
            return;
        const std::string &name = action.values.front();
        const auto named = names.find(upperCase(name));
        const std::int16_t code = named == names.end() ? std::int16_t{0} : recordAt(checked.page, named->second).kind;
        const std::string what = action.code == action::downloadFile ? "the download" : "the upload";
        if (name.empty())
            report(object, what + " names nothing");
        else if (code != static_cast<std::int16_t>(Kind::File) && code != static_cast<std::int16_t>(Kind::ImageDb))
            report(object, what + " names \"" + name + "\", which is no File and no Image DB object");
    });
}

void findQuoting(const Checked &checked, const Report &report)
{
    for (std::int16_t i = 0; i < objectCount(checked.page); ++i)
        if (std::string fault = quotingFault(recordAt(checked.page, i).datacol); !fault.empty())
            report(i, std::move(fault));
}

void findPassword(const Checked &checked, const Report &report)
{
    if (!connectPart(checked.page, 2).empty())
        report(noObject, "the password of data source \"" + connectPart(checked.page, 0) +
                             "\" stands in the page for everybody to read");
}

void findSize(const Checked &checked, const Report &report)
{
    if (const std::size_t bytes = serialisePage(checked.page).size(); bytes > fileLimit)
        report(noObject, std::to_string(bytes) + " bytes are more than the " + std::to_string(fileLimit) +
                             " of a file: the page cannot be saved");
}

void findUnknownKinds(const Checked &checked, const Report &report)
{
    for (std::int16_t i = 0; i < objectCount(checked.page); ++i)
        if (!kindOf(recordAt(checked.page, i).kind))
            report(i, "no kind has the number " + std::to_string(recordAt(checked.page, i).kind));
}

} // namespace corvanta
