#pragma once

#include "check/check.h"
#include "tools/odspage_commands.h"

#include <filesystem>
#include <map>
#include <set>
#include <string>
#include <vector>

// What "odspage check" has found, and the ways to print it.
namespace corvanta {

// A finding with what people need to find its place.
struct FileFinding {
    std::string file; // host name as it was given
    Finding finding;
    std::string title; // "Kind NAME" of the object; empty for the page as a whole
};

// One line each: "FILE: object N (Kind NAME): rule: text".
void printFindings(ToolRun &run, const std::vector<FileFinding> &findings);
void printFindingsAsJson(ToolRun &run, const std::vector<FileFinding> &findings);
// SARIF 2.1.0, as code hosts and editors read it.
void printFindingsAsSarif(ToolRun &run, const std::vector<FileFinding> &findings);

// Which rules count; all where only is empty.
struct RuleChoice {
    std::set<std::string> only, ignored;

    bool leavesOut(std::string_view rule) const
    {
        return ignored.contains(std::string(rule)) || (!only.empty() && !only.contains(std::string(rule)));
    }
};

// Every rule's name, also of those that concern files and folders.
std::vector<std::string> ruleNames();

// The choices that ".odspage.toml" makes in a folder, for all pages and for single ones by file name.
struct FolderChoice {
    std::string failure; // UTF-8; empty on success and when there is no such file
    RuleChoice all;
    std::map<std::string, RuleChoice> pages;
};

// The rules that count for each file: what the command line says, and the settings beside the file.
class CheckSettings {
public:
    CheckSettings(ToolRun &toolRun, RuleChoice fromCommandLine) : run(toolRun), given(std::move(fromCommandLine)) {}

    // A settings file that cannot be read is told, and changes nothing.
    RuleChoice choiceFor(const std::filesystem::path &file);

private:
    ToolRun &run;
    RuleChoice given;
    std::map<std::string, FolderChoice> folders;
};

} // namespace corvanta
