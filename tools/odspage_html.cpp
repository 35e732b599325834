#include "converter/ods2hts.h"
#include "platform/codepage.h"
#include "platform/paths.h"
#include "tools/odspage_commands.h"

#include <memory>
#include <vector>

namespace corvanta {

namespace {

bool convert(ToolRun &run, const std::string &file)
{
    const std::string path = drivePath(file);
    const bool written = !path.empty() && ConvertOdsHts(path.c_str()) != 0;
    if (!written)
        complain(run, file, "error converting");
    return written;
}

} // namespace

void addHtmlCommand(CLI::App &app, ToolRun &run)
{
    CLI::App *command = app.add_subcommand("html", "Write the HTML template of each page file beside it");
    const auto files = std::make_shared<std::vector<std::string>>();
    command->add_option("FILE", *files, "page files (.ods)")->required();
    command->callback([&run, files] {
        if (!run.codePageGiven)
            setCodePage(codePageOfEnvironment());
        for (const std::string &file : *files)
            if (!convert(run, file))
                run.exitCode = 1;
    });
}

} // namespace corvanta
