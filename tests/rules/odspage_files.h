#pragma once

#include "tests/support/samples.h"
#include "tools/odspage_commands.h"
#include "json/page.h"

#include <sstream>

namespace corvanta {

using samples::sample;

inline std::string samplePath(const std::string &name) { return samples::folder() / name; }

// A folder of the test's own, gone at its end.
class ScratchFolder {
public:
    std::string path(const std::string &name) const { return drive.root() / name; }
    std::string write(const std::string &name, const std::string &bytes) const { return drive.add(name, bytes); }

private:
    TemporaryDrive drive;
};

struct ToolResult {
    int exitCode = 0;
    std::string out, err;
};

inline ToolResult odspage(std::vector<std::string> arguments, const std::string &input = {})
{
    arguments.insert(arguments.begin(), "odspage");
    std::vector<const char *> argv;
    for (const std::string &argument : arguments)
        argv.push_back(argument.c_str());
    std::ostringstream out, err;
    std::istringstream in(input);
    const int exitCode = runOdspage(static_cast<int>(argv.size()), argv.data(), out, err, in);
    return {exitCode, out.str(), err.str()};
}

} // namespace corvanta
