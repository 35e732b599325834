#include "tests/rules/converter_page.h"

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
    recordAt(p, addCaptioned(p, Kind::Label, "<em>A&amp;B</em> &Save\x02")).sptext = "<b>\"";
    recordAt(p, addCaptioned(p, Kind::Button, "<b>Go</b>")).sptext = "\"x";
    EXPECT_EQ(elementLine(p, 0), "<div id=\"o0\" class=\"text\" title=\"&lt;b&gt;&quot;\"><em>A&amp;B</em> Save</div>");
    EXPECT_TRUE(holds(elementLine(p, 1), " title=\"&quot;x\" type=\"button\"><span><b>Go</b></span>"));
    p.pgflags = replaceHtmlFlag;
    EXPECT_TRUE(holds(elementLine(p, 0), "&lt;em&gt;"));
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

TEST(ConverterFile, FailuresWriteNothing)
{
    const TemporaryDrive drive;
    drive.add("PAGES/LARGE.ODS", std::string(fileLimit + 1, 'x'));
    drive.add("PAGES/EMPTY.ODS");
    drive.add("PAGES/PAGE.HTS", samples::sample("menu.ods"));
    for (const char *path :
         {"C:\\PAGES\\LARGE.ODS", "C:\\PAGES\\EMPTY.ODS", "C:\\PAGES\\NONE.ODS", "C:\\PAGES\\PAGE.HTS", "", "X"})
        EXPECT_EQ(ConvertOdsHts(path), 0) << path;
    EXPECT_EQ(ConvertOdsHts(nullptr), 0);
    EXPECT_FALSE(std::filesystem::exists(drive.root() / "PAGES/LARGE.hts"));
    EXPECT_FALSE(std::filesystem::exists(drive.root() / "PAGES/NONE.ODS"));
    EXPECT_EQ(hostBytes(drive.root() / "PAGES/PAGE.HTS"), samples::sample("menu.ods"));
    EXPECT_EQ(templatePath("C:\\PAGES\\MENU.ODS"), "C:\\PAGES\\MENU.hts");
    EXPECT_EQ(templatePath("AB"), "hts");
}

} // namespace
} // namespace corvanta
