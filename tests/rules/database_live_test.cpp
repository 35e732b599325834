#include "database/catalogue.h"
#include "database/connection.h"
#include "database/sql.h"
#include "database/statement.h"
#include "database/table_preview.h"
#include "document/page_file.h"
#include "platform/codepage.h"
#include "platform/post.h"
#include "tests/support/database_sources.h"
#include "tests/support/samples.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <map>
#include <span>
#include <sql.h>
#include <sqlext.h>

// Against the PostgreSQL server of tests/live/database, and what generated statements do on real databases.
namespace corvanta {
namespace {

class DatabaseLive : public testing::Test {
protected:
    DatabaseLive()
    {
        setCodePage(1252);
        testsources::setUp();
    }
    ~DatabaseLive() override { OdbcNameEndDll(); }

    void SetUp() override
    {
        if (!testsources::haveServer())
            GTEST_SKIP() << "no server";
    }

    bool connectTo(const std::string &source)
    {
        return SelectDataSource(c, source + "\t" + testsources::serverUser + "\t" + testsources::serverPassword);
    }

    void listColumnsOf(const std::string &table)
    {
        auto place = std::find(c.tables.begin(), c.tables.end(), table);
        ASSERT_NE(place, c.tables.end()) << table;
        ListColumns(c, static_cast<int>(place - c.tables.begin()));
    }

    int typeOf(const std::string &column) const
    {
        auto place = std::find(c.columns.begin(), c.columns.end(), column);
        return place == c.columns.end() ? -1 : c.columnTypes[place - c.columns.begin()];
    }

