#include "tools/odspage_pages.h"

#include "check/folder.h"
#include "document/media.h"
#include "document/page_file.h"
#include "document/reading_failure.h"
#include "platform/host_files.h"

namespace corvanta {

std::vector<PageOfFolder> readPages(ToolRun &run, const std::string &folder)
{
    std::vector<PageOfFolder> pages;
    const CheckFolder names(folder);
    for (const std::string &name : names.pageFiles()) {
        const std::filesystem::path file = std::filesystem::path(folder) / name;
        FileContent content = readHostFile(file, fileLimit);
        if (const std::string failure = pageFailure(content); !failure.empty()) {
            complain(run, file.string(), failure);
            run.exitCode = 1;
            continue;
        }
        PageOfFolder &read = pages.emplace_back();
        read.file = name;
        parsePage(read.page, content.bytes);
        read.whole = serialisePage(read.page) == content.bytes;
        read.bytes = std::move(content.bytes);
    }
    if (pages.empty() && run.exitCode == 0) {
        complain(run, folder, "no page files");
        run.exitCode = 1;
    }
    return pages;
}

std::string pageNameArgument(ToolRun &run, const std::string &name)
{
    constexpr std::size_t extension = 4;
    const std::string_view stem =
        std::string_view(name).substr(0, name.size() - (isPageFileName(name) ? extension : 0));
    const auto bytes = fromUtf8(stem);
    if (bytes && !bytes->empty() && bytes->find_first_of("/@") == std::string::npos && plainFileName(*bytes))
        return *bytes;
    complain(run, name, "not the name of a page");
    return {};
}

} // namespace corvanta
