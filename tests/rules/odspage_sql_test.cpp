#include "tests/rules/odspage_files.h"
#include "tools/odspage_commands.h"

#include <gtest/gtest.h>

#include <sstream>

namespace corvanta {
namespace {

int run(std::vector<const char *> words, std::string &out, std::string &err)
{
    std::ostringstream outStream, errStream;
    const int code = runOdspage(static_cast<int>(words.size()), words.data(), outStream, errStream);
    out = outStream.str();
    err = errStream.str();
    return code;
}

TEST(OdspageSql, PrintsTheGeneratedStatementOrTheMessage)
{
    const std::string query = CORVANTA_SOURCE "/samples/query.ods", menu = CORVANTA_SOURCE "/samples/menu.ods";
    std::string out, err;
    EXPECT_EQ(run({"odspage", "sql", query.c_str()}, out, err), 0);
    EXPECT_EQ(
        out, "Select * From Customers Where Customers.Name Like '@custname@%' And Customers.City @opcity@ '@city@' And "
             "(Customers.CreditLimit = @credit@ Or @credit@ is Null) And \"Customer Since\" = {d'@since@'}\n");
    EXPECT_EQ(run({"odspage", "sql", menu.c_str()}, out, err), 1);
    EXPECT_EQ(out, "");
    EXPECT_NE(err.find("No Default Table."), std::string::npos);
}

} // namespace
} // namespace corvanta
