#pragma once

#include "tools/json_page.h"
#include "tools/odspage_commands.h"

#include <filesystem>
#include <fstream>
#include <iterator>
#include <sstream>
#include <string>
#include <unistd.h>
#include <vector>

namespace corvanta {

inline std::filesystem::path samplePath(const std::string &name)
{
    return std::filesystem::path(CORVANTA_TEST_DATA) / "pages" / name;
}

inline std::string contentOf(const std::filesystem::path &path)
{
    std::ifstream file(path, std::ios::binary);
    return {std::istreambuf_iterator<char>(file), {}};
}

inline std::string sample(const std::string &name) { return contentOf(samplePath(name)); }

// A folder of the test's own, gone at its end.
class ScratchFolder {
public:
    ScratchFolder()
    {
        std::string name = (std::filesystem::temp_directory_path() / "odspage-XXXXXX").string();
        folder = mkdtemp(name.data());
    }
    ~ScratchFolder() { std::filesystem::remove_all(folder); }
    std::string path(const std::string &name) const { return (folder / name).string(); }
    std::string write(const std::string &name, const std::string &bytes) const
    {
        std::ofstream(path(name), std::ios::binary) << bytes;
        return path(name);
    }

private:
    std::filesystem::path folder;
};

struct ToolResult {
    int exitCode = 0;
    std::string out, err;
};

inline ToolResult odspage(std::vector<std::string> arguments)
{
    arguments.insert(arguments.begin(), "odspage");
    std::vector<const char *> argv;
    for (const std::string &argument : arguments)
        argv.push_back(argument.c_str());
    std::ostringstream out, err;
    const int exitCode = runOdspage(static_cast<int>(argv.size()), argv.data(), out, err);
    return {exitCode, out.str(), err.str()};
}

} // namespace corvanta
