#include "actions/action.h"
#include "document/page_file.h"
#include "platform/codepage.h"
#include "preview/address_file.h"
#include "preview/host.h"
#include "tests/rules/converter_page.h"
#include "tests/support/database_sources.h"
#include "tests/support/temporary_drive.h"

#include <gtest/gtest.h>

namespace corvanta {

namespace {

std::int16_t addField(Page &p, const std::string &name, const std::string &column, std::int16_t inptype = 0)
{
    const std::int16_t index = addTo(p, Kind::TextBox);
    p.tbxextras[static_cast<std::size_t>(p.ctlindex[static_cast<std::size_t>(index)])].inptype = inptype;
    recordAt(p, index).ctlname = name;
    recordAt(p, index).datacol = column;
    return index;
}

// Buttons follow the fields, one an action.
std::int16_t addButton(Page &p, const Action &a)
{
    const std::int16_t index = addTo(p, Kind::Button);
    recordAt(p, index).actlist = encodeAction(a);
    return index;
}

// A small application on the customers of a data source: FIND (fields name, limit, pin; a button), HITS, CUSTOMER.
class PreviewHostTest : public testing::Test {
protected:
    TemporaryDrive drive;
    std::string source, user, password;
    bool write = false;

    PreviewHostTest() { setCodePage(1252); }

    void addPages()
    {
        const std::string connect = source + "\t" + user + "\t" + password + "\tCustomers";
        Page find, hits, customer, menu;
        find.dbconnect = hits.dbconnect = customer.dbconnect = connect;
        addField(find, "name", "Customers.Name");
        addField(find, "limit", "Customers.CreditLimit", 6);
        const std::int16_t pin = addField(find, "pin", "");
        find.tbxextras[static_cast<std::size_t>(find.ctlindex[static_cast<std::size_t>(pin)])].sysobj = 1;
        addButton(find, {action::submitSelect,
                         {"Select * From Customers Where Name Like '@name@%' And (CreditLimit >= @limit@ Or @limit@ is "
                          "Null) And '@pin@' = '@pin@' Order By Number",
                          "hits", "CUSTOMER"}});
        hits.PageType = static_cast<std::int16_t>(PageKind::HitList);
        addCaptioned(hits, Kind::Label, "Customers like @name@, @pin@");
        recordAt(hits, addTo(hits, Kind::Grid)).actlist = encodeAction({action::viewRow, {}});
        hits.gridcolumns = {{"Name\tCustomers.Name", 900}, {"Limit\tCreditLimit", 900}, {}};
        addButton(hits, {action::nextRecord, {}});
        customer.PageType = static_cast<std::int16_t>(PageKind::Record);
        customer.SelectStmt = "Select * From Customers Order By Number";
        recordAt(customer, addField(customer, "number", "Customers.Number", 1)).updatekey = "Number";
        addField(customer, "name", "Customers.Name");
        addField(customer, "limit", "Customers.CreditLimit", 6);
        for (const std::int16_t code : {action::updateRecord, action::insertRecord, action::deleteRecord,
                                        action::nextRecord, action::previousRecord, action::closePage})
            addButton(customer, {code, {}});
        addButton(customer, {action::executeSql, {"Update Customers Set Notes = '@name@' Where Number = @number@"}});
        menu.PageType = static_cast<std::int16_t>(PageKind::Menu);
        recordAt(menu, addTo(menu, Kind::Button)).actlist =
            encodeActionList({{encodeAction({action::messageBox, {"Bye", "<b>"}}), "closing"},
                              {encodeAction({action::exitApplication, {}}), ""}});
        const std::pair<const char *, Page *> files[] = {
            {"FIND.ODS", &find}, {"Hits.ods", &hits}, {"CUSTOMER.ODS", &customer}, {"MENU.ODS", &menu}};
        for (const auto &[name, p] : files)
            drive.add(std::string("PAGES/") + name, serialisePage(*p));
    }

    PreviewHost &host()
    {
        if (!running) {
            const std::filesystem::path folder = std::filesystem::canonical(drive.root() / "PAGES");
            running = std::make_unique<PreviewHost>(PageFolder{folder, {}, "MENU"}, PreviewOptions{write, {}});
        }
        return *running;
    }

