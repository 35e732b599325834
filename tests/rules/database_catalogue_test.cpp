#include "database/catalogue.h"
#include "database/catalogue_names.h"
#include "database/catalogue_reason.h"
#include "database/connection_jobs.h"
#include "platform/codepage.h"
#include "tests/support/database_sources.h"
#include "tests/support/scripted_asking.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <filesystem>
#include <map>
#include <memory>
#include <thread>

namespace corvanta {
namespace {

constexpr const char *sizes = "Gr\xF6\xDF\x65";           // in the code page
using Types = std::map<std::string, std::pair<int, int>>; // name: type, length

class Catalogue : public testing::Test {
protected:
    Catalogue()
    {
        setCodePage(1252);
        testsources::setUp();
    }
    ~Catalogue() override { OdbcNameEndDll(); }

    static std::vector<std::string> tablesOf(const char *dsn)
    {
        Connection c;
        c.source = dsn;
        ListTables(c);
        return c.tables;
    }

    static Types columnsOf(const char *dsn, const std::string &table)
    {
        Types columns;
        char name[nameBufferSize];
        std::int16_t type = 0, length = 0;
        for (int status = GetFirstColumn(dsn, "", "", table.c_str(), name, type, length); status == 0;
             status = GetNextColumn(name, type, length))
            columns[name] = {type, length};
        return columns;
    }

