#pragma once

#include "check/check.h"
#include "database/statement.h"
#include "tools/odspage_commands.h"

#include <map>
#include <memory>
#include <string>

namespace corvanta {

// What the data sources of pages say of their statements, tables and columns. Nothing is run there and nothing changed.
// One connection serves all pages of a source and its user.
class DatabaseCheck {
public:
    explicit DatabaseCheck(ToolRun &toolRun);

    // The findings of a page, under the rule "database". A source that cannot be asked is told once, and makes the tool
    // fail.
    std::vector<Finding> check(const std::string &file, const Page &p);

    // Whether a driver has not come back in time. Its thread is left behind: the program must not end in the ordinary
    // way.
    static bool driverLeftBehind();

private:
    struct Source; // shared with the thread of its calls
    SqlResult ask(const std::string &file, const Page &p, const SqlStatement &statement);
    void giveUp(const std::string &file, Source &source, const std::string &reason);

    ToolRun &run;
    std::map<std::string, std::shared_ptr<Source>> sources; // by source, user and password
};

} // namespace corvanta
