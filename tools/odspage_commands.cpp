#include "tools/odspage_commands.h"

#include "document/page.h"
#include "document/reading_failure.h"
#include "platform/codepage.h"
#include "platform/host_files.h"

#include <CLI/Config.hpp>
#include <CLI/Formatter.hpp>

namespace corvanta {

namespace {

using AddCommand = void (*)(CLI::App &app, ToolRun &run);

constexpr AddCommand commands[] = {
    addDumpCommand, addBuildCommand, addSqlCommand, addHtmlCommand, addPreviewCommand,
};

constexpr int usualCodePage = 1252, wrongUsage = 2;

void useCodePage(int number)
{
    if (!setCodePage(number))
        throw CLI::ValidationError("--codepage", "unknown code page " + std::to_string(number));
}

} // namespace

void complain(ToolRun &run, std::string_view file, std::string_view text)
{
    run.err << "odspage: " << file << ": " << text << '\n';
}

std::string readInput(ToolRun &run, const std::string &file)
{
    FileContent content = readHostFile(file, fileLimit);
    const std::string failure = readingFailure(content);
    if (failure.empty())
        return std::move(content.bytes);
    complain(run, file, failure);
    return {};
}

int runOdspage(int argc, const char *const *argv, std::ostream &out, std::ostream &err)
{
    ToolRun run{out, err};
    CLI::App app("Page files and object files of the Corvanta Form Editor, without a display.", "odspage");
    app.require_subcommand(1);
    useCodePage(usualCodePage);
    app.add_option_function<int>(
        "--codepage",
        [&run](int number) {
            useCodePage(number);
            run.codePageGiven = true;
        },
        "code page of the texts in the files: 874 or 1250 to 1258 (default 1252; for html and preview that of the "
        "language)");
    for (const AddCommand add : commands)
        add(app, run);
    for (CLI::App *command : app.get_subcommands({}))
        command->fallthrough();
    try {
        app.parse(argc, argv);
    } catch (const CLI::ParseError &error) {
        return app.exit(error, out, err) == 0 ? 0 : wrongUsage;
    }
    return run.exitCode;
}

} // namespace corvanta
