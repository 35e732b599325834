#pragma once

#include <cstdint>
#include <span>
#include <string>
#include <string_view>
#include <vector>

// Action texts: a 16-bit kind code followed by the parameters of the kind. A malformed text never fails
// to read: missing values are 0 or empty.
namespace corvanta {

namespace action {
inline constexpr std::int16_t none = 0, goToPage = 1, pageUser = 4, downloadCaution = 8, helpType = 9, goToUrl = 10,
                              serverApp = 12, executeApp = 13, nextRecord = 500, previousRecord = 501,
                              updateRecord = 504, deleteRecord = 505, insertRecord = 506, submitSelect = 507,
                              viewRow = 508, executeSql = 509, downloadFile = 510, uploadFile = 511, list = 512,
                              exitApplication = 520, resetForm = 521, closePage = 522, messageBox = 523;
}

// A parameter of an action kind; its name is that of the tools' JSON form.
struct ActionParameter {
    const char *name;
    bool number; // a 16-bit integer, else a string
};

// The parameters of a kind in file order; none for kinds without and for unknown kinds. The entries of a
// List of Actions are not parameters, see ActionEntry.
std::span<const ActionParameter> actionParameters(std::int16_t code);

// An action as values. Of a number parameter the text holds the decimal form.
struct Action {
    std::int16_t code = 0;
    std::vector<std::string> values; // parallel to actionParameters(code)
};

std::int16_t ActionCode(std::string_view text);
Action decodeAction(std::string_view text);
std::string encodeAction(const Action &action);

// One entry of a List of Actions.
struct ActionEntry {
    std::string action; // action text
    std::string status; // free text
};
std::vector<ActionEntry> decodeActionList(std::string_view text);
// Only those entries that the bytes hold, where a damaged count claims more.
std::vector<ActionEntry> heldActionEntries(std::string_view text);
std::string encodeActionList(const std::vector<ActionEntry> &entries);
// The exchange text of one entry: two string values.
ActionEntry decodeActionEntry(std::string_view text);
std::string encodeActionEntry(const ActionEntry &entry);

// The text as it is stored: "Go to Page" with an empty page name becomes "Go to Page" with "TOP".
std::string withTopPage(std::string_view text);

} // namespace corvanta
