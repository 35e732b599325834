#include "database/catalogue.h"
#include "database/connection.h"
#include "document/objects.h"
#include "platform/codepage.h"
#include "tests/rules/database_sources.h"
#include "tests/support/scripted_asking.h"

#include <gtest/gtest.h>

namespace corvanta {
namespace {

class DataSource : public testing::Test {
protected:
    DataSource()
    {
        setCodePage(1252);
        testsources::setUp();
    }
    ~DataSource() override { OdbcNameEndDll(); }

    Connection c;
};

TEST_F(DataSource, ConnectsAndListsTables)
{
    EXPECT_FALSE(SelectDataSource(c, ""));
    ASSERT_TRUE(SelectDataSource(c, "Shop\tann\tsecret"));
    EXPECT_EQ(c.source + "/" + c.user + "/" + c.password, "Shop/ann/secret");
    EXPECT_EQ(c.tables.front(), "Customers");
    EXPECT_TRUE(c.columns.empty());
}

TEST_F(DataSource, SameSourceIsLeftAlone)
{
    ASSERT_TRUE(SelectDataSource(c, "Shop\tann\t"));
    ListColumns(c, 0);
    EXPECT_FALSE(SelectDataSource(c, "Shop\tben\tother"));
    EXPECT_EQ(c.user, "ann");
    EXPECT_EQ(c.columns.size(), 8U);
}

TEST_F(DataSource, NewSourceDropsTheOldOne)
{
    ASSERT_TRUE(SelectDataSource(c, "Shop\tann\t"));
    ListColumns(c, 0);
    ASSERT_TRUE(SelectDataSource(c, "Types\tben\t"));
    EXPECT_EQ(c.tables.front(), "Types");
    EXPECT_TRUE(c.columns.empty() && c.columnTypes.empty() && c.columnLengths.empty());
    EXPECT_NE(DisconnectDsn("Shop", "ann"), 0); // dropped already
    EXPECT_EQ(DisconnectDsn("Types", "ben"), 0);
}

TEST_F(DataSource, FailureIsToldAndChangesNothing)
{
    ASSERT_TRUE(SelectDataSource(c, "Shop\tann\tsecret"));
    ListColumns(c, 3);
    ScriptedAsking user;
    user.expectMessage("Failure connecting to Lost File", "Error", Icon::Exclamation);
    testing::internal::CaptureStderr();
    EXPECT_FALSE(SelectDataSource(c, "Lost File\tben\tother"));
    testing::internal::GetCapturedStderr();
    EXPECT_EQ(c.source + "/" + c.user + "/" + c.password, "Shop/ann/secret");
    EXPECT_EQ(c.columns.size(), 6U);
    ListTables(c); // still connected
    EXPECT_EQ(c.tables.size(), 7U);
}

TEST_F(DataSource, KeysListColumnsOfAnotherTableOnly)
{
    ASSERT_TRUE(SelectDataSource(c, "Shop\t\t"));
    listColumnsAfterKey(c, 0);
    ASSERT_EQ(c.columns.size(), 8U);
    c.columns.pop_back(); // shows whether they are listed again
    listColumnsAfterKey(c, 0);
    EXPECT_EQ(c.columns.size(), 7U);
    ListColumns(c, 0);
    EXPECT_EQ(c.columns.size(), 8U);
    EXPECT_EQ(c.columnTypes.size(), 8U);
    listColumnsAfterKey(c, 1);
    EXPECT_EQ(c.columns.size(), 4U);
    listColumnsAfterKey(c, -1);
    EXPECT_EQ(c.listedTable, 1);
}

TEST_F(DataSource, GivesTheColumnThatIsDragged)
{
    ASSERT_TRUE(SelectDataSource(c, "Shop\t\t"));
    EXPECT_FALSE(columnAt(c, 0));
    ListColumns(c, 3);
    std::optional<DroppedColumn> amount = columnAt(c, 4);
    ASSERT_TRUE(amount);
    EXPECT_EQ(qualifiedName(*amount), "Orders.Amount");
    EXPECT_EQ(amount->type, 6);
    EXPECT_FALSE(columnAt(c, 6));
}

Page dropOf(Kind kind, const DroppedColumn &column)
{
    Page p;
    ObjectRecord record;
    record.kind = static_cast<std::int16_t>(kind);
    std::int16_t index = appendObject(p, record);
    p.tbxextras.resize(p.tbx.size());
    p.tbxextras.back().maxlen = 12;
    bindColumn(p, index, column);
    return p;
}

TEST(ColumnDrop, BindsTheKindsWithBinding)
{
    DroppedColumn name{"Customers", "Name", 0, 40}, born{"Customers", "Born", 3, 10};
    for (Kind kind : {Kind::TextBox, Kind::ImageDb, Kind::ComboBox, Kind::File, Kind::Url}) {
        Page p = dropOf(kind, name);
        EXPECT_EQ(p.objects[0].ctlname, "Name");
        EXPECT_EQ(p.objects[0].datacol, "Customers.Name");
    }
    EXPECT_EQ(dropOf(Kind::TextBox, name).tbxextras[1].maxlen, 40);
    Page date = dropOf(Kind::TextBox, born);
    EXPECT_EQ(date.tbxextras[1].inptype, 3);
    EXPECT_EQ(date.tbxextras[1].maxlen, 12);
}

TEST(ColumnDrop, ShowsTheNameOnCaptions)
{
    DroppedColumn column{"Tests", "R&D", 0, 40};
    Page button = dropOf(Kind::Button, column), label = dropOf(Kind::Label, column), url = dropOf(Kind::Url, column);
    EXPECT_EQ(button.but[1].Caption, "R&&D");
    EXPECT_EQ(button.objects[0].datacol, "");
    EXPECT_EQ(label.lbl[1].Caption, "R&&D");
    EXPECT_EQ(label.objects[0].ctlname, "");
    EXPECT_EQ(url.url[1].Caption, "R&D");
}

TEST(ColumnDrop, IsAcceptedBySevenKindsAndNotOnMenus)
{
    Page p;
    int accepted = 0;
    for (const KindButton &button : kindButtons)
        accepted += acceptsColumn(p, button.kind);
    EXPECT_EQ(accepted, 7);
    EXPECT_FALSE(acceptsColumn(p, Kind::Grid) || acceptsColumn(p, Kind::Image));
    p.PageType = 1;
    EXPECT_FALSE(acceptsColumn(p, Kind::TextBox));
    EXPECT_EQ(kindButtons[connection().pressedButton].kind, Kind::TextBox);
}

} // namespace
} // namespace corvanta
