#include "actions/links.h"
#include "check/folder.h"
#include "document/page_file.h"
#include "platform/codepage.h"
#include "platform/folder_names.h"
#include "platform/host_files.h"
#include "platform/text.h"
#include "tools/odspage_pages.h"

#include <cerrno>
#include <fcntl.h>
#include <memory>
#include <system_error>

namespace corvanta {

namespace {

namespace fs = std::filesystem;

struct RenameArguments {
    std::string from, to, folder;
};

struct Change {
    fs::path file;
    std::string before, after;
};

// What stands in the way; empty when nothing does.
std::string obstacle(const PageOfFolder &page, const std::string &after)
{
    if (!page.whole && page.page.pgversion == currentVersion)
        return "is damaged: its links cannot be changed without changing more";
    return after.size() > fileLimit ? "would be too large with the new name" : "";
}

bool moveFile(const fs::path &from, const fs::path &to, std::string &error)
{
    if (renameat2(AT_FDCWD, from.c_str(), AT_FDCWD, to.c_str(), RENAME_NOREPLACE) == 0)
        return true;
    std::error_code failed;
    if (errno == EINVAL && !fs::exists(to, failed)) // a file system that cannot promise to replace nothing
        fs::rename(from, to, failed);
    else
        failed = {errno, std::system_category()};
    error = failed.message();
    return !failed;
}

// Writes all or, after a failure, puts back what was there.
std::string writeAll(const std::vector<Change> &changes)
{
    for (std::size_t i = 0; i < changes.size(); ++i) {
        const auto error = writeHostFileAtomically(changes[i].file, changes[i].after);
        if (!error)
            continue;
        std::string failure = changes[i].file.string() + ": " + toUtf8(*error);
        while (i-- > 0)
            if (writeHostFileAtomically(changes[i].file, changes[i].before))
                failure += "; " + changes[i].file.string() + " could not be put back";
        return failure;
    }
    return {};
}

int refuse(ToolRun &run, std::string_view file, std::string_view reason)
{
    complain(run, file, std::string(reason) + "; nothing was changed");
    return 1;
}

int renamePage(ToolRun &run, const RenameArguments &arguments)
{
    const std::string from = pageNameArgument(run, arguments.from), to = pageNameArgument(run, arguments.to);
    if (from.empty() || to.empty())
        return 1;
    const fs::path folder = fs::absolute(arguments.folder);
    std::vector<PageOfFolder> pages = readPages(run, folder.string());
    if (run.exitCode != 0)
        return refuse(run, arguments.folder, "not every page can be read");
    const fs::path file = findName(folder, from + ".ods"), target = folder / (toUtf8(to) + ".ods");
    const auto taken = CheckFolder(folder).spelling(to + ".ods");
    if (!fs::exists(file))
        return refuse(run, arguments.from, "there is no such page");
    if (taken && findName(folder, *taken) != file)
        return refuse(run, arguments.to, "this page is there already");
    // Hosts know pages by their names in capitals: a link that is written so stays so.
    const RenamePage renamed = [&](const std::string &name) {
        if (!sameText(name, from))
            return name;
        return name == upperCase(name) ? upperCase(to) : to;
    };
    std::vector<Change> changes;
    for (PageOfFolder &page : pages) {
        if (!renamePageLinks(page.page, renamed))
            continue;
        std::string after = serialisePage(page.page);
        if (const std::string reason = obstacle(page, after); !reason.empty())
            return refuse(run, page.file, reason);
        const fs::path own = folder / page.file;
        changes.push_back({own == file ? target : own, std::move(page.bytes), std::move(after)});
    }
    std::string error;
    if (file != target && !moveFile(file, target, error))
        return refuse(run, arguments.to, error);
    if (const std::string failure = writeAll(changes); !failure.empty()) {
        moveFile(target, file, error);
        return refuse(run, arguments.folder, failure);
    }
    for (const Change &change : changes)
        run.out << change.file.filename().string() << '\n';
    return 0;
}

} // namespace

void addRenameCommand(CLI::App &app, ToolRun &run)
{
    CLI::App *command = app.add_subcommand("rename", "Rename a page and change every link to it; all or nothing");
    const auto arguments = std::make_shared<RenameArguments>();
    command->add_option("OLD", arguments->from, "name of the page")->required();
    command->add_option("NEW", arguments->to, "its new name")->required();
    command->add_option("DIR", arguments->folder, "directory of pages")->required()->check(CLI::ExistingDirectory);
    command->callback([&run, arguments] { run.exitCode = renamePage(run, *arguments); });
}

} // namespace corvanta