    static std::string failureOf(const char *dsn, const char *password)
    {
        testing::internal::CaptureStderr();
        EXPECT_NE(ConnectDsn(dsn, "ann", password), 0);
        return testing::internal::GetCapturedStderr();
    }
};

TEST_F(Catalogue, ListsSourcesOfUserAndSystemOnce)
{
    std::vector<std::string> names = dataSources();
    for (const char *name : {"Shop", sizes, "Types", "Lost File", "Archive"})
        EXPECT_EQ(std::count(names.begin(), names.end(), name), 1) << name;
    char name[nameBufferSize];
    EXPECT_NE(GetNextOdbcDsn(name), 0);
    EXPECT_EQ(std::count_if(names.begin(), names.end(), [](const std::string &n) { return n.starts_with("Ein "); }), 0);
    const std::vector<std::string> shown = shownSources();
    ASSERT_EQ(shown.size(), names.size());
    for (const auto &[source, table] : {std::pair("?? (表一)", "Customers"), std::pair("?? (表二)", "Types")}) {
        const auto place = std::find(shown.begin(), shown.end(), source);
        ASSERT_NE(place, shown.end());
        const std::string &dsn = names[static_cast<std::size_t>(place - shown.begin())];
        ASSERT_EQ(ConnectDsn(dsn.c_str(), "", ""), 0);
        EXPECT_EQ(tablesOf(dsn.c_str()).front(), table);
    }
}

TEST_F(Catalogue, ListsTablesAndViewsOfTheShop)
{
    for (const char *dsn : {"Shop", "Archive", sizes}) {
        ASSERT_EQ(ConnectDsn(dsn, "", ""), 0) << dsn;
        EXPECT_EQ(tablesOf(dsn), (std::vector<std::string>{"Customers", "H\xE4ndler", "Products", "Orders",
                                                           "Order Lines", "Open Orders", "PriceList"}));
    }
    EXPECT_EQ(columnsOf("Shop", "Customers")["CreditLimit"].first, 6);
    EXPECT_EQ(columnsOf("Shop", "Order Lines").count("Order No"), 1U);
    EXPECT_EQ(columnsOf("Shop", "H\xE4ndler")["Stra\xDF"
                                              "e"],
              std::pair(0, 40));
    EXPECT_EQ(columnsOf("Shop", "PriceList").size(), 5U);
}

TEST_F(Catalogue, MapsTheTypesOfSqlite)
{
    ASSERT_EQ(ConnectDsn("Types", "", ""), 0);
    std::vector<std::string> tables = tablesOf("Types");
    EXPECT_EQ(std::count(tables.begin(), tables.end(), "sqlite_sequence"), 0);
    Types columns = columnsOf("Types", "Types");
    std::map<std::string, int> expected{
        {"a_integer", 1}, {"a_smallint", 1}, {"a_tinyint", 1}, {"a_bigint", 1},    {"a_real", 2},     {"a_double", 2},
        {"a_float", 2},   {"a_numeric", 6},  {"a_decimal", 6}, {"a_money", 5},     {"a_currency", 5}, {"a_date", 3},
        {"a_time", 4},    {"a_datetime", 3}, {"a_varchar", 0}, {"a_timestamp", 3}, {"a_char", 0},     {"a_text", 0},
        {"a_boolean", 0}, {"a_blob", 0},     {"a_wide", 0},    {"an_unknown", 0}};
    EXPECT_EQ(columns.size(), expected.size());
    for (const auto &[name, type] : expected)
        EXPECT_EQ(columns[name].first, type) << name;
    EXPECT_EQ(columns["a_varchar"].second, 40);
    EXPECT_EQ(columns["a_char"].second, 5);
    EXPECT_EQ(columns["a_numeric"].second, 10);
    EXPECT_EQ(columns["a_text"].second, 32767);
    EXPECT_EQ(columns["a_wide"].second, 32767);
    EXPECT_EQ(columnsOf("Types", "Seen"), (Types{{"a_varchar", {0, 40}}, {"a_date", {3, 10}}}));
}

TEST_F(Catalogue, TakesNamesLiterally)
{
    ASSERT_EQ(ConnectDsn("Types", "", ""), 0);
    for (bool listed : {false, true}) { // asked for by name, then as the driver spelt it
        EXPECT_EQ(columnsOf("Types", "a_b"), (Types{{"inside", {1, 10}}}));
        EXPECT_EQ(columnsOf("Types", "50% off"), (Types{{"discount", {1, 10}}}));
        EXPECT_EQ(columnsOf("Types", "say \"hi\""), (Types{{"greeting", {0, 7}}}));
        EXPECT_EQ(columnsOf("Types", "back\\slash"), (Types{{"path", {0, 9}}}));
        EXPECT_EQ(columnsOf("Types", "Stra\xDF"
                                     "e \x80"),
                  (Types{{sizes, {0, 3}}}));
        EXPECT_TRUE(columnsOf("Types", "no such table").empty());
        if (!listed)
            tablesOf("Types");
    }
    EXPECT_EQ(columnsOf("Types", "?? (U+8868 U+4E00)"), (Types{{"one", {1, 10}}}));
    EXPECT_TRUE(columnFacts().front().key);
    EXPECT_EQ(columnsOf("Types", "?? (U+8868 U+4E8C)"), (Types{{"two", {1, 10}}}));
    EXPECT_FALSE(columnFacts().front().key);
}

TEST(CatalogueNames, AreUnlikeEachOtherAndReachTheirTables)
{
    setCodePage(1252);
    const std::u16string longName(300, u'n');
    NameRules postgres, maria;
    postgres.firstSchema = u"public";
    postgres.folding = NameRules::Folding::Lower;
    postgres.escapes = true;
    maria.quote = u"`";
    const struct {
        std::u16string qualifier, name;
        const char *listed, *shown, *inPostgres, *inMaria;
    } cases[] = {
        {u"public", u"twin", "twin", "twin", "twin", "public.twin"},
        {u"other", u"twin", "twin (other)", "twin (other)", "other.twin", "other.twin"},
        {u"My Schema", u"twin", "twin (My Schema)", "twin (My Schema)", "My Schema\".\"twin", "My Schema\".\"twin"},
        {u"public", u"twin (other)", "twin (other) (2)", "twin (other) (2)", "twin (other)", "public\".\"twin (other)"},
        {u"other", u"lonely", "lonely", "lonely", "other.lonely", "other.lonely"},
        {u"public", u"Order", "Order", "Order", "\"Order\"", "public.`Order`"},
        {u"public", u"a-b.c\"", "a-b.c\"", "a-b.c\"", "\"a-b.c\"\"\"", "public.`a-b.c\"`"},
        {u"public", u"say \"hi\"", "say \"hi\"", "say \"hi\"", "say \"\"hi\"\"", "public\".\"say \"\"hi\"\""},
        {u"public", u"表一", "?? (U+8868 U+4E00)", "?? (表一)", "U&\"\\8868\\4E00\"", ""},
        {u"My Schema", u"表 二", "? ?", "? ? (表 二)",
         "U&\"\\004D\\0079\\0020\\0053\\0063\\0068\\0065\\006D\\0061\".U&\"\\8868\\0020\\4E8C\"", ""},
        {u"public", u"表丁", "?? (U+8868 U+4E01)", "?? (表丁)", "U&\"\\8868\\4E01\"", ""},
    };
    std::vector<DriverTable> tables;
    for (const auto &c : cases)
        tables.push_back({c.qualifier, c.name});
    tables.insert(tables.end(), {{u"", longName + u"1"}, {u"", longName + u"2"}});
    const std::vector<TableName> names = tableNames(tables, postgres), inMaria = tableNames(tables, maria);
    for (std::size_t i = 0; i < std::size(cases); ++i) {
        EXPECT_EQ(names[i].listed.name, cases[i].listed);
        EXPECT_EQ(names[i].listed.shown, cases[i].shown);
        EXPECT_EQ(names[i].dropped, cases[i].inPostgres);
        EXPECT_EQ(inMaria[i].dropped, cases[i].inMaria);
    }
    for (const std::size_t i : {std::size(cases), std::size(cases) + 1})
        EXPECT_EQ(names[i].listed.name.size(), nameBufferSize - 1);
    EXPECT_NE(names.back().listed.name, names[names.size() - 2].listed.name);
}

TEST(CatalogueReason, MasksThePasswordOnlyAsAWholeWord)
{
    const std::string untold = withoutPassword("xsecretx", "secret");
    EXPECT_EQ(untold.find("secret"), std::string::npos);
    const struct {
        const char *text, *password;
        std::string told;
    } cases[] = {{"no connection for \"secret\".", "secret", "no connection for \"***\"."},
                 {"secret:secret@host", "secret", "***:***@host"},
                 {"no connection", "", "no connection"},
                 {"no connection", "o", untold},
                 {"secret and secret2", "secret", untold},
                 {"Secret", "secret", untold},
                 {"[unixODBC][x]no way", "odbc", "[unixODBC][x]no way"},
                 {"[unixODBC]can't open libodbc", "odbc", untold},
                 {"PWD={a}}b}", "a}b", untold},
                 {"//ann:p%3Aw@host", "p:w", untold},
                 {"gr\xC3\x83\xC2\xB6\xC3\x83\xC2\x9F"
                  "er",
                  "gr\xC3\xB6\xC3\x9F"
                  "er",
                  untold},
                 {"mask ***", "***", untold}};
    for (const auto &c : cases)
        EXPECT_EQ(withoutPassword(c.text, c.password), c.told) << c.text;
}

TEST_F(Catalogue, FailsWithoutAFileAndCreatesNone)
{
    EXPECT_NE(failureOf("Lost File", "").find("08001"), std::string::npos);
    EXPECT_FALSE(std::filesystem::exists(testsources::setUp() / "lost.db"));
}

TEST_F(Catalogue, TellsWhyWithoutThePassword)
{
    EXPECT_NE(failureOf("Lost Driver", "").find("IM002 "), std::string::npos);
    EXPECT_EQ(failureOf("Lost Driver", "").find("package"), std::string::npos);
    EXPECT_NE(failureOf("Away", "").find("package odbc-mariadb."), std::string::npos);
    std::string told = failureOf("No Such Source", "not found"); // words of the driver manager's text
    EXPECT_NE(told.find("***"), std::string::npos);
    EXPECT_EQ(told.find("not found"), std::string::npos);
    failureOf("Shop;Driver=SQLite3;Database=/tmp/injected.db", "");
    failureOf("{Shop}", "");
}

TEST_F(Catalogue, AFailedConnectionIsToldAndChangesNothing)
{
    Connection c;
    EXPECT_FALSE(SelectDataSource(c, ""));
    ASSERT_TRUE(SelectDataSource(c, "Shop\tann\tsecret"));
    ListColumns(c, 3);
    ScriptedAsking user;
    user.expectMessage("Failure connecting to Lost File", "Error");
    testing::internal::CaptureStderr();
    EXPECT_FALSE(SelectDataSource(c, "Lost File\tben\tother"));
    testing::internal::GetCapturedStderr();
    EXPECT_EQ(c.source + "/" + c.user + "/" + c.password, "Shop/ann/secret");
    EXPECT_EQ(c.columns.size(), 6U);
    ListTables(c); // still connected
    EXPECT_EQ(c.tables.size(), 7U);
}

TEST_F(Catalogue, IsListedInTheBackgroundAndConnectedAgain)
{
    Connection c;
    auto jobs = std::make_unique<ConnectionJobs>(c, [](ConnectionJobs::Change) {});
    const auto settle = [&jobs] {
        while (!jobs->doing().empty()) {
            std::this_thread::yield();
            runPostedJobs();
        }
    };
    jobs->connectTo("Shop\tann\tsecret");
    EXPECT_EQ(jobs->doing(), "Connecting to Shop...");
    EXPECT_EQ(c.source, "");
    settle();
    EXPECT_EQ(c.tables.size(), 7U);
    jobs->listColumns(3);
    settle();
    EXPECT_EQ(c.columns.size(), 6U);
    jobs->connectTo("Shop\tben\tother"); // connected already
    EXPECT_EQ(jobs->doing(), "");
    jobs->refresh();
    settle();
    EXPECT_EQ(c.listedTable, 3);
    EXPECT_EQ(c.columns.size(), 6U);

    ScriptedAsking user;
    user.expectMessage("Failure connecting to Silent", "Error");
    setCatalogueTimes({1, 1});
    testing::internal::CaptureStderr();
    jobs->connectTo("Silent\t\t");
    settle();
    jobs->connectTo("Silent\t\t");
    jobs->cancel(); // without a message
    settle();
    testing::internal::GetCapturedStderr();
    EXPECT_EQ(c.source + "/" + c.user + "/" + c.password, "Shop/ann/secret");
    EXPECT_EQ(c.columns.size(), 6U);

    jobs = std::make_unique<ConnectionJobs>(c, [](ConnectionJobs::Change) {}); // the connection is lost
    jobs->listColumnsAfterKey(0);
    EXPECT_EQ(jobs->doing(), "Connecting to Shop...");
    settle();
    EXPECT_EQ(c.listedTable, 0);
    EXPECT_FALSE(c.columns.empty());
    jobs.reset();
    setCatalogueTimes({});
    while (catalogueInUse())
        std::this_thread::yield();
}

} // namespace
} // namespace corvanta
