#include "platform/codepage.h"
#include "tools/odspage_check.h"
#include "json/values.h"

#include <algorithm>
#include <cctype>
#include <map>

namespace corvanta {

namespace {

// A relative or absolute path as a URI reference.
std::string uriOf(const std::string &path)
{
    constexpr char digits[] = "0123456789ABCDEF";
    std::string uri = path.starts_with('/') ? "file://" : "";
    for (const char c : path) {
        const auto byte = static_cast<unsigned char>(c);
        if (std::isalnum(byte) != 0 || std::string_view("/-._~").find(c) != std::string_view::npos)
            uri += c;
        else
            uri.append({'%', digits[byte >> 4], digits[byte & 15]});
    }
    return uri;
}

// Host names may be any bytes; JSON is UTF-8.
std::string printable(const std::string &name) { return utf8FromUtf16(utf16FromUtf8(name)); }

Json sarifRules()
{
    const std::map<std::string, std::string> others{
        {damagedRule, "A file cannot be read, or saving it would change it"},
        {unreachableRule, "No action leads to a page"},
        {databaseRule, "A data source refuses a statement, or has no such table or column"}};
    Json rules = Json::array();
    for (const auto &[name, summary] : others)
        rules.push_back({{"id", name}, {"shortDescription", {{"text", summary}}}});
    for (const CheckRule &rule : checkRules())
        rules.push_back({{"id", rule.name}, {"shortDescription", {{"text", rule.summary}}}});
    return rules;
}

Json sarifResult(const FileFinding &found)
{
    Json location;
    location["physicalLocation"]["artifactLocation"]["uri"] = uriOf(found.file);
    if (found.finding.object != noObject)
        location["logicalLocations"] =
            Json::array({{{"name", toUtf8(found.title)},
                          {"fullyQualifiedName", "objects/" + std::to_string(found.finding.object)}}});
    return {{"ruleId", found.finding.rule},
            {"level", "warning"},
            {"message", {{"text", toUtf8(found.finding.text)}}},
            {"locations", Json::array({location})}};
}

} // namespace

void printFindings(ToolRun &run, const std::vector<FileFinding> &findings)
{
    for (const FileFinding &found : findings) {
        run.out << found.file << ": ";
        if (found.finding.object != noObject)
            run.out << "object " << found.finding.object << " (" << oneLine(toUtf8(found.title)) << "): ";
        run.out << found.finding.rule << ": " << oneLine(toUtf8(found.finding.text)) << '\n';
    }
}

void printFindingsAsJson(ToolRun &run, const std::vector<FileFinding> &findings)
{
    Json list = Json::array();
    for (const FileFinding &found : findings) {
        Json item{{"file", printable(found.file)}};
        if (found.finding.object != noObject) {
            item["object"] = found.finding.object;
            item["title"] = toUtf8(found.title);
        }
        item["rule"] = found.finding.rule;
        item["text"] = toUtf8(found.finding.text);
        list.push_back(std::move(item));
    }
    run.out << printJson(list);
}

void printFindingsAsSarif(ToolRun &run, const std::vector<FileFinding> &findings)
{
    Json results = Json::array();
    for (const FileFinding &found : findings)
        results.push_back(sarifResult(found));
    const Json driver{{"name", "odspage"}, {"version", CORVANTA_VERSION}, {"rules", sarifRules()}};
    run.out << printJson({{"$schema", "https://json.schemastore.org/sarif-2.1.0.json"},
                          {"version", "2.1.0"},
                          {"runs", Json::array({{{"tool", {{"driver", driver}}}, {"results", results}}})}});
}

} // namespace corvanta