    PreviewAnswer send(const std::string &address, std::optional<std::vector<FormValue>> form = {})
    {
        PreviewRequest request;
        request.post = form.has_value();
        request.form = form.value_or(std::vector<FormValue>{});
        request.path = address.substr(0, address.find('?'));
        std::string query = address.find('?') == std::string::npos ? "" : address.substr(address.find('?') + 1);
        for (std::size_t end = 0; !query.empty(); query.erase(0, end)) {
            end = std::min(query.find('&'), query.size());
            const std::string part = query.substr(0, end);
            request.query.push_back({part.substr(0, part.find('=')), part.substr(part.find('=') + 1)});
            end = std::min(end + 1, query.size());
        }
        return host().answer(request);
    }

    // The page that one gets to, redirections followed.
    std::string at(std::string address)
    {
        for (int steps = 0; steps < 4; ++steps) {
            const PreviewAnswer answer = send(address);
            if (answer.location.empty())
                return answer.body;
            address = answer.location;
        }
        return "too many redirections";
    }

    // Presses a button of a page that is shown; gives the address that comes next, without what was said.
    std::string press(const std::string &address, std::int16_t object, std::vector<FormValue> form = {})
    {
        form.push_back({"object", std::to_string(object)});
        const std::string next = send(address, form).location;
        lastSaid = next;
        return next.substr(0, next.find_first_of("&?", next.find("said=") - 1));
    }
    std::string lastSaid;

private:
    std::unique_ptr<PreviewHost> running;
};

TEST_F(PreviewHostTest, ServesPagesAndMediaOfTheDirectoryAlone)
{
    addPages();
    drive.add("PAGES/photos/Bell.bmp", "picture");
    drive.add("PAGES/other/Bell.bmp", "picture");
    Page gallery;
    recordAt(gallery, addTo(gallery, Kind::ImageDb)).srcfile = ".\\PHOTOS\\";
    drive.add("PAGES/GALLERY.ODS", serialisePage(gallery));
    drive.add("PAGES/notes.txt", "secret");
    drive.add("PAGES/.hidden.png", "secret");
    drive.add("OUTSIDE.bmp", "secret");
    std::filesystem::create_symlink(drive.root() / "OUTSIDE.bmp", drive.root() / "PAGES/link.bmp");
    std::filesystem::create_symlink(drive.root(), drive.root() / "PAGES/up");
    drive.add("PAGES/BROKEN.ODS", std::string(20000, 'x'));
    const std::pair<std::string, int> cases[] = {
        {"", 303},
        {"menu.hts", 200},
        {"Top.hts", 200},
        {"MENU.ods", 200},
        {"photos/bell.BMP", 404}, // no page has named the folder yet
        {"GALLERY.hts", 200},
        {"photos/bell.BMP", 200},
        {"other/bell.bmp", 404},
        {".end", 200},
        {"none.hts", 404},
        {"BROKEN.hts", 500},
        {"notes.txt", 404},
        {".hidden.png", 404},
        {"link.bmp", 404},
        {"up/OUTSIDE.bmp", 404},
        {"../OUTSIDE.bmp", 404},
        {"photos/../photos/bell.bmp", 404},
        {"..\\OUTSIDE.bmp", 404},
        {"C:OUTSIDE.bmp", 404},
        {"photos", 404},
        {"/etc/passwd", 404},
        {std::string("menu.hts\0.bmp", 13), 404},
        {"\xFF.hts", 404},
        {std::string(600, 'a') + ".hts", 404},
    };
    for (const auto &[address, status] : cases)
        EXPECT_EQ(send(address).status, status) << address;
}

TEST_F(PreviewHostTest, TheAddressStandsInAFileOfTheUsersOwn)
{
    setenv("XDG_RUNTIME_DIR", drive.root().c_str(), 1);
    std::filesystem::path file;
    {
        AddressFile leading;
        for (const char *address : {"http://127.0.0.1:1/token/LONGER.hts", "http://127.0.0.1:1/token/A.hts?a&b"})
            file = leading.leadTo(address);
        EXPECT_TRUE(holds(hostBytes(file), "url=http://127.0.0.1:1/token/A.hts?a&amp;b\""));
        EXPECT_FALSE(holds(hostBytes(file), "LONGER"));
        EXPECT_EQ(std::filesystem::status(file).permissions(), std::filesystem::perms(0600));
    }
    EXPECT_FALSE(std::filesystem::exists(file));
}

TEST_F(PreviewHostTest, PicturesComeFromTheHostsThatThePageNamesAlone)
{
    Page p;
    addCaptioned(p, Kind::Label, "<img src=\"http://elsewhere/@name@\">");
    for (const char *path : {"https://pictures.example:8443/a", "photos", "http://x; script-src *", "javascript://y"})
        recordAt(p, addTo(p, Kind::ImageDb)).srcfile = path;
    drive.add("PAGES/PICTURES.ODS", serialisePage(p));
    EXPECT_EQ(send("PICTURES.hts").pictureHosts, std::vector<std::string>{"https://pictures.example:8443"});
}

TEST_F(PreviewHostTest, AListOfActionsIsCarriedOutInItsOrder)
{
    addPages();
    const PreviewAnswer end = send("MENU.hts", std::vector<FormValue>{{"object", "0"}});
    EXPECT_EQ(end.status, 303);
    EXPECT_EQ(end.location, ".end?said=1-2");
    const std::string page = at(end.location);
    EXPECT_TRUE(holds(page, "<h2>Bye</h2><p>&lt;b&gt;</p>")) << page;
    EXPECT_LT(page.find("Message: Bye"), page.find("Status: closing")) << "the newest first";
    for (const char *object : {"-1", "99", "", "0:5:x", "99999999999999999999"})
        EXPECT_EQ(send("MENU.hts", std::vector<FormValue>{{"object", object}}).status, 303) << object;
}

TEST_F(PreviewHostTest, AChangedPageOrPictureHasAnotherStamp)
{
    addPages();
    Page p;
    p.bkgfile = "paper.bmp";
    drive.add("PAGES/PAPER.ODS", serialisePage(p));
    const std::string first = host().stamp("paper");
    EXPECT_EQ(host().stamp("PAPER"), first);
    drive.add("PAGES/PAPER.BMP", "x");
    const std::string second = host().stamp("paper");
    EXPECT_NE(first, second);
    p.pgcaption = "Other";
    drive.add("PAGES/PAPER.ODS", serialisePage(p));
    EXPECT_NE(host().stamp("paper"), second);
}

// Each test leaves the customers as they were.
class DatabasePreview : public PreviewHostTest, public testing::WithParamInterface<const char *> {
protected:
    void SetUp() override
    {
        testsources::setUp();
        source = GetParam();
        if (source != "Shop" && !testsources::haveServer())
            GTEST_SKIP() << "no server";
        if (source != "Shop") {
            user = testsources::serverUser;
            password = testsources::serverPassword;
        }
        write = true;
    }
};

TEST_P(DatabasePreview, FromTheQueryThroughTheHitsToAChangedRecord)
{
    addPages();
    const std::string hits = press("FIND.hts", 3, {{"name", ""}, {"limit", "1000"}, {"pin", "4711"}});
    EXPECT_EQ(hits, "hits.hts?result=1&from=0");
    const std::string list = at(hits);
    EXPECT_TRUE(holds(list, "<td><a href=\"CUSTOMER.hts?result=1&amp;row=1\">Carter Trawlers</a></td>")) << list;
    EXPECT_FALSE(holds(list, "Beatrice Cole"));
    EXPECT_FALSE(holds(list, "<td>…</td>"));

    const std::string one = press("FIND.hts", 3, {{"name", "Harriet O'"}, {"limit", ""}});
    EXPECT_TRUE(holds(at(one), "Customers like Harriet O&#39;, @pin@</div>")) << at(one);
    const std::string record = "CUSTOMER.hts?result=2&row=0";
    EXPECT_TRUE(holds(at(record), "value=\"Harriet O&#39;Neill\""));
    std::vector<FormValue> form = {{"number", "8"}, {"name", "Harriet O'Neill"}, {"limit", "275.5"}};
    EXPECT_EQ(press(record, 3, form), record);
    EXPECT_TRUE(holds(at(lastSaid), "Update Customers Set CreditLimit = ? Where Number = ?")) << at(lastSaid);
    EXPECT_TRUE(holds(at(press("FIND.hts", 3, {{"name", "Harriet"}, {"limit", "275.5"}})), "275.5"));
    form[2].value = "250";
    EXPECT_EQ(press(record, 3, form), record);
    press(record, 3, form);
    EXPECT_TRUE(holds(at(lastSaid), "nothing to update")) << "the row is that of the database again";
}

TEST_P(DatabasePreview, RecordsComeAndGo)
{
    addPages();
    const std::string first = send("CUSTOMER.hts").location;
    EXPECT_EQ(first, "CUSTOMER.hts?result=1&row=0");
    EXPECT_TRUE(holds(at(first), "row 1 of 14"));
    EXPECT_EQ(press(first, 7), first) << "the first has none before it";
    const std::string second = press(first, 6);
    EXPECT_EQ(second, "CUSTOMER.hts?result=1&row=1");
    press(second, 4,
          {{"number", "99"},
           {"name", "\xC5\x81\xC3\xB3"
                    "dka; Drop Table Customers"}});
    EXPECT_TRUE(holds(at(lastSaid), "Insert Into Customers (Number, Name) Values (?, ?)")) << "nothing of the record";
    const std::string last = "CUSTOMER.hts?result=1&row=14";
    EXPECT_TRUE(holds(at(last), "value=\"\xC5\x81\xC3\xB3"
                                "dka; Drop Table Customers\""))
        << at(last);
    press(last, 4, {{"number", "99"}, {"name", "Twice"}});
    EXPECT_TRUE(holds(at(lastSaid), "class=\"error\"")) << at(lastSaid);
    press(last, 9, {{"number", "99 Or 1=1"}, {"name", "x"}});
    EXPECT_TRUE(holds(at(lastSaid), "is no number"));
    const std::string other = send("CUSTOMER.hts").location; // another window's look at the records
    press(last, 5);
    EXPECT_TRUE(holds(at("CUSTOMER.hts?result=1&row=13"), "row 14 of 14"));
    press(other.substr(0, other.find("row=")) + "row=14", 5);
    EXPECT_TRUE(holds(at(lastSaid), "There is no such row any more; nothing was changed.")) << at(lastSaid);
}

TEST_P(DatabasePreview, ReadingOnlyShowsWhatWouldRun)
{
    write = false;
    addPages();
    const std::string first = send("CUSTOMER.hts").location;
    for (const std::int16_t button : {3, 4, 5, 9}) {
        EXPECT_EQ(press(first, button, {{"number", "1"}, {"name", "New"}, {"limit", "1"}}), first);
        EXPECT_TRUE(holds(at(lastSaid), "Would run with --write: <code>")) << button;
    }
    EXPECT_TRUE(holds(at(first), "value=\"Adams &amp; Sons\""));
    EXPECT_TRUE(holds(at(send("CUSTOMER.hts").location), "row 1 of 14"));
}

TEST_P(DatabasePreview, NoAnswerHoldsAPassword)
{
    password = source == "Shop" ? "s3cret" : "wrong s3cret";
    user = user.empty() ? "somebody" : user;
    addPages();
    for (const char *page : {"FIND.hts", "CUSTOMER.hts", "hits.hts"})
        EXPECT_FALSE(holds(at(page), "s3cret")) << page;
    press("FIND.hts", 3, {{"name", "A"}, {"pin", "4711"}});
    EXPECT_FALSE(holds(at(lastSaid), "4711"));
    EXPECT_FALSE(holds(at(lastSaid), "s3cret"));
}

INSTANTIATE_TEST_SUITE_P(Databases, DatabasePreview, testing::Values("Shop", "Live"),
                         [](const auto &row) { return std::string(row.param); });

class DatabaseStatement : public testing::TestWithParam<const char *> {};

TEST_P(DatabaseStatement, BindsAndReadsTextsAndChangesNothingWhenItReads)
{
    setCodePage(1252);
    testsources::setUp();
    const std::string source = GetParam();
    if (source != "Shop" && !testsources::haveServer())
        GTEST_SKIP() << "no server";
    const OdbcHandle environment = openOdbc();
    const OdbcHandle connection = connectOdbc(environment.get(), source, "reader", "reader");
    ASSERT_TRUE(connection);
    beginUse(connection.get(), SqlUse::Reading);
    const SqlResult read = readRows(connection.get(), {"Select Name, Born, 'x' || ? From Customers Where Name Like ?",
                                                       {{"\xE2\x82\xAC'", {}}, {"J\xC3\xB6rg%", {}}}});
    EXPECT_EQ(read.error, "");
    ASSERT_EQ(read.rows.size(), 1U);
    EXPECT_EQ(read.rows[0], (SqlRow{"J\xC3\xB6rgensen, \xC3\x85se", "1957-05-25", "x\xE2\x82\xAC'"}));

    EXPECT_NE(readRows(connection.get(), {"Update Customers Set Name = 'x'", {}}).error, "");
    SqlLimits limits;
    limits.rows = 3;
    limits.textBytes = 6;
    const SqlResult cut = readRows(connection.get(), {"Select Name From Customers Order By Number", {}}, limits);
    EXPECT_TRUE(cut.more);
    ASSERT_EQ(cut.rows.size(), 3U);
    EXPECT_EQ(cut.rows[0], SqlRow{"Adams "});
}

INSTANTIATE_TEST_SUITE_P(Databases, DatabaseStatement, testing::Values("Shop", "Live", "Live ANSI"),
                         [](const auto &row) { return row.index == 2 ? "LiveAnsi" : std::string(row.param); });

} // namespace

} // namespace corvanta
