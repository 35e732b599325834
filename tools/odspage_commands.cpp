#include "tools/odspage_commands.h"

#include "document/page_file.h"
#include "document/reading_failure.h"
#include "platform/codepage.h"
#include "platform/host_files.h"

#include <CLI/Config.hpp>
#include <CLI/Formatter.hpp>

#include <algorithm>
#include <array>
#include <fstream>

namespace corvanta {

namespace {

using AddCommand = void (*)(CLI::App &app, ToolRun &run);

constexpr AddCommand commands[] = {
    addDumpCommand,  addBuildCommand,    addSqlCommand,    addHtmlCommand, addCheckCommand, addDiffCommand,
    addMergeCommand, addGitSetupCommand, addRenameCommand, addUsesCommand, addGraphCommand, addPreviewCommand,
};

constexpr int usualCodePage = 1252, wrongUsage = 2;
constexpr const char *notWritten = "could not be written";

void useCodePage(int number)
{
    if (!setCodePage(number))
        throw CLI::ValidationError("--codepage", "unknown code page " + std::to_string(number));
}

// A pipe or a device: read and written as it is. A block device is neither.
bool isStream(const std::filesystem::path &file)
{
    std::error_code error;
    const std::filesystem::file_type type = std::filesystem::status(file, error).type();
    return type == std::filesystem::file_type::fifo || type == std::filesystem::file_type::character;
}

FileContent readStream(std::istream &stream, std::uintmax_t limit)
{
    FileContent content;
    std::array<char, 65536> chunk;
    while (stream && content.bytes.size() <= limit) {
        stream.read(chunk.data(), chunk.size());
        content.bytes.append(chunk.data(), static_cast<std::size_t>(stream.gcount()));
    }
    content.length = content.bytes.size();
    content.tooLarge = content.length > limit;
    if (content.tooLarge)
        content.bytes.clear();
    else if (!stream.eof())
        content.error = "could not be read";
    return content;
}

std::string writeStream(std::ostream &stream, std::string_view bytes)
{
    stream.write(bytes.data(), static_cast<std::streamsize>(bytes.size())).flush();
    return stream ? "" : notWritten;
}

} // namespace

void complain(ToolRun &run, std::string_view file, std::string_view text)
{
    run.err << "odspage: " << file << ": " << text << '\n';
}

std::string oneLine(std::string text)
{
    std::replace_if(
        text.begin(), text.end(), [](char c) { return static_cast<unsigned char>(c) < ' ' || c == 127; }, ' ');
    return text;
}

std::string readInput(ToolRun &run, const std::string &file)
{
    FileContent content = readFileOrPipe(run, file, fileLimit);
    const std::string failure = readingFailure(content);
    if (failure.empty())
        return std::move(content.bytes);
    complain(run, file, failure);
    return {};
}

std::string readPageInput(ToolRun &run, const std::string &file)
{
    FileContent content = readFileOrPipe(run, file, fileLimit);
    const std::string failure = pageFailure(content);
    if (failure.empty())
        return std::move(content.bytes);
    complain(run, file, failure);
    return {};
}

FileContent readFileOrPipe(ToolRun &run, const std::string &file, std::uintmax_t limit)
{
    if (file == "-")
        return readStream(run.in, limit);
    if (!isStream(file))
        return readHostFile(file, limit);
    std::ifstream pipe(file, std::ios::binary);
    return readStream(pipe, limit);
}

std::string writeFileOrPipe(ToolRun &run, const std::string &file, std::string_view bytes)
{
    if (file == "-")
        return writeStream(run.out, bytes);
    if (isStream(file)) {
        std::ofstream pipe(file, std::ios::binary);
        return writeStream(pipe, bytes);
    }
    Page p;
    if (isPageFile(bytes))
        parsePage(p, bytes);
    const FileMode mode = connectPart(p, 2).empty() ? FileMode::Usual : FileMode::Private; // a password
    const auto error = writeHostFileAtomically(std::filesystem::absolute(file), bytes, mode);
    return error ? toUtf8(*error) : std::string();
}

int runOdspage(int argc, const char *const *argv, std::ostream &out, std::ostream &err, std::istream &in)
{
    ToolRun run{out, err, in};
    CLI::App app("Page files and object files of the Corvanta Form Editor, without a display.", "odspage");
    app.require_subcommand(1);
    app.set_version_flag("--version", CORVANTA_VERSION);
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
        run.exitCode = app.exit(error, out, err) == 0 ? 0 : wrongUsage;
    }
    if (!out.flush()) {
        complain(run, "standard output", notWritten);
        return run.exitCode == 0 ? 1 : run.exitCode;
    }
    return run.exitCode;
}

} // namespace corvanta