    Connection c;
};

TEST_F(DatabaseLive, ListsTablesAndViewsOfTheServer)
{
    for (const char *source : {"Live", "Live ANSI"}) {
        ASSERT_TRUE(SelectDataSource(c, std::string(source) + "\treader\treader")) << source;
        for (const char *name : {"customers", "h\xE4ndler", "Order Lines", "Open Orders", "pricelist", "standing"})
            EXPECT_EQ(std::count(c.tables.begin(), c.tables.end(), name), 1) << source << " " << name;
        EXPECT_EQ(std::count(c.tables.begin(), c.tables.end(), "pg_class"), 0);
        listColumnsOf("h\xE4ndler");
        EXPECT_EQ(c.columns, (std::vector<std::string>{"k\xFCrzel", "name",
                                                       "stra\xDF"
                                                       "e",
                                                       "ort"}));
        listColumnsOf("standing");
        EXPECT_EQ(c.columns.size(), 2U);
    }
}

TEST_F(DatabaseLive, MapsTheTypesOfTheServer)
{
    ASSERT_TRUE(connectTo("Live"));
    listColumnsOf("types");
    std::map<std::string, int> expected{{"a_serial", 1}, {"a_smallint", 1},  {"a_bigint", 1},      {"a_real", 2},
                                        {"a_double", 2}, {"a_numeric", 6},   {"a_money", 5},       {"a_decimal", 6},
                                        {"a_date", 3},   {"a_timestamp", 3}, {"a_timestamptz", 3}, {"a_time", 4},
                                        {"a_char", 0},   {"a_varchar", 0},   {"a_text", 0},        {"a_boolean", 0},
                                        {"a_bytea", 0},  {"a_uuid", 0},      {"a_json", 0},        {"an_interval", 0},
                                        {"an_array", 0}};
    EXPECT_EQ(c.columns.size(), expected.size());
    for (const auto &[name, type] : expected)
        EXPECT_EQ(typeOf(name), type) << name;
    for (std::int16_t length : c.columnLengths)
        EXPECT_GE(length, 0);
}

// Runs a statement over a connection of its own; the driver's text when it fails.
std::string failureOf(const std::string &source, const std::string &user, const std::string &password,
                      const std::string &statement)
{
    auto text = [](const std::string &s) { return reinterpret_cast<SQLCHAR *>(const_cast<char *>(s.c_str())); };
    SQLHANDLE environment = nullptr, connection = nullptr, handle = nullptr;
    SQLAllocHandle(SQL_HANDLE_ENV, nullptr, &environment);
    SQLSetEnvAttr(environment, SQL_ATTR_ODBC_VERSION, reinterpret_cast<SQLPOINTER>(SQL_OV_ODBC3), 0);
    SQLAllocHandle(SQL_HANDLE_DBC, environment, &connection);
    SQLCHAR state[6] = "", message[512] = "not connected";
    if (SQL_SUCCEEDED(SQLConnect(connection, text(source), SQL_NTS, text(user), SQL_NTS, text(password), SQL_NTS))) {
        message[0] = 0;
        SQLAllocHandle(SQL_HANDLE_STMT, connection, &handle);
        SQLRETURN done = SQLExecDirect(handle, text(statement), SQL_NTS);
        while (SQL_SUCCEEDED(done) && done != SQL_NO_DATA)
            done = SQLFetch(handle);
        if (done != SQL_NO_DATA)
            SQLGetDiagRec(SQL_HANDLE_STMT, handle, 1, state, nullptr, message, sizeof message, nullptr);
        SQLFreeHandle(SQL_HANDLE_STMT, handle);
        SQLDisconnect(connection);
    }
    SQLFreeHandle(SQL_HANDLE_DBC, connection);
    SQLFreeHandle(SQL_HANDLE_ENV, environment);
    return reinterpret_cast<const char *>(message);
}

// Each listed table shows its own columns, and what is dropped of it reaches it.
struct NamedTable {
    const char *listed, *column, *dropped;
};
constexpr NamedTable twins[] = {
    {"twin", "here", "twin"},
    {"twin (other)", "there", "other.twin"},
    {"twin (My Schema)", "far", "My Schema\".\"twin"},
    {"a_b", "inside", "a_b"},
    {"axb", "outside", "axb"},
    {"back\\slash", "path", "\"back\\slash\""},
    {"Order", "n", "\"Order\""},
    {"?? (U+8868 U+4E00)", "one", "U&\"\\8868\\4E00\""},
    {"?? (U+8868 U+4E8C)", "two", "U&\"\\8868\\4E8C\""},
};
constexpr NamedTable mariaTables[] = {
    {"twin", "here", "twin"},
    {"seen", "here", "seen"},
    {"a_b", "inside", "a_b"},
    {"axb", "outside", "axb"},
    {"back\\slash", "path", "`back\\slash`"},
    {"order", "n", "`order`"},
    {"?? (U+8868 U+4E00)", "one", ""},
    {"?? (U+8868 U+4E8C)", "two", ""},
};

class NamedTables : public DatabaseLive {
protected:
    void expectTables(std::span<const NamedTable> tables)
    {
        const std::vector<TableFacts> facts = tableFacts();
        ASSERT_EQ(facts.size(), c.tables.size());
        const OdbcHandle environment = openOdbc(), own = connectOdbc(environment.get(), c.source, c.user, c.password);
        for (const NamedTable &t : tables) {
            listColumnsOf(t.listed);
            EXPECT_EQ(c.columns, std::vector<std::string>{t.column}) << t.listed;
            const std::string dropped = facts[static_cast<std::size_t>(c.listedTable)].dropped;
            EXPECT_EQ(dropped, t.dropped);
            EXPECT_EQ(readRows(own.get(), {facts[static_cast<std::size_t>(c.listedTable)].firstRows, {}}).error, "");
            if (!dropped.empty()) {
                EXPECT_EQ(failureOf(c.source, c.user, toUtf8(c.password), selectWholeTable(dropped).text), "");
            }
        }
    }
};

TEST_F(NamedTables, OfManySchemasAndScripts)
{
    for (const char *source : {"Live", "Live ANSI"}) {
        ASSERT_TRUE(SelectDataSource(c, std::string(source) + "\treader\treader"));
        expectTables(twins);
        listColumnsOf("twin (My Schema)");
        EXPECT_TRUE(columnFacts().front().key);
        listColumnsOf("types");
        EXPECT_EQ(columnFacts()[5].type + columnFacts()[13].type, "numeric(10,2)varchar(40)");
    }
}

TEST_F(NamedTables, OfTheConnectionsOwnCatalogueAlone)
{
    if (!testsources::haveMariaDb())
        GTEST_SKIP() << "no MariaDB";
    ASSERT_TRUE(SelectDataSource(c, "Maria\tclerk\tsecret"));
    EXPECT_EQ(c.tables.size(), std::size(mariaTables));
    expectTables(mariaTables);
}

TEST_F(DatabaseLive, CancelledRowsAreNotWaitedFor)
{
    ASSERT_TRUE(connectTo("Live"));
    const auto place = [this](const char *table) {
        return static_cast<int>(std::find(c.tables.begin(), c.tables.end(), table) - c.tables.begin());
    };
    std::optional<SqlResult> read;
    const auto take = [&read](const SqlResult &result) { read = result; };
    const TablePreview customers(c, place("?? (U+8868 U+4E00)"), take);
    while (!read)
        runPostedJobs();
    EXPECT_EQ(read->error, "");
    EXPECT_EQ(read->columns.size(), 1U);
    read.reset();
    const OdbcHandle environment = openOdbc(), own = connectOdbc(environment.get(), c.source, c.user, c.password);
    const SqlStatement running{
        "Select Count(*) From pg_stat_activity Where query Like '%\"slow\"%' And state = 'active' "
        "And pid <> pg_backend_pid()",
        {}};
    const auto untilRunning = [&](const std::string &count) {
        while (readRows(own.get(), running).rows.at(0).at(0) != count)
            runPostedJobs();
    };
    setCatalogueTimes({5, 3600});
    std::optional<TablePreview> slow(std::in_place, c, place("slow"), take);
    untilRunning("1");
    slow.reset();
    untilRunning("0");
    EXPECT_FALSE(read);
    setCatalogueTimes({});
}

TEST_F(DatabaseLive, ADriverWithoutUnicodeTakesNamesInTheCodePage)
{
    ASSERT_TRUE(SelectDataSource(c, "West ANSI\tj\xFCrgen\tschl\xFCssel"));
    listColumnsOf("gr\xF6\xDF\x65");
    EXPECT_EQ(c.columns, std::vector<std::string>{"l\xE4nge"});
}

TEST_F(DatabaseLive, RefusesAWrongPasswordWithoutTellingIt)
{
    testing::internal::CaptureStderr();
    EXPECT_NE(ConnectDsn("Live", testsources::serverUser, testsources::serverUser), 0); // the text names the user
    std::string told = testing::internal::GetCapturedStderr();
    EXPECT_NE(told.find("***"), std::string::npos) << told;
    EXPECT_EQ(told.find(testsources::serverUser), std::string::npos) << told;
}

TEST_F(DatabaseLive, GivesUpOnAServerThatNeverAnswers)
{
    testing::internal::CaptureStderr();
    EXPECT_NE(ConnectDsn("Silent", "ann", "secret"), 0); // ends at all: the log-in time-out
    EXPECT_EQ(testing::internal::GetCapturedStderr().find("secret"), std::string::npos);
}

// For the leak check that ends a run with sanitizers.
TEST_F(DatabaseLive, ConnectsAThousandTimes)
{
    for (int round = 0; round < 1000; ++round) {
        ASSERT_TRUE(connectTo("Shop"));
        listColumnsOf("Orders");
        ASSERT_EQ(c.columns.size(), 6U);
        ASSERT_EQ(DisconnectDsn("Shop", testsources::serverUser), 0);
        c = {};
    }
}

void replaceAll(std::string &text, const std::string &what, const std::string &by)
{
    for (std::size_t at = 0; (at = text.find(what, at)) != std::string::npos; at += by.size())
        text.replace(at, what.size(), by);
}

std::string inputFor(const Page &p, std::int16_t index)
{
    std::int16_t type = p.objects[index].kind == 5 ? p.tbxextras[p.ctlindex[index]].inptype : std::int16_t{0};
    if (type == 3)
        return "1990-07-30";
    return type == 1 || type == 2 || type == 6 ? "10" : "H";
}

// What the client does with a statement before it runs it.
std::string filled(const Page &p, std::string statement)
{
    for (const ObjectRecord &object : p.objects)
        if (!object.condobjname.empty())
            replaceAll(statement, "@" + object.condobjname + "@", "=");
    for (std::int16_t index = 0; index < objectCount(p); ++index)
        if (!p.objects[index].ctlname.empty())
            replaceAll(statement, "@" + p.objects[index].ctlname + "@", inputFor(p, index));
    return statement;
}

class GeneratedStatements : public DatabaseLive, public testing::WithParamInterface<const char *> {
protected:
    void SetUp() override
    {
        if (GetParam() != std::string("Shop"))
            DatabaseLive::SetUp();
    }

