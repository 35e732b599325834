#include "tests/rules/converter_page.h"

#include "converter/convert.h"
#include "converter/ods2hts.h"
#include "document/encoding.h"
#include "document/page_file.h"
#include "tests/support/samples.h"
#include "tests/support/temporary_drive.h"

#include <gtest/gtest.h>

namespace corvanta {
namespace {

const std::string marker = "CANARY";
const std::string hostile = "\"'><script>alert(1)</script><!--\x01";

// A page with every kind, each with the same action and texts.
Page pageOfAllKinds(const ObjectRecord &common)
{
    Page p;
    p.gridcolumns = {{"Header\t" + marker + ".Column", 900}, {}};
    for (std::int16_t code = firstKind; code <= lastKind; ++code) {
        ObjectRecord record = common;
        record.kind = code;
        const auto index = appendObject(p, std::move(record));
        if (kindOf(code) == Kind::Animation)
            storeFrames(p, index, {frameAt(0, 0, 5), frameAt(0, 0, 5)});
    }
    return p;
}

TEST(ConverterSecrets, NoTemplateHoldsConnectionsKeysStatementsOrDirectories)
{
    const std::string path = "C:\\" + marker + "\\X";
    const Action actions[] = {{action::none, {}},
                              {action::goToPage, {path}},
                              {action::goToUrl, {path}},
                              {action::serverApp, {marker, marker, marker}},
                              {action::executeApp, {marker, marker}},
                              {action::submitSelect, {marker, marker, marker}},
                              {action::executeSql, {marker}},
                              {action::downloadFile, {marker}},
                              {action::pageUser, {marker}}};
    for (const Action &a : actions)
        for (const std::int16_t type : {0, 1, 2, 3, 4}) {
            ObjectRecord common;
            common.keyreq = common.updatekey = common.datacol = common.condobjname = marker;
            common.srcfile = path;
            common.ctlname = "name";
            common.actlist = encodeActionList({{encodeAction(a), marker}});
            for (const bool nested : {true, false}) {
                if (!nested)
                    common.actlist = encodeAction(a);
                Page p = pageOfAllKinds(common);
                p.PageType = type;
                p.dbconnect = marker + "\t" + marker + "\t" + marker + "\t" + marker;
                p.SelectStmt = p.keyreq = marker;
                p.bkgfile = p.sndfn = path;
                p.butextras.back() = {marker, marker, marker, marker, ""};
                p.lbxextras.back() = {{"Entry", common.actlist}};
                EXPECT_FALSE(holds(htmlTemplate(p), marker)) << a.code << " on page type " << type;
            }
        }
}

TEST(ConverterSecrets, FilteredTextsNeverBecomeMarkup)
{
    ObjectRecord common;
    common.sptext = common.ctlname = common.datacol = common.srcfile = hostile;
    for (const std::int16_t code : {action::goToPage, action::goToUrl, action::messageBox, action::closePage}) {
        common.actlist = encodeAction({code, {hostile, hostile}});
        Page p = pageOfAllKinds(common);
        p.pgcaption = p.bkgfile = p.sndfn = hostile;
        p.gridcolumns[0].descriptor = hostile;
        for (auto *elements : {&p.but, &p.lbl, &p.tbx, &p.tkr, &p.url, &p.grd}) {
            elements->at(1).Caption = hostile;
            elements->at(1).font.FontName = hostile;
        }
        p.butextras.back().balhelp = hostile;
        p.cbxextras.back() = {hostile};
        p.lbxextras.back() = {{hostile, ""}};
        const std::string html = htmlTemplate(p);
        EXPECT_FALSE(holds(html, "<script")) << code;
        EXPECT_FALSE(holds(html, "<!--")) << code;
        EXPECT_FALSE(holds(html, "\x01")) << code;
        EXPECT_FALSE(holds(html, "=\"\"'")) << code; // a quote that ends an attribute
    }
}

TEST(ConverterSecrets, UnfilteredCaptionsKeepMarkupAndAttributesDoNot)
{
    Page p;
    p.pgflags = 0;
    recordAt(p, addCaptioned(p, Kind::Label, "<em title=\"?a&b\">A&amp;B</em> &Save\x02")).sptext = "<b>\"";
    recordAt(p, addCaptioned(p, Kind::Button, "<b>Go</b>")).sptext = "\"x";
    EXPECT_EQ(
        elementLine(p, 0),
        "<div id=\"o0\" class=\"text\" title=\"&lt;b&gt;&quot;\"><em title=\"?a&b\">A&amp;B</em> <u>S</u>ave</div>");
    EXPECT_TRUE(holds(elementLine(p, 1), " title=\"&quot;x\" type=\"button\"><span><b>Go</b></span>"));
    p.pgflags = replaceHtmlFlag;
    EXPECT_TRUE(holds(elementLine(p, 0), "&lt;em title"));
}

TEST(ConverterFile, TheTemplateIsWrittenBesideThePage)
{
    const TemporaryDrive drive;
    drive.add("PAGES/RECORD.ODS", samples::sample("record.ods"));
    EXPECT_NE(ConvertOdsHts("C:\\PAGES\\RECORD.ODS"), 0);
    const std::string html = hostBytes(drive.root() / "PAGES/RECORD.hts");
    EXPECT_TRUE(html.starts_with("<!DOCTYPE html>\n"));
    EXPECT_TRUE(html.ends_with("</html>\n"));
    for (const char *secret : {"s3cret", "Orders", "clerk", "manager", "HARBOUR", "Unit Price", "0.9", "STOCK"})
        EXPECT_FALSE(holds(html, secret)) << secret;
}

TEST(ConverterFile, ATextFileThatLeadsOutOfTheDirectoryStaysOut)
{
    const TemporaryDrive drive;
    drive.add("secret", "TOPSECRET");
    drive.add("PAGES/note.txt", "a note");
    std::filesystem::create_symlink("../secret", drive.root() / "PAGES/link.txt");
    for (const char *name : {"note.txt", "link.txt"}) {
        Page p;
        createVisual(p, encodeInt16(static_cast<std::int16_t>(Kind::TextBox)));
        p.objects[0].srcfile = name;
        const std::string html = htmlTemplate(p, drive.root() / "PAGES");
        EXPECT_EQ(holds(html, "a note"), std::string(name) == "note.txt");
        EXPECT_FALSE(holds(html, "TOPSECRET"));
    }
}

TEST(ConverterFile, FailuresWriteNothing)
{
    const TemporaryDrive drive;
    drive.add("PAGES/LARGE.ODS", std::string(fileLimit + 1, 'x'));
    drive.add("PAGES/EMPTY.ODS");
    const std::string menu = samples::sample("menu.ods");
    drive.add("PAGES/PAGE.hts", menu);
    drive.add("PAGES/LINKED.ODS", menu);
    drive.add("PAGES/PICTURE.ODS", "\xFF\xD8\xFF\xE0 no page");
    drive.add("PAGES/TEXT.ODS", "A letter, not a page.");
    drive.add("PAGES/CUT.ODS", menu.substr(0, 20));
    drive.add("PAGES/A", menu);
    std::filesystem::create_symlink("LINKED.ODS", drive.root() / "PAGES/LINKED.hts");
    drive.add("PAGES/OTHER.ODS", menu);
    std::filesystem::create_symlink("A", drive.root() / "PAGES/OTHER.hts");
    const std::pair<const char *, const char *> failures[] = {
        {"C:\\PAGES\\OTHER.ODS", "the template would be written through a link"},
        {"C:\\PAGES\\LARGE.ODS", "more than 16384 bytes"},
        {"C:\\PAGES\\EMPTY.ODS", "the file is empty"},
        {"C:/PAGES/NONE.ODS", "no such file"},
        {"C:\\PAGES\\PAGE.hts", "the template would replace the page itself"},
        {"C:\\PAGES\\LINKED.ODS", "the template would replace the page itself"},
        {"C:\\PAGES\\PICTURE.ODS", "not a page file"},
        {"C:\\PAGES\\TEXT.ODS", "not a page file"},
        {"C:\\PAGES\\CUT.ODS", "not a page file"},
        {"C:\\PAGES\\A", "the name is too short for that of a page file"},
        {"", "no such file"},
        {nullptr, "no such file"}};
    const auto files = [&] {
        const std::filesystem::directory_iterator listing(drive.root() / "PAGES");
        return std::distance(begin(listing), end(listing));
    };
    const auto before = files();
    for (const auto &[path, reason] : failures) {
        EXPECT_EQ(ConvertOdsHts(path), 0) << path;
        EXPECT_STREQ(ConvertOdsHtsMessage(), reason);
    }
    EXPECT_EQ(ConvertOdsHtsCodePage("C:\\PAGES\\PAGE.hts", 437), 0);
    EXPECT_STREQ(ConvertOdsHtsMessage(), "unknown code page 437");
    EXPECT_EQ(files(), before);
    EXPECT_EQ(hostBytes(drive.root() / "PAGES/PAGE.hts"), menu);
    EXPECT_EQ(hostBytes(drive.root() / "PAGES/LINKED.ODS"), menu);
}

TEST(ConverterFile, NothingOutsideThePagesDirectoryGetsIntoATemplate)
{
    const TemporaryDrive drive;
    drive.add("secret.txt", marker);
    drive.add("PAGES/SUB/secret.txt", marker);
    drive.add("PAGES/Note.TXT", "from the page's directory\x1A");
    const std::string outside = drive.root() / "secret.txt";
    Page p = pageOfAllKinds({});
    const auto text = addTo(p, Kind::TextBox), list = addTo(p, Kind::ListBox);
    const std::string names[] = {"../secret.txt",
                                 "..\\secret.txt",
                                 outside,
                                 "C:\\secret.txt",
                                 "C:secret.txt",
                                 "SUB/secret.txt",
                                 "SUB\\secret.txt",
                                 "..",
                                 "."};
    for (const std::string &name : names) {
        for (std::int16_t i = 0; i < objectCount(p); ++i) {
            recordAt(p, i).srcfile = name;
            recordAt(p, i).actlist = encodeAction({action::goToPage, {name}});
        }
        p.frames[1].image = p.frames[2].image = p.frames[1].sound = p.bkgfile = p.sndfn = name;
        p.lbxextras.back() = {{"Entry", encodeAction({action::goToPage, {name}})}};
        const std::string html = htmlTemplate(p, drive.root() / "PAGES");
        for (const char *part : {"CANARY", "\"..", "\".\"", "SUB", "url(\".", "C:"})
            EXPECT_FALSE(holds(html, part)) << name << " gave " << part;
        EXPECT_TRUE(holds(elementLine(html, list), "Entry"));
    }
    recordAt(p, text).srcfile = "NOTE.txt";
    EXPECT_TRUE(
        holds(elementLine(htmlTemplate(p, drive.root() / "PAGES"), text), "value=\"from the page&#39;s directory\""));
}

TEST(ConverterFile, LinksHaveTheSpellingOfTheFilesBesideThePage)
{
    const TemporaryDrive drive;
    drive.add("Menu.ODS");
    drive.add("Logo.BMP");
    Page p;
    recordAt(p, addTo(p, Kind::HotSpot)).actlist = encodeAction({action::goToPage, {"MENU"}});
    recordAt(p, addTo(p, Kind::HotSpot)).actlist = encodeAction({action::goToPage, {"menu.ods"}});
    recordAt(p, addTo(p, Kind::Image)).srcfile = "logo.bmp";
    recordAt(p, addTo(p, Kind::HotSpot)).actlist = encodeAction({action::goToPage, {""}});
    const std::string html = htmlTemplate(p, drive.root());
    EXPECT_TRUE(holds(elementLine(html, 0), "href=\"Menu.hts\""));
    EXPECT_TRUE(holds(elementLine(html, 1), "href=\"Menu.hts\""));
    EXPECT_TRUE(holds(elementLine(html, 2), "src=\"Logo.BMP\""));
    EXPECT_TRUE(holds(elementLine(html, 3), "href=\"Menu.hts\""));
}

TEST(ConverterFile, ALibraryCallStartsFromTheDirectoryOfThatMoment)
{
    const TemporaryDrive drive;
    const auto former = std::filesystem::current_path();
    for (const char *folder : {"ONE", "TWO"}) {
        drive.add(std::string(folder) + "/SUB/page.ods", samples::sample("menu.ods"));
        std::filesystem::current_path(drive.root() / folder);
        EXPECT_NE(ConvertOdsHts("SUB/page.ods"), 0) << ConvertOdsHtsMessage();
        EXPECT_TRUE(std::filesystem::exists(drive.root() / folder / "SUB/page.hts"));
    }
    std::filesystem::current_path(former);
}

} // namespace
} // namespace corvanta
