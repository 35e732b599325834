#include "database/sql.h"
#include "document/objects.h"

#include <gtest/gtest.h>

namespace corvanta {
namespace {

struct Bound {
    std::string column, name;
    std::int16_t inptype = 0;
    std::string condition = {};
    Kind kind = Kind::TextBox;
};

void add(Page &p, const Bound &bound)
{
    ObjectRecord record;
    record.kind = static_cast<std::int16_t>(bound.kind);
    record.datacol = bound.column;
    record.ctlname = bound.name;
    record.condobjname = bound.condition;
    std::int16_t index = appendObject(p, record);
    auto element = static_cast<std::size_t>(p.ctlindex[index]);
    if (bound.kind == Kind::TextBox) {
        p.tbxextras.resize(element + 1);
        p.tbxextras[element].inptype = bound.inptype;
    }
}

Page pageOn(const std::string &table, const std::vector<Bound> &objects = {})
{
    Page p;
    p.dbconnect = "Shop\tclerk\tsecret\t" + table;
    for (const Bound &bound : objects)
        add(p, bound);
    return p;
}

std::string conditionOf(const Bound &bound)
{
    SqlText condition = BuildCondition(pageOn("T", {bound}), 0);
    EXPECT_EQ(condition.error, "");
    return condition.text;
}

TEST(SqlCondition, FollowsTheValueClass)
{
    const Kind combo = Kind::ComboBox;
    EXPECT_EQ(conditionOf({"Name", "custname"}), "Name Like '@custname@%'");
    EXPECT_EQ(conditionOf({"Last Name", "lname"}), "\"Last Name\" Like '@lname@%'");
    EXPECT_EQ(conditionOf({"City", "city", 0, "opcity"}), "City @opcity@ '@city@'");
    EXPECT_EQ(conditionOf({"Age", "age", 1}), "(Age = @age@ Or @age@ is Null)");
    EXPECT_EQ(conditionOf({"Size", "s", 2}), "(Size = @s@ Or @s@ is Null)");
    EXPECT_EQ(conditionOf({"Rate", "r", 6}), "(Rate = @r@ Or @r@ is Null)");
    EXPECT_EQ(conditionOf({"Unit Price", "p", 6, "op"}), "(\"Unit Price\" @op@ @p@ Or @p@ is Null)");
    EXPECT_EQ(conditionOf({"Born", "bdate", 3}), "Born = {d'@bdate@'}");
    EXPECT_EQ(conditionOf({"Born", "bdate", 3, "op"}), "Born @op@ {d'@bdate@'}");
    EXPECT_EQ(conditionOf({"At", "t", 4}), "At Like '@t@%'");
    EXPECT_EQ(conditionOf({"Price", "p", 5}), "Price Like '@p@%'");
    EXPECT_EQ(conditionOf({"City", "city", 0, "", combo}), "City Like '@city@%'");
    EXPECT_EQ(conditionOf({"City", "city", 0, "op", combo}), "City @op@ '@city@'");
    EXPECT_EQ(conditionOf({"Photo", "photo", 0, "", Kind::ImageDb}), "Photo Like '@photo@%'");
}

TEST(SqlGenerate, KeepsColumnsAndOrder)
{
    Page p = pageOn("Customers", {{"Name", "custname"}});
    EXPECT_EQ(GenerateSelect(p, "select * from Customers order by Name").text,
              "Select * From Customers Where Name Like '@custname@%' order by Name");
    EXPECT_EQ(GenerateSelect(p, "").text, "Select * From Customers Where Name Like '@custname@%'");
    add(p, {"Age", "age", 1});
    EXPECT_EQ(
        GenerateSelect(p, "SELECT a, b FROM t ORDER  BY c Order By  d").text,
        "Select a, b From Customers Where Name Like '@custname@%' And (Age = @age@ Or @age@ is Null) Order By  d");
}

TEST(SqlGenerate, LeavesOutWhatIsUnboundOrExcluded)
{
    Page p = pageOn("Order Details", {{"", "free"}, {"City", "city"}, {"Name", "name"}});
    p.objects[1].objflags = exludesqlFlag;
    EXPECT_EQ(GenerateSelect(p, "").text, "Select * From \"Order Details\" Where Name Like '@name@%'");
    p.objects[2].datacol.clear();
    EXPECT_EQ(GenerateSelect(p, "x order by y").text, "Select * From \"Order Details\" Where  order by y");
}

TEST(SqlGenerate, FailureKeepsTheStatement)
{
    SqlText noTable = GenerateSelect(pageOn("", {{"Name", ""}}), "old");
    EXPECT_EQ(noTable.text, "old");
    EXPECT_EQ(noTable.error, "No Default Table.");
    Page p = pageOn("T", {{"Name", "name"}, {"Last Name", "", 1}});
    SqlText noName = GenerateSelect(p, "old");
    EXPECT_EQ(noName.text, "old");
    EXPECT_EQ(noName.error, "Object attached to 'Last Name' has no name.");
    EXPECT_EQ(BuildWhereClause(p).text, "");
}

TEST(SqlColumns, StandBetweenTheKeywords)
{
    EXPECT_EQ(ExtractColumnList("SELECT a, b FROM t"), "a, b");
    EXPECT_EQ(ExtractColumnList("x select   a   from t"), "a  ");
    EXPECT_EQ(ExtractColumnList("Selected a From t"), "a"); // also inside longer words
    EXPECT_EQ(ExtractColumnList("select ab,fromage from t"), "ab");
    EXPECT_EQ(ExtractColumnList("select from t"), "");
    EXPECT_EQ(ExtractColumnList("select *from t"), "");
    EXPECT_EQ(ExtractColumnList("select\ta from t"), "");
    for (const char *statement : {"", "select", "select ", "select a", "a from t", "from select"})
        EXPECT_EQ(ExtractColumnList(statement), "") << statement;
    EXPECT_EQ(DefaultColumns(""), "*");
    EXPECT_EQ(DefaultColumns("a, b"), "a, b");
}

} // namespace
} // namespace corvanta
