#include "document/tablist.h"
#include "platform/codepage.h"
#include "platform/text.h"
#include "tools/odspage_check.h"
#include "tools/odspage_pages.h"

#include <memory>

namespace corvanta {

namespace {

struct UsesArguments {
    std::string name, folder;
};

void tell(ToolRun &run, const std::string &folder, const PageOfFolder &page, std::int16_t object)
{
    run.out << (std::filesystem::path(folder) / page.file).string();
    if (object != noObject)
        run.out << ": object " << object << " (" << oneLine(toUtf8(objectTitle(page.page, object))) << ")";
    run.out << '\n';
}

// A page by its name with or without the extension, a picture, sound or text file by its whole name.
int uses(ToolRun &run, const UsesArguments &arguments)
{
    const std::string media = fromUtf8Lossy(arguments.name), name = pageNameArgument(run, arguments.name);
    if (name.empty())
        return 1;
    for (const PageOfFolder &page : readPages(run, arguments.folder)) {
        const Page &p = page.page;
        if (sameText(trimmed(p.bkgfile), media) || sameText(trimmed(p.sndfn), media))
            tell(run, arguments.folder, page, noObject);
        const std::vector<PageLink> links = pageLinks(p);
        for (std::int16_t i = 0; i < objectCount(p); ++i) {
            const std::string &files = p.objects[static_cast<std::size_t>(i)].srcfile;
            bool used = false;
            for (const PageLink &link : links)
                used = used || (link.object == i && sameText(link.page, name));
            for (int n = 0; n < fieldCount(files) && !used; ++n)
                used = sameText(trimmed(fieldAt(files, n)), media);
            if (used)
                tell(run, arguments.folder, page, i);
        }
    }
    return run.exitCode;
}

} // namespace

void addUsesCommand(CLI::App &app, ToolRun &run)
{
    CLI::App *command = app.add_subcommand("uses", "List the objects that lead to a page or show a file");
    const auto arguments = std::make_shared<UsesArguments>();
    command->add_option("NAME", arguments->name, "a page, or a picture, sound or text file")->required();
    command->add_option("DIR", arguments->folder, "directory of pages")->required()->check(CLI::ExistingDirectory);
    command->callback([&run, arguments] { run.exitCode = uses(run, *arguments); });
}

} // namespace corvanta
