#pragma once

#include <CLI/App.hpp>

#include <ostream>
#include <string>
#include <string_view>

// The subcommands of odspage, one file each. Exit codes: 0 done, 1 refused or failed, 2 wrong usage.
namespace corvanta {

struct ToolRun {
    std::ostream &out, &err;
    int exitCode = 0;
    bool codePageGiven = false;
};

// Runs the command line; returns the exit code.
int runOdspage(int argc, const char *const *argv, std::ostream &out, std::ostream &err);

// One line on the error stream: "odspage: " and what is said.
void complain(ToolRun &run, std::string_view file, std::string_view text);

// The bytes of a page or object file by its host name; empty after a failure, which has been said.
std::string readInput(ToolRun &run, const std::string &file);

void addDumpCommand(CLI::App &app, ToolRun &run);
void addBuildCommand(CLI::App &app, ToolRun &run);
void addSqlCommand(CLI::App &app, ToolRun &run);
void addHtmlCommand(CLI::App &app, ToolRun &run);
void addPreviewCommand(CLI::App &app, ToolRun &run);

} // namespace corvanta
