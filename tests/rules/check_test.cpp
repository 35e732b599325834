#include "actions/links.h"
#include "check/check.h"
#include "document/objects.h"
#include "document/page_file.h"
#include "tests/rules/odspage_files.h"

#include <filesystem>
#include <functional>

namespace corvanta {

namespace {

const std::string sampleFolder = CORVANTA_SOURCE "/samples/";

Page samplePage(const char *name)
{
    Page p;
    parsePage(p, hostBytes(sampleFolder + name));
    return p;
}

struct Fault {
    const char *rule;
    std::int16_t object;
    std::function<void(Page &)> make;
};

ObjectRecord &object(Page &p, std::size_t i) { return p.objects[i]; }
std::string goTo(const char *name) { return encodeAction({action::goToPage, {name}}); }

// One fault each in the sample of a query: 2 and 7 are text boxes, 4 and 5 a combo box and its condition, 11 and 12
// buttons.
const std::vector<Fault> faults{
    {"outside", 12, [](Page &p) { object(p, 12).pleft = 590; }},
    {"zero-size", 7, [](Page &p) { object(p, 7).pwidth = 0; }},
    {"covered", 8,
     [](Page &p) {
         object(p, 9).pleft = 0;
         object(p, 9).pwidth = 240;
     }},
    {"overlap", 5, [](Page &p) { object(p, 5).pleft = 320; }},
    {"text-fit", 11, [](Page &p) { p.but[1].Caption = std::string(60, 'W'); }},
    {"contrast", 2, [](Page &p) { p.tbx[1].font.ForeColor = 0xEEEEEE; }},
    {"tab-order", 2, [](Page &p) { object(p, 2).tbindex = 9; }},
    {"page", 12, [](Page &p) { object(p, 12).actlist = goTo("NOWHERE"); }},
    {"page", 12, [](Page &p) { object(p, 12).actlist = goTo("Menu"); }},
    {"media", -1, [](Page &p) { p.bkgfile = "Paper.bmp"; }},
    {"media", -1, [](Page &p) { p.sndfn = "none.wav"; }},
    {"media", 11, [](Page &p) { object(p, 11).srcfile = "..\\paper.bmp"; }},
    {"name-twice", 9, [](Page &p) { object(p, 9).ctlname = "CUSTNAME"; }},
    {"placeholder", -1, [](Page &p) { p.SelectStmt = "Select * From Customers Where Name = '@nobody@'"; }},
    {"condition", 4, [](Page &p) { object(p, 4).condobjname = "nobody"; }},
    {"no-name", 9, [](Page &p) { object(p, 9).ctlname = ""; }},
    {"transfer", 12,
     [](Page &p) {
         object(p, 12).actlist = encodeAction({action::downloadFile, {"custname"}});
     }},
    {"quoting", 9, [](Page &p) { object(p, 9).datacol = "Order Details.Price"; }},
    {"quoting", 9, [](Page &p) { object(p, 9).datacol = "Customers.Order"; }},
    {"password", -1, [](Page &p) { p.dbconnect = "Corvanta Samples\tme\tsecret\tCustomers"; }},
    {"size", -1, [](Page &p) { p.keyreq = std::string(16384, 'x'); }},
    {"unknown-kind", 10, [](Page &p) { object(p, 10).kind = 99; }},
};

TEST(Check, FindsEachFaultAndNothingElse)
{
    const CheckFolder folder(sampleFolder);
    for (const Fault &fault : faults) {
        SCOPED_TRACE(fault.rule);
        Page p = samplePage("query.ods");
        fault.make(p);
        const std::vector<Finding> found = checkPage({p, &folder});
        ASSERT_EQ(found.size(), 1U) << (found.size() > 1 ? found[1].text : "");
        EXPECT_EQ(found[0].rule, fault.rule);
        EXPECT_EQ(found[0].object, fault.object);
    }
}

TEST(Check, TheSamplesHaveNoFaults)
{
    const ToolResult result = odspage({"check", sampleFolder});
    EXPECT_EQ(result.out + result.err, "");
    EXPECT_EQ(result.exitCode, 0);
}

class CheckedFolder : public testing::Test {
protected:
    void SetUp() override
    {
        std::filesystem::copy(sampleFolder, scratch.path("pages"), std::filesystem::copy_options::recursive);
        Page p = samplePage("query.ods");
        p.bkgfile = "Paper.BMP";
        object(p, 2).tbindex = 9;
        object(p, 12).actlist = goTo("Menu");
        p.dbconnect = "x\ty\tz\t";
        scratch.write("pages/query.ods", serialisePage(p));
        scratch.write("pages/alone.ods", hostBytes(sampleFolder + "view.ods"));
        scratch.write("pages/cut.ods", hostBytes(sampleFolder + "view.ods").substr(0, 400));
    }
    std::string lines(std::vector<std::string> options)
    {
        options.insert(options.begin(), {"check", scratch.path("pages")});
        std::string out = odspage(options).out;
        for (std::size_t at; (at = out.find(scratch.path("pages/"))) != std::string::npos;)
            out.erase(at, scratch.path("pages/").size());
        return out;
    }

    const ScratchFolder scratch;
    const std::string damaged = "cut.ods: damaged: the bytes end too early, or saving would change them\n";
    const std::string password =
        "query.ods: password: the password of data source \"x\" stands in the page for everybody to read\n";
    const std::string alone = "alone.ods: unreachable: no action leads here from page \"menu\"\n"
                              "cut.ods: unreachable: no action leads here from page \"menu\"\n";
};

TEST_F(CheckedFolder, TellsTheSeededFaultsAndMendsWhatIsSafe)
{
    const std::string safe = "query.ods: object 2 (Text Box custname): tab-order: the Tab key comes to object 4 (Combo "
                             "Box city) first, which "
                             "is read later\n"
                             "query.ods: object 12 (Button Reset): page: page \"Menu\" is spelled \"menu\"\n"
                             "query.ods: media: \"Paper.BMP\" is spelled \"paper.bmp\" there\n";
    EXPECT_EQ(lines({}), damaged + safe + password + alone);
    EXPECT_EQ(lines({"--rule", "password"}), password);
    EXPECT_EQ(lines({"--fix"}), damaged + password + alone);
    EXPECT_EQ(hostBytes(scratch.path("pages/menu.ods")), hostBytes(sampleFolder + "menu.ods"));
    EXPECT_EQ(odspage({"check", "--rule", "colour", sampleFolder}).exitCode, 2);
}

TEST_F(CheckedFolder, SettingsBesideThePagesLeaveFindingsOut)
{
    scratch.write("pages/.odspage.toml", "[check]\nignore = ['unreachable', 'damaged']\n"
                                         "[check.pages.'query.ods']\nrules = ['password']\n");
    EXPECT_EQ(lines({}), password);
    const Json json = parseJson(odspage({"check", "--json", scratch.path("pages")}).out);
    ASSERT_EQ(json.size(), 1U);
    EXPECT_EQ(json[0]["rule"], "password");
    const Json sarif = parseJson(odspage({"check", "--sarif", scratch.path("pages")}).out);
    EXPECT_EQ(sarif["runs"][0]["results"][0]["ruleId"], "password");
    scratch.write("pages/.odspage.toml", "[check]\nignore = ['colour']\n");
    const ToolResult wrong = odspage({"check", scratch.path("pages")});
    EXPECT_NE(wrong.err.find("there is no rule \"colour\""), std::string::npos) << wrong.err;
    EXPECT_EQ(wrong.exitCode, 1);
}

} // namespace

} // namespace corvanta
