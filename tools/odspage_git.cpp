#include "platform/codepage.h"
#include "platform/host_files.h"
#include "tools/odspage_commands.h"

#include <CLI/Validators.hpp>

#include <memory>
#include <spawn.h>
#include <sys/wait.h>
#include <vector>

extern char **environ;

namespace corvanta {

namespace {

constexpr std::uintmax_t attributesLimit = 1 << 20; // bytes
constexpr const char *attributeLines[] = {"*.ods diff=odspage merge=odspage", "*.hdo diff=odspage -merge"};
constexpr std::pair<const char *, const char *> settings[] = {
    {"diff.odspage.textconv", "odspage dump"},
    {"merge.odspage.name", "page files"},
    {"merge.odspage.driver", "odspage merge %O %A %B"},
};

bool runGit(const std::string &folder, const char *name, const char *value)
{
    const char *const arguments[] = {"git", "-C", folder.c_str(), "config", name, value, nullptr};
    pid_t child = 0;
    int status = 0;
    if (posix_spawnp(&child, "git", nullptr, nullptr, const_cast<char *const *>(arguments), environ) != 0)
        return false;
    return waitpid(child, &status, 0) == child && WIFEXITED(status) && WEXITSTATUS(status) == 0;
}

bool hasLine(const std::string &text, const std::string &line)
{
    return ("\n" + text + "\n").find("\n" + line + "\n") != std::string::npos;
}

// The lines are added behind what is there.
std::string addAttributes(const std::filesystem::path &file)
{
    const FileContent content = readHostFile(file, attributesLimit);
    if (content.tooLarge || (!content.missing && !content.error.empty()))
        return content.tooLarge ? "too large" : toUtf8(content.error);
    std::string text = content.bytes;
    for (const char *line : attributeLines)
        if (!hasLine(text, line))
            text.append(text.empty() || text.ends_with('\n') ? "" : "\n").append(line).append("\n");
    if (text == content.bytes)
        return {};
    const auto error = writeHostFileAtomically(file, text);
    return error ? toUtf8(*error) : std::string();
}

int setUp(ToolRun &run, const std::string &folder)
{
    for (const auto &[name, value] : settings)
        if (!runGit(folder, name, value)) {
            complain(run, folder, "git could not be set up here");
            return 1;
        }
    const auto file = std::filesystem::absolute(folder) / ".gitattributes";
    if (const std::string error = addAttributes(file); !error.empty()) {
        complain(run, file.string(), error);
        return 1;
    }
    return 0;
}

} // namespace

void addGitSetupCommand(CLI::App &app, ToolRun &run)
{
    CLI::App *command = app.add_subcommand(
        "git-setup",
        "Make git show and merge page files, in the repository of a directory; odspage must be in the PATH");
    const auto folder = std::make_shared<std::string>(".");
    command->add_option("DIR", *folder, "directory of pages")->capture_default_str()->check(CLI::ExistingDirectory);
    command->callback([&run, folder] { run.exitCode = setUp(run, *folder); });
}

} // namespace corvanta
