#include "actions/links.h"
#include "check/rules.h"
#include "document/media.h"
#include "document/tablist.h"
#include "platform/text.h"

#include <set>

namespace corvanta {

namespace {

constexpr std::string_view extension = ".ods";

// Names that the host fills in when it runs the action say nothing yet.
bool isFilledIn(const std::string &name) { return name.find('@') != std::string::npos; }

// What is wrong with a file's name; empty when nothing is.
std::string mediaFault(const CheckFolder &folder, const std::string &given)
{
    const std::string name = trimmed(given);
    if (name.empty())
        return {};
    if (!plainFileName(name))
        return "\"" + name + "\" is not a plain name of a file in the page's directory";
    const auto spelling = folder.spelling(name);
    if (!spelling)
        return "\"" + name + "\" is not there";
    return *spelling == name ? "" : "\"" + name + "\" is spelled \"" + *spelling + "\" there";
}

std::string pageFault(const CheckFolder &folder, const std::string &name)
{
    if (name.empty() || isFilledIn(name) || sameText(name, "TOP"))
        return {};
    if (!plainFileName(name))
        return "\"" + name + "\" is not the plain name of a page";
    const std::string spelled = pageSpelling(folder, name);
    if (spelled != name)
        return "page \"" + name + "\" is spelled \"" + spelled + "\"";
    return folder.spelling(name + std::string(extension)) ? "" : "page \"" + name + "\" is not there";
}

} // namespace

std::string mediaSpelling(const CheckFolder &folder, const std::string &name)
{
    return plainFileName(trimmed(name)) ? folder.spelling(trimmed(name)).value_or(name) : name;
}

// Hosts know pages by their names in capitals: those are in order whatever the file is called.
std::string pageSpelling(const CheckFolder &folder, const std::string &name)
{
    if (name.empty() || isFilledIn(name) || name == upperCase(name))
        return name;
    const auto spelling = folder.spelling(name + std::string(extension));
    return spelling ? spelling->substr(0, spelling->size() - extension.size()) : name;
}

std::vector<int> mediaFields(const ObjectRecord &record)
{
    std::vector<int> fields;
    const auto kind = kindOf(record.kind);
    if (kind == Kind::Button || kind == Kind::Image || kind == Kind::TextBox)
        fields.push_back(0);
    else if (kind == Kind::Animation)
        for (int i = 0; i < fieldCount(record.srcfile); ++i)
            fields.push_back(i);
    return fields;
}

void findPages(const Checked &checked, const Report &report)
{
    if (checked.folder == nullptr)
        return;
    std::set<std::pair<std::int16_t, std::string>> told;
    eachAction(checked.page, [&](std::int16_t object, const Action &action) {
        for (const std::size_t place : pageParameters(action.code)) {
            std::string fault = pageFault(*checked.folder, action.values[place]);
            if (!fault.empty() && told.emplace(object, fault).second)
                report(object, std::move(fault));
        }
    });
}

void findMedia(const Checked &checked, const Report &report)
{
    if (checked.folder == nullptr)
        return;
    const auto look = [&](std::int16_t object, const std::string &name) {
        std::string fault = mediaFault(*checked.folder, name);
        if (!fault.empty())
            report(object, std::move(fault));
    };
    look(noObject, checked.page.bkgfile);
    look(noObject, checked.page.sndfn);
    for (std::int16_t i = 0; i < objectCount(checked.page); ++i)
        for (const int field : mediaFields(recordAt(checked.page, i)))
            look(i, fieldAt(recordAt(checked.page, i).srcfile, field));
}

} // namespace corvanta
