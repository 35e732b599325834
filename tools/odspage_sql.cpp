#include "database/sql.h"
#include "document/page_file.h"
#include "platform/codepage.h"
#include "platform/text.h"
#include "tools/odspage_commands.h"

#include <memory>

namespace corvanta {

namespace {

int generate(ToolRun &run, const std::string &file)
{
    const std::string bytes = readPageInput(run, file);
    if (bytes.empty())
        return 1;
    Page p;
    parsePage(p, bytes);
    const SqlText statement = GenerateSelect(p, trimmed(p.SelectStmt));
    if (!statement.error.empty()) {
        complain(run, file, toUtf8(statement.error));
        return 1;
    }
    run.out << toUtf8(statement.text) << '\n';
    return 0;
}

} // namespace

void addSqlCommand(CLI::App &app, ToolRun &run)
{
    CLI::App *command = app.add_subcommand("sql", "Print the SELECT statement that \"Generate\" gives for a page");
    const auto file = std::make_shared<std::string>();
    command->add_option("FILE", *file, "page file (.ods)")->required();
    command->callback([&run, file] { run.exitCode = generate(run, *file); });
}

} // namespace corvanta
