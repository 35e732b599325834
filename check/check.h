#pragma once

#include "check/folder.h"
#include "document/page.h"

#include <functional>
#include <span>
#include <string>
#include <string_view>
#include <vector>

// Faults of a page that an author would want to know. The command line and the editor show the same findings.
namespace corvanta {

struct Finding {
    std::int16_t object = noObject; // index in the object table; noObject: of the page as a whole
    std::string_view rule;          // its name in the table of rules
    std::string text;               // bytes of the code page, without a full stop
};

// What a rule looks at.
struct Checked {
    const Page &page;
    const CheckFolder *folder = nullptr; // of the page; none: nothing is said about other files
};

using Report = std::function<void(std::int16_t object, std::string text)>;

struct CheckRule {
    const char *name;
    const char *summary;
    void (*find)(const Checked &checked, const Report &report);
};

std::span<const CheckRule> checkRules();

// The rules "damaged" and "unreachable" concern files and folders, "database" a data source: whoever reads these
// reports them.
inline constexpr const char *damagedRule = "damaged", *unreachableRule = "unreachable", *databaseRule = "database";

using SkipRule = std::function<bool(std::string_view rule)>;

// Findings in the order of the rules. Rules that skip() names are left out.
std::vector<Finding> checkPage(const Checked &checked, const SkipRule &skip = {});

// Mends what can be mended without asking: the case of file and page names, and the tab order by reading order. True
// when the page changed. What belongs to rules that skip() names stays.
bool fixPage(Page &p, const CheckFolder *folder, const SkipRule &skip = {});

// "Kind NAME" by the object's name, else its caption; bytes of the code page.
std::string objectTitle(const Page &p, std::int16_t index);

} // namespace corvanta
