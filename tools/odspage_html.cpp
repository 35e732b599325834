#include "converter/convert.h"
#include "platform/codepage.h"
#include "tools/odspage_commands.h"

#include <algorithm>
#include <cctype>
#include <memory>
#include <vector>

namespace corvanta {

namespace {

namespace fs = std::filesystem;

bool isPageName(const fs::path &name)
{
    std::string extension = name.extension().string();
    std::transform(extension.begin(), extension.end(), extension.begin(),
                   [](unsigned char c) { return static_cast<char>(std::tolower(c)); });
    return extension == ".ods";
}

// A file stands for itself, a directory for the page files in it.
std::vector<std::string> pageFiles(const std::string &path)
{
    std::error_code error;
    if (!fs::is_directory(path, error))
        return {path};
    std::vector<std::string> files;
    for (fs::directory_iterator entry(path, error); !error && entry != fs::directory_iterator(); entry.increment(error))
        if (isPageName(entry->path()))
            files.push_back(entry->path().string());
    std::sort(files.begin(), files.end());
    return files;
}

void convert(ToolRun &run, const std::string &path)
{
    const std::vector<std::string> files = pageFiles(path);
    if (files.empty()) {
        complain(run, path, "no page files");
        run.exitCode = 1;
    }
    for (const std::string &file : files)
        if (const std::string failure = convertPageFile(file); !failure.empty()) {
            complain(run, file, "error converting: " + failure);
            run.exitCode = 1;
        }
}

} // namespace

void addHtmlCommand(CLI::App &app, ToolRun &run)
{
    CLI::App *command = app.add_subcommand("html", "Write the HTML template of each page file beside it");
    const auto paths = std::make_shared<std::vector<std::string>>();
    command->add_option("FILE", *paths, "page files (.ods), or directories of them")->required();
    command->callback([&run, paths] {
        if (!run.codePageGiven)
            setCodePage(codePageOfEnvironment());
        for (const std::string &path : *paths)
            convert(run, path);
    });
}

} // namespace corvanta
