#include "actions/action.h"
#include "document/page_file.h"
#include "platform/codepage.h"
#include "tests/rules/odspage_files.h"
#include "tests/support/database_sources.h"

#include <functional>
#include <sstream>

namespace corvanta {

namespace {

const std::string sampleFolder = CORVANTA_SOURCE "/samples/";

// The sample pages on a data source of the tests.
class CheckedDatabase : public testing::TestWithParam<const char *> {
protected:
    void SetUp() override
    {
        testsources::setUp();
        const std::string source = GetParam();
        if (source == "Live" && !testsources::haveServer())
            GTEST_SKIP() << "no server";
        std::filesystem::create_directory(scratch.path("pages"));
        const std::string user =
            source == "Live" ? std::string(testsources::serverUser) + "\t" + testsources::serverPassword : "\t";
        for (const char *name : {"query.ods", "customer.ods", "hitlist.ods", "record.ods", "view.ods"})
            put(name, [&](Page &p) { p.dbconnect = source + "\t" + user + "\t" + connectPart(p, 3); });
    }
    void put(const std::string &name, const std::function<void(Page &)> &change)
    {
        Page p;
        const std::string target = scratch.path("pages/" + name);
        parsePage(p, hostBytes(std::filesystem::exists(target) ? target : sampleFolder + name));
        change(p);
        scratch.write("pages/" + name, serialisePage(p));
    }
    // The lines without the folder, and without the driver's words behind the last ":" that we write.
    std::string findings()
    {
        const ToolResult result = odspage({"check", "--database", "--rule", "database", scratch.path("pages")});
        EXPECT_EQ(result.err, "");
        EXPECT_EQ(result.out.find(toUtf8(testsources::serverPassword)), std::string::npos);
        std::istringstream lines(result.out);
        std::string line, told;
        while (std::getline(lines, line)) {
            line.erase(0, scratch.path("pages/").size());
            for (const std::string end : {"is refused", "no table \"Strangers\""})
                if (const std::size_t at = line.find(end + ": "); at != std::string::npos)
                    line.resize(at + end.size());
            told += line + '\n';
        }
        return told;
    }

    const ScratchFolder scratch;
};

} // namespace

TEST_P(CheckedDatabase, TellsWhatTheSourceDoesNotHaveAndNothingElse)
{
    EXPECT_EQ(findings(), "");
    put("query.ods", [](Page &p) {
        p.SelectStmt = "Select Nothing From Customers";
        p.objects[2].datacol = "Customers.Nowhere";
        p.objects[9].datacol = "Strangers.Name";
        p.objects[12].actlist = encodeAction({action::submitSelect, {"Select Nme From Customers", "hitlist", "view"}});
    });
    EXPECT_EQ(findings(),
              "query.ods: database: the SELECT statement is refused\n"
              "query.ods: object 12 (Button Reset): database: the statement is refused\n"
              "query.ods: object 2 (Text Box custname): database: table \"Customers\" has no column \"Nowhere\"\n"
              "query.ods: object 9 (Text Box since): database: no table \"Strangers\"\n");
    put("query.ods", [](Page &p) { p.dbconnect = "No Such Source\tme\tsecret\tCustomers"; });
    const ToolResult result = odspage({"check", "--database", "--rule", "database", scratch.path("pages")});
    EXPECT_EQ(result.exitCode, 1);
    EXPECT_NE(result.err.find("no answer of data source \"No Such Source\""), std::string::npos) << result.err;
    EXPECT_EQ(result.err.find("package"), std::string::npos) << result.err;
}

INSTANTIATE_TEST_SUITE_P(Databases, CheckedDatabase, testing::Values("Shop", "Live"));

} // namespace corvanta