    void run(std::string statement)
    {
        bool server = GetParam() != std::string("Shop");
        if (server) // its driver wants a blank in the date escape
            replaceAll(statement, "{d'", "{d '");
        EXPECT_EQ(failureOf(GetParam(), server ? "reader" : "", server ? "reader" : "", toUtf8(statement)), "")
            << statement;
    }

    // Binds a page as dropping the columns of its default table does, by their bare names where those hold a
    // blank.
    void bindAnew(Page &p)
    {
        for (std::int16_t index = 0; index < objectCount(p); ++index) {
            std::string &column = p.objects[index].datacol;
            std::string bare = column.substr(column.find('.') + 1);
            if (bare.find(' ') != std::string::npos)
                column = bare;
            std::string listed = bare;
            if (GetParam() == std::string("Live") && bare.find(' ') == std::string::npos)
                std::transform(bare.begin(), bare.end(), listed.begin(),
                               [](unsigned char ch) { return std::tolower(ch); });
            if (p.objects[index].kind == 5 && !column.empty())
                p.tbxextras[p.ctlindex[index]].inptype = static_cast<std::int16_t>(typeOf(listed));
        }
    }
};

// Tells the server's tables as it spells them: without quotes names are folded.
std::string listedName(const Connection &c, const std::string &table)
{
    for (const std::string &name : c.tables)
        if (std::equal(name.begin(), name.end(), table.begin(), table.end(),
                       [](unsigned char a, unsigned char b) { return std::tolower(a) == std::tolower(b); }))
            return name;
    return {};
}

TEST_P(GeneratedStatements, RunForEverySamplePage)
{
    ASSERT_TRUE(connectTo(GetParam()));
    int generated = 0;
    std::vector<std::filesystem::path> files;
    for (const std::string &name : samples::currentPages())
        files.push_back(samples::folder() / name);
    for (const auto &entry : std::filesystem::recursive_directory_iterator(CORVANTA_SOURCE "/samples"))
        if (entry.path().extension() == ".ods")
            files.push_back(entry.path());
    for (const std::filesystem::path &file : files) {
        Page p;
        parsePage(p, hostBytes(file));
        std::string table = connectPart(p, 3);
        if (table.empty())
            continue;
        SCOPED_TRACE(file.string());
        listColumnsOf(listedName(c, table));
        run(selectWholeTable(table).text);
        bindAnew(p);
        if (BuildWhereClause(p).text == "Where ") // nothing bound: the author completes the statement
            continue;
        std::string old = p.SelectStmt; // brackets are another database's quotes
        replaceAll(old, "[", "\"");
        replaceAll(old, "]", "\"");
        SqlText statement = GenerateSelect(p, old);
        EXPECT_EQ(statement.error, "");
        run(filled(p, statement.text));
        ++generated;
    }
    EXPECT_GE(generated, 3);
}

INSTANTIATE_TEST_SUITE_P(Databases, GeneratedStatements, testing::Values("Shop", "Live"),
                         [](const auto &source) { return std::string(source.param); });

} // namespace
} // namespace corvanta
