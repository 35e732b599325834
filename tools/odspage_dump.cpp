#include "document/encoding.h"
#include "document/object_file.h"
#include "document/page_damage.h"
#include "document/page_file.h"
#include "platform/text.h"
#include "tools/odspage_commands.h"
#include "json/page.h"

#include <memory>

namespace corvanta {

namespace {

// What a file holds, and the bytes that saving it would give.
struct Reading {
    Json json;
    std::string saved;
    std::int16_t version = currentVersion;
    PageDamage damage = {};
};

// By the name; where that does not tell, by the first value: an object file starts with a small version, a
// page file with the length of its header.
bool isObjectFile(const std::string &file, std::string_view bytes)
{
    const std::string extension = std::filesystem::path(file).extension().string();
    if (sameText(extension, ".hdo"))
        return true;
    return !sameText(extension, ".ods") && decodeInt16(bytes) <= currentVersion;
}

Reading readPageFile(std::string_view bytes)
{
    Page p;
    parsePage(p, bytes);
    return {pageJson(p), serialisePage(p), p.pgversion, damageOf(bytes)};
}

Reading readObjectFile(std::string_view bytes)
{
    Page p;
    std::string_view front = bytes;
    const std::int16_t version = decodeInt16(front);
    appendObjectFile(p, bytes);
    return {objectFileJson(p, version), objectFileText(p, 0), version};
}

void warnOfChange(ToolRun &run, const std::string &file, const Reading &reading)
{
    if (reading.saved.size() > fileLimit)
        complain(run, file,
                 "warning: saving would be refused: " + std::to_string(reading.saved.size()) +
                     " bytes are more than the " + std::to_string(fileLimit) + " of a file");
    else
        complain(run, file, "warning: saving would change this file");
    for (const std::string &line : reading.damage.lines)
        complain(run, file, "warning: " + line);
    if (reading.version != currentVersion)
        complain(run, file,
                 "warning: its format version is " + std::to_string(reading.version) + ", saved as " +
                     std::to_string(currentVersion));
}

int dump(ToolRun &run, const std::string &file)
{
    const std::string bytes = readInput(run, file);
    if (bytes.empty())
        return 1;
    const Reading reading = isObjectFile(file, bytes) ? readObjectFile(bytes) : readPageFile(bytes);
    run.out << printJson(reading.json);
    if (reading.saved != bytes)
        warnOfChange(run, file, reading);
    return 0;
}

} // namespace

void addDumpCommand(CLI::App &app, ToolRun &run)
{
    CLI::App *command = app.add_subcommand("dump", "Print a page file or an object file as JSON");
    const auto file = std::make_shared<std::string>();
    command->add_option("FILE", *file, "page file (.ods) or object file (.hdo); \"-\" is the standard input")
        ->required();
    command->callback([&run, file] { run.exitCode = dump(run, *file); });
}

} // namespace corvanta
