#include "converter/convert.h"
#include "platform/codepage.h"
#include "platform/files.h"
#include "tools/standard_streams.h"

#include <CLI/CLI.hpp>

#include <string>
#include <vector>

namespace {

bool convert(const std::string &file)
{
    const std::string failure = corvanta::convertPageFile(file);
    if (!failure.empty())
        std::cerr << "ods2hts: Error converting " << file << ": " << failure << '\n';
    return failure.empty();
}

} // namespace

int main(int argc, char **argv)
{
    corvanta::takeFileErrorsAsErrors();
    corvanta::holdStandardStreams();
    CLI::App app("Writes the HTML template of each page file beside it, with the extension \"hts\".", "ods2hts");
    app.set_version_flag("--version", CORVANTA_VERSION);
    int codePage = 0;
    std::vector<std::string> files;
    app.add_option("--codepage", codePage, "Windows code page of the pages' texts; by default the language's");
    app.add_option("FILE", files, "Page files")->required();
    try {
        app.parse(argc, argv);
    } catch (const CLI::ParseError &error) {
        return corvanta::afterPrinting("ods2hts", app.exit(error));
    }

    if (!corvanta::setCodePage(codePage != 0 ? codePage : corvanta::codePageOfEnvironment())) {
        std::cerr << "ods2hts: unknown code page " << codePage << '\n';
        return 1;
    }
    bool all = true;
    for (const std::string &file : files)
        all = convert(file) && all;
    return all ? 0 : 1;
}
