#pragma once

#include "platform/files.h"

#include <CLI/App.hpp>

#include <cstdint>
#include <iostream>
#include <stdexcept>
#include <string>
#include <string_view>

// The subcommands of odspage, one file each. Exit codes: 0 done, 1 refused or failed, 2 wrong usage.
namespace corvanta {

struct ToolRun {
    std::ostream &out, &err;
    std::istream &in = std::cin;
    int exitCode = 0;
    bool codePageGiven = false;
};

// Runs the command line; returns the exit code.
int runOdspage(int argc, const char *const *argv, std::ostream &out, std::ostream &err, std::istream &in = std::cin);

// One line on the error stream: "odspage: " and what is said.
void complain(ToolRun &run, std::string_view file, std::string_view text);

// A text in one line, whatever a page's texts hold.
std::string oneLine(std::string text);

// The bytes of a page or object file by its host name; empty after a failure, which has been said.
std::string readInput(ToolRun &run, const std::string &file);
// The same of a file that must be a page.
std::string readPageInput(ToolRun &run, const std::string &file);

// A file by its host name, a pipe, or "-" for the standard input, up to the limit.
FileContent readFileOrPipe(ToolRun &run, const std::string &file, std::uintmax_t limit);
// Writes a file as a whole; a pipe, a device and "-" for the standard output as they are. The error's description in
// UTF-8, empty on success.
std::string writeFileOrPipe(ToolRun &run, const std::string &file, std::string_view bytes);

void addDumpCommand(CLI::App &app, ToolRun &run);
void addBuildCommand(CLI::App &app, ToolRun &run);
void addSqlCommand(CLI::App &app, ToolRun &run);
void addHtmlCommand(CLI::App &app, ToolRun &run);
void addCheckCommand(CLI::App &app, ToolRun &run);
void addDiffCommand(CLI::App &app, ToolRun &run);
void addMergeCommand(CLI::App &app, ToolRun &run);
void addGitSetupCommand(CLI::App &app, ToolRun &run);
void addRenameCommand(CLI::App &app, ToolRun &run);
void addUsesCommand(CLI::App &app, ToolRun &run);
void addGraphCommand(CLI::App &app, ToolRun &run);
void addPreviewCommand(CLI::App &app, ToolRun &run);

} // namespace corvanta
