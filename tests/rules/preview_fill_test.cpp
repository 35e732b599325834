#include "platform/codepage.h"
#include "preview/record_statements.h"
#include "preview/template_fill.h"
#include "tests/rules/converter_page.h"

#include <gtest/gtest.h>

#include <map>

namespace corvanta {

namespace {

class PreviewFill : public testing::Test {
protected:
    Page p;
    ObjectValues values;

    PreviewFill() { setCodePage(1252); }

    ObjectRecord &field(const std::string &name, const std::string &column, std::int16_t inptype,
                        std::optional<std::string> value)
    {
        const std::int16_t index = addTo(p, Kind::TextBox);
        p.tbxextras[static_cast<std::size_t>(p.ctlindex[static_cast<std::size_t>(index)])].inptype = inptype;
        recordAt(p, index).ctlname = name;
        recordAt(p, index).datacol = column;
        values.push_back(std::move(value));
        return recordAt(p, index);
    }
};

// The text, and the parameters behind it, each after a bar.
std::string told(const FilledStatement &filled)
{
    if (!filled.failure.empty())
        return "! " + filled.failure;
    std::string text = filled.statement.text;
    for (const SqlParameter &parameter : filled.statement.parameters)
        text += "|" + parameter.value.value_or("NULL");
    return text;
}

TEST_F(PreviewFill, ValuesAreBoundOrNothingButNumbersDatesAndComparisons)
{
    struct Case {
        const char *statement, *value, *expected;
    };
    constexpr const char *noNumber = " is no number.";
    const Case cases[] = {
        {"Where Name Like '@t@%'", "O'Neill", "Where Name Like ?|O'Neill%"},
        {"Where Name = 'a''@t@''@T@'", "\xC5\x81", "Where Name = ?|a'\xC5\x81'\xC5\x81"},
        {"Where Name = @t@", "x' Or 1=1 --", "Where Name = ?|x' Or 1=1 --"},
        {"Where Name = '@unknown@ a@b.c'", "x", "Where Name = '@unknown@ a@b.c'"},
        {"Where Name = 'open @t@", "x", "Where Name = ?|open x"},
        {"Where \"@t@\" = 1", "Name", "! t: \"Name\" cannot be part of a name."},
        {"-- '@t@'\nSelect '@t@' /* @t@ */", "x", "-- '@t@'\nSelect ? /* @t@ */|x"},
        {"(A = @n@ Or @n@ is Null)", "12.5", "(A = 12.5 Or 12.5 is Null)"},
        {"(A = @n@ Or @n@ is Null)", "", "(A = NULL Or NULL is Null)"},
        {"A = 1 -@n@ And B", "-5", "A = 1 -(-5) And B"},
        {"A = @n@", "1 Or 1=1", noNumber},
        {"A = @n@", "0x10", noNumber},
        {"A = @n@", "1e", noNumber},
        {"A = '@n@'", "1 Or 1=1", "A = ?|1 Or 1=1"},
        {"B = {d'@d@'}", "1997-01-06", "B = {d '1997-01-06'}"},
        {"B = {d'@d@'} And C", "", "B = NULL And C"},
        {"B = {ts '@d@'}", "1997-01-06 07:30:00", "B = {ts '1997-01-06 07:30:00'}"},
        {"B = {d'@d@'}", "1997'}) --", "! d: \"1997'}) --\" is no date or time (2001-12-31, 23:59:59)."},
        {"B = @d@", "1997-01-06", "B = {d '1997-01-06'}"},
        {"B = @s@ Or C = {d'@s@'}", "1997-01-06", "B = ? Or C = ?|1997-01-06|1997-01-06"}, // a password field
        {"City @op@ 'x'", " not like ", "City Not Like 'x'"},
        {"City @op@ 'x'", "", "City = 'x'"},
        {"City @op@ 'x'", "= 1 Or", "! op: \"= 1 Or\" is no comparison (=, <>, <, >, <=, >=, Like, Not Like)."},
    };
    for (const char *name : {"t", "n", "d", "op", "s"})
        field(name, "c", std::map<std::string, std::int16_t>{{"t", 0}, {"n", 6}, {"d", 3}, {"op", 0}, {"s", 3}}[name],
              {});
    p.tbxextras.back().sysobj = 1;
    recordAt(p, 0).condobjname = "op";
    for (const Case &c : cases) {
        values.assign(5, c.value);
        const std::string result = told(fillStatement(p, c.statement, values));
        if (c.expected == noNumber)
            EXPECT_TRUE(result.starts_with("! ") && result.ends_with(noNumber)) << result;
        else
            EXPECT_EQ(result, c.expected);
    }
}

TEST_F(PreviewFill, OnlyOneSelectIsAQuery)
{
    for (const char *good : {"select 1", " Select '' ;\n", "SELECT \"a b\" From t"})
        EXPECT_TRUE(isOneSelect(good)) << good;
    for (const char *bad : {"", "Selectx", "Delete From t", "Select 1; Delete From t",
                            "Select 1 -- '\n; Commit; Delete From t", "With x As (Delete From t) Select 1"})
        EXPECT_FALSE(isOneSelect(bad)) << bad;
}

TEST_F(PreviewFill, RecordsAreChangedByTheirUpdateKeys)
{
    p.dbconnect = "Shop\t\t\tCustomers";
    field("number", "Customers.Number", 1, "77").updatekey = "Number";
    recordAt(p, 0).objflags = readonlyFlag;
    field("name", "Customers.Name", 0, "O'Neill\r\nx");
    field("limit", "Credit Limit", 6, "");
    field("born", "Customers.Born", 3, "1981-08-19");
    field("secret", "Customers.Secret", 0, "");
    p.tbxextras[static_cast<std::size_t>(p.ctlindex[4])].sysobj = 1;
    field("other", "Orders.Amount", 6, "5");
    field("out", "Customers.Notes", 0, "x").objflags = exludesqlFlag;
    const std::vector<SqlColumn> columns = {{"number", 4, 10, 0},
                                            {"name", 12, 40, 0},
                                            {"Credit Limit", 2, 10, 2},
                                            {"born", 91, 10, 0},
                                            {"notes", -1, 0, 0}};
    SqlRow row = {"8", "O'Neill\nx", "250", "1981-08-19", "y"};
    const auto update = [&] { return told(updateStatement(p, {columns, columns, row}, values)); };

    EXPECT_EQ(update(), "Update Customers Set \"Credit Limit\" = ? Where Number = ?|NULL|8");
    values[2] = "250";
    EXPECT_EQ(update(), "") << "nothing differs";
    values[1] = "Nobody";
    EXPECT_EQ(update(), "Update Customers Set Name = ? Where Number = ?|Nobody|8");
    EXPECT_EQ(told(deleteStatement(p, {columns, columns, row})), "Delete From Customers Where Number = ?|8");
    EXPECT_EQ(told(insertStatement(p, columns, values)),
              "Insert Into Customers (Name, \"Credit Limit\", Born) Values (?, ?, ?)|Nobody|250|1981-08-19");
    values[4] = "hunter";
    EXPECT_EQ(told(insertStatement(p, {{"secret", 4, 10, 0}}, values)), "! Secret: what was typed is no number.");
    values[4] = "";
    row[2] = values[2] = "$1,5";
    EXPECT_EQ(update(), "Update Customers Set Name = ? Where Number = ?|Nobody|8") << "as the database spells it";
    values[2] = "1,5";
    EXPECT_EQ(update(), "! Credit Limit: \"1,5\" is no number.");
    row[0] = std::nullopt;
    EXPECT_EQ(told(deleteStatement(p, {columns, columns, row})),
              "! The record has no value for the update key Number.");
    recordAt(p, 0).updatekey.clear();
    EXPECT_EQ(told(deleteStatement(p, {columns, columns, row})), "! The page has no update key.");
    p.dbconnect = "Shop\t\t\tmain.x\" Where 1=1 --";
    EXPECT_EQ(told(deleteStatement(p, {columns, columns, row})).substr(0, 2), "! ");
    for (const auto &[table, quoted] :
         std::map<std::string, std::string>{{"main.x\" Where 1=1 --", "main.\"x\"\" Where 1=1 --\""},
                                            {"other.twin", "other.twin"},
                                            {"\"Order\"", "\"Order\""},
                                            {"My Schema\".\"twin", "\"My Schema\".\"twin\""},
                                            {"U&\"\\8868\".\"a.\"\"b\"", "U&\"\\8868\".\"a.\"\"b\""},
                                            {"`a-b`", "`a-b`"},
                                            {"\"x\";y\"", "\"\"\"x\"\";y\"\"\""}}) {
        p.dbconnect = "Shop\t\t\t" + table;
        EXPECT_EQ(describingStatement(recordTable(p)).text, "Select * From " + quoted + " Where 1 = 0");
    }
}

TEST_F(PreviewFill, ValuesInATemplateAreNeitherMarkupNorAddressesOfTheirChoice)
{
    struct Case {
        const char *html, *expected;
    };
    const Case cases[] = {
        {"<p>@v@ @w@ @x@</p>", "<p>&lt;b&gt;&quot;@w@ javascript:alert(1) @x@</p>"},
        {"<input value=\"@v@\" onclick=\"@v@\" style='@v@'>",
         "<input value=\"&lt;b&gt;&quot;@w@\" onclick=\"@v@\" style='@v@'>"},
        {"<a href=\"@w@\">", "<a href=\"\">"},
        {"<img src=\"photos/@w@\" alt='@w@'>", "<img src=\"photos/alert%281%29\" alt='javascript:alert(1)'>"},
        {"<a href=\"@u@\">", "<a href=\"http://www.harbour.example/bell\">"},
        {"<script>'@v@'</script><style>@v@</style><!-- @v@ -->",
         "<script>'@v@'</script><style>@v@</style><!-- @v@ -->"},
        {"<textarea>@n@</textarea>@n@", "<textarea>&#10;&#10;x</textarea>&#10;x"},
        {"<a title=@v@ title", "<a title=@v@ title"},
        {"@v", "@v"},
        {"@a&amp;b@ mail@v@ @", "and mail&lt;b&gt;&quot;@w@ @"},
    };
    const std::vector<TemplateValue> all = {{"v", "<b>\"@w@"},
                                            {"w", "javascript:alert(1)"},
                                            {"u", "www.harbour.example/bell"},
                                            {"n", "\nx"},
                                            {"a&b", "and"}};
    for (const Case &c : cases)
        EXPECT_EQ(fillTemplate(c.html, all, {}), c.expected);
    const std::string grid =
        "<div id=\"o3\"><table><tbody><tr><td></td></tr></tbody></table></div><table><tbody>x</tbody>";
    EXPECT_EQ(fillTemplate(grid, {}, {{"o3", "<tr>rows</tr>"}}),
              "<div id=\"o3\"><table><tbody><tr>rows</tr></tbody></table></div><table><tbody>x</tbody>");
}

} // namespace

} // namespace corvanta
