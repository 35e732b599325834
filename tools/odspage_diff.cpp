#include "compare/compare.h"
#include "document/page_file.h"
#include "document/reading_failure.h"
#include "platform/host_files.h"
#include "tools/odspage_commands.h"
#include "json/values.h"

#include <memory>
#include <optional>

namespace corvanta {

namespace {

struct DiffArguments {
    std::string before, after;
    bool json = false;
};

struct MergeArguments {
    std::string base, ours, theirs, output;
};

// An empty file, as version control shows one that was not there yet, is an empty page.
std::optional<Page> readPage(ToolRun &run, const std::string &file, bool emptyToo)
{
    const FileContent content = readFileOrPipe(run, file, fileLimit);
    const bool empty = content.error.empty() && !content.missing && !content.tooLarge && content.bytes.empty();
    if (const std::string failure = pageFailure(content); !failure.empty() && !(emptyToo && empty)) {
        complain(run, file, failure);
        return std::nullopt;
    }
    std::optional<Page> p(std::in_place);
    parsePage(*p, content.bytes);
    return p;
}

const char *verbOf(Difference::What what)
{
    switch (what) {
    case Difference::What::Added: return "added";
    case Difference::What::Removed: return "removed";
    case Difference::What::Changed: return "changed";
    case Difference::What::Reordered: return "reordered";
    }
    return "";
}

void printText(ToolRun &run, const std::vector<Difference> &found)
{
    for (const Difference &difference : found) {
        if (difference.what != Difference::What::Changed)
            run.out << oneLine(toUtf8(difference.title)) << ": " << verbOf(difference.what) << '\n';
        for (const FieldChange &change : difference.changes)
            run.out << oneLine(toUtf8(difference.title)) << ": " << change.field << " "
                    << oneLine(toUtf8(change.from == change.to ? "changed" : change.from + " -> " + change.to)) << '\n';
    }
}

void printAsJson(ToolRun &run, const std::vector<Difference> &found)
{
    Json list = Json::array();
    for (const Difference &difference : found) {
        Json item{{"what", verbOf(difference.what)}, {"title", toUtf8(difference.title)}};
        for (const FieldChange &change : difference.changes)
            item["changes"].push_back(
                {{"field", change.field}, {"from", toUtf8(change.from)}, {"to", toUtf8(change.to)}});
        list.push_back(std::move(item));
    }
    run.out << printJson(list);
}

int diff(ToolRun &run, const DiffArguments &arguments)
{
    const auto before = readPage(run, arguments.before, true), after = readPage(run, arguments.after, true);
    if (!before || !after)
        return 1;
    (arguments.json ? printAsJson : printText)(run, differences(*before, *after));
    return 0;
}

int merge(ToolRun &run, const MergeArguments &arguments)
{
    const auto base = readPage(run, arguments.base, true), ours = readPage(run, arguments.ours, true),
               theirs = readPage(run, arguments.theirs, true);
    if (!base || !ours || !theirs)
        return 1;
    const Merge result = merged(*base, *ours, *theirs);
    const std::string &output = arguments.output.empty() ? arguments.ours : arguments.output;
    if (const std::string error = writeFileOrPipe(run, output, serialisePage(result.page)); !error.empty()) {
        complain(run, output, error);
        return 1;
    }
    for (const std::string &conflict : result.conflicts)
        complain(run, "conflict", oneLine(toUtf8(conflict)));
    return result.conflicts.empty() ? 0 : 1;
}

} // namespace

void addDiffCommand(CLI::App &app, ToolRun &run)
{
    CLI::App *command = app.add_subcommand("diff", "Tell what differs between two pages, in the words of the editor");
    const auto arguments = std::make_shared<DiffArguments>();
    command->add_option("A", arguments->before, "page file")->required();
    command->add_option("B", arguments->after, "page file")->required();
    command->add_flag("--json", arguments->json, "print the differences as JSON");
    command->callback([&run, arguments] { run.exitCode = diff(run, *arguments); });
}

void addMergeCommand(CLI::App &app, ToolRun &run)
{
    CLI::App *command = app.add_subcommand(
        "merge", "Put two sides' changes of one page together; conflicts are listed, left as in OURS, and exit code 1");
    const auto arguments = std::make_shared<MergeArguments>();
    command->add_option("BASE", arguments->base, "the page that both come from; may be empty")->required();
    command->add_option("OURS", arguments->ours, "page file")->required();
    command->add_option("THEIRS", arguments->theirs, "page file")->required();
    command->add_option("OUT", arguments->output, "the page to write; by default OURS");
    command->callback([&run, arguments] { run.exitCode = merge(run, *arguments); });
}

} // namespace corvanta
