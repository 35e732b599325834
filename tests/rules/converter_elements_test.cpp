#include "tests/rules/converter_page.h"

#include <gtest/gtest.h>

#include <cstdlib>

namespace corvanta {
namespace {

std::string buttonWith(const std::string &actionText)
{
    Page p;
    recordAt(p, addCaptioned(p, Kind::Button, "Go")).actlist = actionText;
    return elementLine(p, 0);
}

bool leaves(std::int16_t code)
{
    return code == action::nextRecord || code == action::downloadFile || code == action::closePage;
}

TEST(ConverterActions, EachKindBecomesItsControl)
{
    const std::string plain = "<button id=\"o0\" class=\"button\" type=\"", text = "\"><span>Go</span></button>";
    EXPECT_EQ(buttonWith(""), plain + "button" + text);
    EXPECT_EQ(buttonWith(encodeAction({action::resetForm, {}})), plain + "reset" + text);
    EXPECT_EQ(buttonWith(encodeAction({action::goToPage, {"MENU"}})),
              "<a id=\"o0\" class=\"button\" href=\"MENU.hts\"><span>Go</span></a>");
    EXPECT_TRUE(holds(buttonWith(encodeAction({action::goToUrl, {"http://x.example/?a&b"}})), "?a&amp;b\""));
    EXPECT_EQ(buttonWith(encodeAction({action::goToUrl, {"javascript:alert(1)"}})), plain + "button" + text);
    for (const std::int16_t code :
         {action::nextRecord, action::updateRecord, action::submitSelect, action::executeSql, action::downloadFile,
          action::uploadFile, action::list, action::closePage, action::executeApp, std::int16_t{999}})
        EXPECT_EQ(buttonWith(encodeAction({code, {}})),
                  plain + "submit\" name=\"object\" value=\"0" +
                      (leaves(code) ? "\" formnovalidate><span>Go</span></button>" : text))
            << code;
}

TEST(ConverterActions, AMessageBoxIsADialogThatNeedsNoScript)
{
    Page p;
    addTo(p, Kind::Label);
    recordAt(p, addCaptioned(p, Kind::Button, "Go")).actlist = encodeAction({action::messageBox, {"<T>", "a\r\nb"}});
    const std::string html = htmlTemplate(p);
    EXPECT_TRUE(holds(elementLine(html, 1),
                      " type=\"button\" command=\"show-modal\" commandfor=\"o1m\" popovertarget=\"o1m\""));
    EXPECT_TRUE(
        holds(html, "<dialog id=\"o1m\" popover aria-labelledby=\"o1t\"><h2 id=\"o1t\">&lt;T&gt;</h2>"
                    "<p>a&#10;b</p><button type=\"button\" command=\"close\" commandfor=\"o1m\" popovertarget=\"o1m\" "
                    "popovertargetaction=\"hide\">OK</button></dialog>"));
}

struct FieldCase {
    std::int16_t inptype, sysobj, maxlen, flags;
    PageKind page;
    std::string parts, absent; // parts are separated by "|"
};

TEST(ConverterFields, TextBoxesFollowTypeSystemObjectFlagsAndPage)
{
    const FieldCase cases[] = {
        {0, -1, 40, 0, PageKind::Query, "<input type=\"text\"| maxlength=\"40\"| value=\"@n@\"", "number"},
        {0, -1, 0, readonlyFlag, PageKind::Record, " value=\"@n@\"| readonly", "maxlength"},
        {6, -1, 9, 0, PageKind::Record, " inputmode=\"decimal\"| maxlength=\"9\"| value=\"@n@\"", "number"},
        {1, -1, 0, 0, PageKind::QueryView, " inputmode=\"numeric\"| value=\"@n@\"| pattern=", "number"},
        {3, -1, 0, multiFlag, PageKind::Record, "<input type=\"text\"| placeholder=\"YYYY-MM-DD\"| value=\"@n@\"",
         "date"},
        {4, -1, 0, 0, PageKind::Query, " placeholder=\"HH:MM\"| value=\"@n@\"", "number"},
        {0, 1, 8, multiFlag, PageKind::Record, " type=\"password\"| maxlength=\"8\"", "@n@"},
        {0, 0, 0, 0, PageKind::Query, " autocomplete=\"username\"", "password"},
        {0, -1, 255, multiFlag, PageKind::Record, "<textarea | maxlength=\"255\"|>@n@</textarea>", "type="},
        {3, -1, 0, invisibleFlag, PageKind::Record, "<input type=\"hidden\"| name=\"n\" value=\"@n@\"", "date"},
        {0, 1, 0, invisibleFlag, PageKind::Record, "<input type=\"hidden\"", "value"},
    };
    for (const FieldCase &c : cases) {
        Page p;
        p.PageType = static_cast<std::int16_t>(c.page);
        ObjectRecord &o = recordAt(p, addTo(p, Kind::TextBox));
        o.ctlname = "n";
        o.datacol = "T.C";
        o.objflags = c.flags;
        p.tbxextras.back() = {c.inptype, c.sysobj, c.maxlen};
        const std::string line = elementLine(p, 0);
        std::string parts = c.parts + "|";
        for (std::size_t end; (end = parts.find('|')) != std::string::npos; parts.erase(0, end + 1))
            EXPECT_TRUE(holds(line, parts.substr(0, end))) << line << "\n" << parts.substr(0, end);
        EXPECT_FALSE(holds(line, c.absent)) << line << "\n" << c.absent;
    }
}

TEST(ConverterActions, EntriesOfAListBoxAct)
{
    Page p;
    addTo(p, Kind::ListBox);
    p.lbxextras.back() = {{"Menu", encodeAction({action::goToPage, {"MENU"}})},
                          {"Say", encodeAction({action::messageBox, {"T", "x"}})},
                          {"Find", encodeAction({action::submitSelect, {}})},
                          {"Rest", ""},
                          {"\xa0", encodeAction({action::resetForm, {}})}};
    const std::string html = htmlTemplate(p), line = elementLine(html, 0);
    for (const char *part : {"<li><a href=\"MENU.hts\">Menu</a></li>", " popovertarget=\"o0e1m\">Say</button></li>",
                             "<li><button type=\"submit\" name=\"object\" value=\"0:2\">Find</button></li>",
                             "<li><span>Rest</span></li>", "type=\"reset\">&nbsp;<span class=\"hidden\">Reset Form"})
        EXPECT_TRUE(holds(line, part)) << part;
    EXPECT_TRUE(holds(html, "<dialog id=\"o0e1m\" popover aria-labelledby=\"o0e1t\">"));
    p.lbxextras.back() = {{"Plain", ""}};
    p.lbx.back().font.FontSize = 0.001f;
    EXPECT_TRUE(holds(elementLine(p, 0),
                      "<select id=\"o0\" class=\"field\" name=\"object-0\" aria-label=\"List Box 1\" size=\"8\">"));
}

TEST(ConverterActions, MnemonicsAreAccessKeysOfTheFirstThatHasThem)
{
    Page p;
    for (const char *caption : {"&Save", "&Stop", "A && B", "Plain"})
        addCaptioned(p, Kind::Button, caption);
    EXPECT_TRUE(holds(elementLine(p, 0), " accesskey=\"s\""));
    for (const std::int16_t other : {1, 2, 3})
        EXPECT_FALSE(holds(elementLine(p, other), "accesskey"));
}

TEST(ConverterGrid, ColumnsAreHeaderCellsOfTheirWidth)
{
    Page p;
    addTo(p, Kind::Grid);
    p.gridcolumns = {{"Name\tSecret.Column", 2400}, {"\tX.Y", 0}, {}};
    const std::string html = htmlTemplate(p);
    EXPECT_TRUE(holds(elementLine(html, 0), "<thead><tr><th scope=\"col\">Name</th><td></td></tr></thead>"
                                            "<tbody><tr><td></td><td></td></tr></tbody>"));
    EXPECT_TRUE(holds(elementLine(html, 0), " tabindex=\"0\""));
    EXPECT_TRUE(holds(html, "#o0 tr>:nth-child(1){width:160px}"));
    EXPECT_FALSE(holds(html, "Secret"));
}

TEST(ConverterMoving, AnAnimationStepsThroughItsFramesAndStaysOnTheLast)
{
    Page p;
    const auto index = addTo(p, Kind::Animation, 100, 50);
    recordAt(p, index).srcfile = "a.bmp\tding.wav\t\t\tc.bmp\t";
    storeFrames(p, index, {frameAt(50, 100, 5), frameAt(0, 0, 5), frameAt(60, 90, 10)});
    p.aniextras.back().nplay = 3;
    std::string html = htmlTemplate(p);
    EXPECT_TRUE(holds(html, "@keyframes o0f0{0%{visibility:visible}25%{visibility:hidden}}"));
    EXPECT_TRUE(holds(html, "@keyframes o0f2{0%{visibility:hidden}50%{visibility:visible}}"));
    EXPECT_TRUE(holds(html, "#o0f2{left:-10px;top:10px;animation:o0f2 2s step-end 3;}"));
    EXPECT_EQ(elementLine(html, 0), "<div id=\"o0\" class=\"animation\" role=\"img\" tabindex=\"0\" "
                                    "aria-label=\"Animation 1\"><img id=\"o0f0\" src=\"a.bmp\" alt=\"\">"
                                    "<img id=\"o0f2\" src=\"c.bmp\" alt=\"\"></div>");
    p.aniextras.back().nplay = 0;
    p.aniextras.back().frozen = 1;
    html = htmlTemplate(p);
    EXPECT_TRUE(holds(html, "#o0f2{left:0px;top:0px;animation:o0f2 2s step-end infinite;}"));
}

TEST(ConverterMoving, ATickersSpeedDoesNotDependOnItsText)
{
    const double pixelsPerSecond = 125;
    for (const std::int16_t speed : {1, 4, 10})
        for (const char *text : {"", "iiiiiiii", "WWWWWWWWWWWWWWWWWWWWWWWW"}) {
            Page p;
            addCaptioned(p, Kind::Ticker, text);
            p.tkrextras[static_cast<std::size_t>(p.ctlindex[0])] = speed;
            const std::string html = htmlTemplate(p);
            const double way = std::atof(html.c_str() + html.find("--way:-") + 7);
            const double seconds = std::atof(html.c_str() + html.find("animation-duration:") + 19) / 1000;
            EXPECT_GE(way, 100);
            EXPECT_NEAR(way / seconds, pixelsPerSecond * speed, pixelsPerSecond * speed * 0.03) << text;
        }
}

TEST(ConverterTemplate, DocumentFollowsThePagesFields)
{
    Page p;
    p.pgcaption = "A <page>";
    p.pgflags = replaceHtmlFlag | rtlFlag;
    p.bkgwd = 300;
    p.bkght = 200;
    p.bkgcol = 0x0000FF;
    p.bkgfile = "C:\\HERE\\a b.bmp";
    p.sndfn = "ding.wav";
    addTo(p, Kind::HotSpot, 5, -6, 7, -8);
    addTo(p, Kind::File);
    const std::string html = htmlTemplate(p);
    for (const char *part :
         {"<html lang=\"en\" dir=\"rtl\">", "<title>A &lt;page&gt;</title>", "<h1 class=\"hidden\">A &lt;page&gt;</h1>",
          "<form method=\"post\" enctype=\"multipart/form-data\">\n<button type=\"submit\" name=\"object\" value=\"\" "
          "disabled hidden>",
          "<meta name=\"viewport\" content=\"width=320\">", "body{margin:0;direction:ltr}", "color-scheme:light",
          ".page,dialog{direction:rtl}\n.page{position:absolute;left:0;top:0;width:300px;height:200px;background:#"
          "ff0000 url(\"a%20b.bmp\") "
          "no-repeat}",
          "<audio class=\"below\" controls preload=\"none\" src=\"ding.wav\" aria-label=\"ding.wav\"></audio>",
          "#o0{left:5px;top:-6px;width:7px;height:0;z-index:3;"})
        EXPECT_TRUE(holds(html, part)) << part;
    p.pgcaption = std::string(60, 'a') + std::string(60, '"');
    EXPECT_TRUE(holds(htmlTemplate(p), "<title>" + std::string(60, 'a') + "&quot;…</title>"));
    p.pgcaption = " ";
    p.PageType = 3;
    EXPECT_TRUE(holds(htmlTemplate(p), "<title>Hit List</title>"));
}

} // namespace
} // namespace corvanta
