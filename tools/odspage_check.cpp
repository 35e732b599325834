#include "tools/odspage_check.h"

#include "check/page_map.h"
#include "document/page_file.h"
#include "document/reading_failure.h"
#include "platform/host_files.h"
#include "platform/text.h"
#include "tools/odspage_check_database.h"

#include <CLI/Validators.hpp>

#include <algorithm>
#include <iterator>
#include <memory>

namespace corvanta {

namespace {

namespace fs = std::filesystem;

struct CheckArguments {
    std::vector<std::string> paths, only, ignored;
    bool json = false, sarif = false, sizes = false, fix = false, database = false;
};

struct Checking {
    ToolRun &run;
    const CheckArguments &arguments;
    CheckSettings settings;
    DatabaseCheck databases;
    std::vector<FileFinding> findings;

    void add(const std::string &file, Finding finding, std::string title = {})
    {
        findings.push_back({file, std::move(finding), std::move(title)});
    }
};

void printSizes(ToolRun &run, const std::string &file, const Page &p)
{
    const std::size_t all = serialisePage(p).size();
    run.out << file << ": " << all << " of " << fileLimit << " bytes\n";
    for (std::int16_t i = 0; i < objectCount(p); ++i)
        run.out << file << ": object " << i << " (" << toUtf8(objectTitle(p, i))
                << "): " << serialiseObject(p, i).size() << " bytes\n";
}

// Mends the page of an undamaged file and writes it.
void fix(Checking &checking, const std::string &file, const std::string &bytes, Page &p, const CheckFolder &folder)
{
    const RuleChoice choice = checking.settings.choiceFor(file);
    Page mended;
    parsePage(mended, bytes);
    if (!fixPage(mended, &folder, [&](std::string_view rule) { return choice.leavesOut(rule); }))
        return;
    const std::string now = serialisePage(mended);
    if (const auto error = now.size() > fileLimit ? std::optional<std::string>("the page would be too large")
                                                  : writeHostFileAtomically(fs::absolute(file), now)) {
        complain(checking.run, file, toUtf8(*error));
        checking.run.exitCode = 1;
        return;
    }
    p = std::move(mended);
}

void checkLoaded(Checking &checking, const std::string &file, const Page &p, const CheckFolder &folder,
                 const RuleChoice &choice)
{
    std::vector<Finding> found = checkPage({p, &folder}, [&](std::string_view rule) { return choice.leavesOut(rule); });
    if (checking.arguments.database && !choice.leavesOut(databaseRule))
        std::ranges::move(checking.databases.check(file, p), std::back_inserter(found));
    for (Finding &finding : found) {
        const std::int16_t object = finding.object;
        checking.add(file, std::move(finding), object == noObject ? std::string() : objectTitle(p, object));
    }
}

// The page when the file holds one.
std::optional<Page> checkFile(Checking &checking, const std::string &file, const CheckFolder &folder)
{
    const RuleChoice choice = checking.settings.choiceFor(file);
    const FileContent content = readHostFile(file, fileLimit);
    if (const std::string failure = pageFailure(content); !failure.empty()) {
        if (!choice.leavesOut(damagedRule))
            checking.add(file, {noObject, damagedRule, fromUtf8Lossy(failure)});
        return std::nullopt;
    }
    std::optional<Page> p(std::in_place);
    parsePage(*p, content.bytes);
    const bool whole = serialisePage(*p) == content.bytes;
    if (!whole && p->pgversion == currentVersion) { // what else would be found says nothing
        if (!choice.leavesOut(damagedRule))
            checking.add(file, {noObject, damagedRule, "the bytes end too early, or saving would change them"});
        return p;
    }
    if (checking.arguments.fix && whole)
        fix(checking, file, content.bytes, *p, folder);
    if (checking.arguments.sizes)
        printSizes(checking.run, file, *p);
    checkLoaded(checking, file, *p, folder, choice);
    return p;
}

void checkFolder(Checking &checking, const std::string &path)
{
    const CheckFolder folder(path);
    if (folder.pageFiles().empty()) {
        complain(checking.run, path, "no page files");
        checking.run.exitCode = 1;
    }
    PageMap map;
    for (const std::string &name : folder.pageFiles())
        if (const auto p = checkFile(checking, (fs::path(path) / name).string(), folder))
            map.add(name, *p);
    for (const std::string &name : map.unreachable()) {
        const std::string file = (fs::path(path) / name).string();
        if (!checking.settings.choiceFor(file).leavesOut(unreachableRule))
            checking.add(file, {noObject, unreachableRule, "no action leads here from page \"" + map.start() + "\""});
    }
}

int check(ToolRun &run, const CheckArguments &arguments)
{
    const RuleChoice choice{{arguments.only.begin(), arguments.only.end()},
                            {arguments.ignored.begin(), arguments.ignored.end()}};
    Checking checking{run, arguments, CheckSettings(run, choice), DatabaseCheck(run), {}};
    for (const std::string &path : arguments.paths) {
        std::error_code error;
        if (fs::is_directory(path, error))
            checkFolder(checking, path);
        else
            checkFile(checking, path, CheckFolder(fs::absolute(path).parent_path()));
    }
    if (arguments.json)
        printFindingsAsJson(run, checking.findings);
    else if (arguments.sarif)
        printFindingsAsSarif(run, checking.findings);
    else
        printFindings(run, checking.findings);
    return checking.findings.empty() ? run.exitCode : 1;
}

} // namespace

std::vector<std::string> ruleNames()
{
    std::vector<std::string> names{damagedRule, unreachableRule, databaseRule};
    for (const CheckRule &rule : checkRules())
        names.emplace_back(rule.name);
    return names;
}

void addCheckCommand(CLI::App &app, ToolRun &run)
{
    CLI::App *command = app.add_subcommand("check", "Tell the faults of pages; exit code 1 when there are any");
    const auto arguments = std::make_shared<CheckArguments>();
    command->add_option("FILE", arguments->paths, "page files (.ods), or directories of them")->required();
    CLI::Option *json = command->add_flag("--json", arguments->json, "print the findings as JSON");
    CLI::Option *sarif = command->add_flag("--sarif", arguments->sarif, "print the findings as SARIF 2.1.0");
    sarif->excludes(json);
    command->add_option("--rule", arguments->only, "tell this rule's findings only; may stand several times")
        ->check(CLI::IsMember(ruleNames()))
        ->allow_extra_args(false);
    command->add_option("--ignore", arguments->ignored, "leave this rule's findings out; may stand several times")
        ->check(CLI::IsMember(ruleNames()))
        ->allow_extra_args(false);
    command->add_flag("--size", arguments->sizes, "print the bytes that each object takes")
        ->excludes(json)
        ->excludes(sarif);
    command->add_flag(
        "--database", arguments->database,
        "ask the pages' data sources, too, whether they take the statements and have the tables and columns");
    command->add_flag("--fix", arguments->fix, "mend what is safe: the case of names, and the tab order");
    command->callback([&run, arguments] { run.exitCode = check(run, *arguments); });
}

} // namespace corvanta
