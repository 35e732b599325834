#include "platform/codepage.h"
#include "platform/host_files.h"
#include "tools/odspage_check.h"

#include <algorithm>
#include <toml++/toml.h>

namespace corvanta {

namespace {

namespace fs = std::filesystem;

constexpr std::uintmax_t settingsLimit = 1 << 20; // bytes

void takeNames(const toml::node_view<const toml::node> &node, std::set<std::string> &names)
{
    if (!node)
        return;
    const toml::array *list = node.as_array();
    if (list == nullptr)
        throw std::runtime_error("a list of rules is expected");
    const std::vector<std::string> known = ruleNames();
    for (const toml::node &item : *list) {
        const std::string name = item.value_or(std::string());
        if (std::find(known.begin(), known.end(), name) == known.end())
            throw std::runtime_error("there is no rule \"" + name + "\"");
        names.insert(name);
    }
}

RuleChoice choiceOf(const toml::node_view<const toml::node> &table)
{
    RuleChoice choice;
    takeNames(table["rules"], choice.only);
    takeNames(table["ignore"], choice.ignored);
    return choice;
}

FolderChoice readChoice(const fs::path &file)
{
    FolderChoice choice;
    const FileContent content = readHostFile(file, settingsLimit);
    if (content.missing)
        return choice;
    try {
        if (content.tooLarge || !content.error.empty())
            throw std::runtime_error(content.tooLarge ? "too large" : toUtf8(content.error));
        const toml::table settings = toml::parse(content.bytes);
        const toml::node_view<const toml::node> check = settings["check"];
        choice.all = choiceOf(check);
        if (const toml::table *pages = check["pages"].as_table())
            for (const auto &[name, page] : *pages)
                choice.pages[std::string(name.str())] = choiceOf(toml::node_view<const toml::node>(page));
    } catch (const std::runtime_error &error) { // of the parser as well
        choice = {error.what(), {}, {}};
    }
    return choice;
}

void add(RuleChoice &choice, const RuleChoice &more)
{
    if (choice.only.empty())
        choice.only = more.only;
    choice.ignored.insert(more.ignored.begin(), more.ignored.end());
}

} // namespace

RuleChoice CheckSettings::choiceFor(const fs::path &file)
{
    const fs::path settings = file.parent_path() / ".odspage.toml";
    const auto [known, added] = folders.try_emplace(settings.string());
    FolderChoice &folder = known->second;
    if (added)
        folder = readChoice(settings);
    if (added && !folder.failure.empty()) {
        complain(run, settings.string(), folder.failure);
        run.exitCode = 1;
    }
    RuleChoice choice = given;
    if (const auto page = folder.pages.find(file.filename().string()); page != folder.pages.end())
        add(choice, page->second);
    add(choice, folder.all);
    return choice;
}

} // namespace corvanta
