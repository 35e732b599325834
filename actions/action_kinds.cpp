#include "actions/action_kinds.h"

#include "actions/action.h"
#include "document/encoding.h"

#include <algorithm>

namespace corvanta {

namespace {

// The template's first value is the code.
void addKind(std::vector<ActionKind> &table, std::string caption, std::string actionTemplate, bool hasDialog)
{
    const auto code = static_cast<std::size_t>(ActionCode(actionTemplate));
    if (code + 1 >= table.size())
        table.resize(code + 2);
    table[code] = {std::move(caption), std::move(actionTemplate), hasDialog};
}

struct OfferedKind {
    std::int16_t code;
    const char *caption;
    bool emptyValues; // the template holds the parameters, not only the code
    bool hasDialog;
};

constexpr OfferedKind offeredKinds[] = {
    {action::none, "(none)", false, false},
    {action::goToPage, "Go to Page", true, true},
    {action::executeApp, "Execute C/S App", true, true},
    {action::nextRecord, "Get next record", false, false},
    {action::previousRecord, "Get previous record", false, false},
    {action::updateRecord, "Update current record", false, false},
    {action::deleteRecord, "Delete current record", false, false},
    {action::insertRecord, "Insert a new record", false, false},
    {action::submitSelect, "Submit a SELECT query", false, true},
    {action::viewRow, "View current result-set row", false, false},
    {action::executeSql, "Execute a SQL statement", false, true},
    {action::downloadFile, "Download file", false, true},
    {action::uploadFile, "Upload file", false, true},
    {action::list, "List of Actions", false, true},
    {action::exitApplication, "Exit Application", false, false},
    {action::resetForm, "Reset Form", false, false},
    {action::closePage, "Close Page", false, false},
    {action::messageBox, "Message Box", false, true},
};

// Filled once, whichever thread comes first, and never changed.
const std::vector<ActionKind> &table()
{
    static const std::vector<ActionKind> filled = [] {
        std::vector<ActionKind> kinds;
        for (const OfferedKind &kind : offeredKinds)
            addKind(kinds, kind.caption, kind.emptyValues ? encodeAction({kind.code, {}}) : encodeInt16(kind.code),
                    kind.hasDialog);
        return kinds;
    }();
    return filled;
}

char lowerLetter(char c) { return c >= 'A' && c <= 'Z' ? static_cast<char>(c - 'A' + 'a') : c; }

// Captions hold no letters beyond A to Z.
bool sameCaption(std::string_view a, std::string_view b)
{
    return std::equal(a.begin(), a.end(), b.begin(), b.end(),
                      [](char x, char y) { return lowerLetter(x) == lowerLetter(y); });
}

} // namespace

const std::vector<ActionKind> &actionKinds() { return table(); }

void BuildActionKinds() { table(); }

std::int16_t FindActionKind(std::string_view caption)
{
    for (std::size_t code = 0; code < table().size(); ++code)
        if (!caption.empty() && sameCaption(table()[code].caption, caption))
            return static_cast<std::int16_t>(code);
    return -1;
}

const ActionKind &actionKind(std::int16_t code)
{
    static const ActionKind empty;
    const bool known = code >= 0 && static_cast<std::size_t>(code) < table().size();
    return known ? table()[static_cast<std::size_t>(code)] : empty;
}

std::string actionCaption(std::string_view text) { return actionKind(ActionCode(text)).caption; }

} // namespace corvanta
