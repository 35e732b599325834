#include "platform/codepage.h"
#include "tools/odspage_commands.h"
#include "json/page.h"

#include <memory>

namespace corvanta {

namespace {

// Far more than the JSON of the largest page takes.
constexpr std::uintmax_t jsonLimit = 32 << 20;

struct BuildArguments {
    std::string input, output;
};

std::string readJsonFile(ToolRun &run, const std::string &file)
{
    FileContent content = readFileOrPipe(run, file, jsonLimit);
    if (content.missing)
        throw std::runtime_error("no such file");
    if (content.tooLarge)
        throw std::runtime_error("more than " + std::to_string(jsonLimit) + " bytes");
    if (!content.error.empty())
        throw std::runtime_error(toUtf8(content.error));
    return std::move(content.bytes);
}

int build(ToolRun &run, const BuildArguments &arguments)
{
    std::string bytes;
    try {
        bytes = fileFromJson(parseJson(readJsonFile(run, arguments.input)));
    } catch (const std::runtime_error &error) {
        complain(run, arguments.input, error.what());
        return 1;
    }
    if (arguments.output.empty()) {
        complain(run, "OUT", "no file name");
        return 1;
    }
    if (const std::string error = writeFileOrPipe(run, arguments.output, bytes); !error.empty()) {
        complain(run, arguments.output, error);
        return 1;
    }
    return 0;
}

} // namespace

void addBuildCommand(CLI::App &app, ToolRun &run)
{
    CLI::App *command = app.add_subcommand("build", "Write the page file or object file that a JSON text describes");
    const auto arguments = std::make_shared<BuildArguments>();
    command->add_option("FILE.json", arguments->input, "JSON as dump prints it; \"-\" is the standard input")
        ->required();
    command->add_option("OUT", arguments->output, "file to write; \"-\" is the standard output")->required();
    command->callback([&run, arguments] { run.exitCode = build(run, *arguments); });
}

} // namespace corvanta
