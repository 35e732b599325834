#include "document/events.h"
#include "document/page_file.h"
#include "page/page_properties.h"
#include "tests/support/scripted_asking.h"

#include <gtest/gtest.h>

namespace corvanta {
namespace {

constexpr ScreenSize screen{800, 600};

class PageProperties : public testing::Test {
protected:
    PageProperties()
    {
        documentEvents() = {};
        newPage();
        editing() = {};
        editing().curdir = "C:\\";
        page().bkgwd = 400;
        page().bkght = 300;
        pictureLoader() = [this](const std::string &) { return picture; };
    }
    ~PageProperties() override
    {
        pictureLoader() = nullptr;
        newPage();
        editing() = {};
    }

    void refused(const std::string &message, const std::string &focus, const PagePropertyFields &f)
    {
        ScriptedAsking asking;
        const std::string before = serialisePage(page());
        asking.expectMessage(message, "Properties Error");
        const PageConfirmation confirmation = ConfirmPageProperties(f, screen);
        EXPECT_FALSE(confirmation.stored);
        EXPECT_EQ(confirmation.focus, focus);
        EXPECT_EQ(serialisePage(page()), before);
        EXPECT_FALSE(editing().pagedirty);
    }
    static PicturePtr pictureOf(int width, int height)
    {
        auto made = std::make_shared<Picture>();
        made->width = width;
        made->height = height;
        return made;
    }

    TemporaryDrive drive;
    PicturePtr picture;
};

TEST_F(PageProperties, FaultsAreToldInOrderAndNothingIsWritten)
{
    PagePropertyFields f = LoadPageProperties(page());
    f.bkgcol = "123456789";
    refused("Invalid background color.  A color is one to eight hexadecimal digits.", "bkgcol", f);
    f.bkgwd = "801";
    refused("Invalid background width.", "bkgwd", f);
    f.bkght = "0";
    refused("Invalid background height.", "bkght", f);
    f.sndfn = "none.wav";
    refused("Invalid sound file name.  To change the directory, use \"File... Directory\".", "sndfn", f);
    f.imgfn = "none.bmp";
    refused("Invalid background file name.  To change the directory, use \"File... Directory\".", "imgfn", f);
}

TEST_F(PageProperties, PictureGivesThePageItsSizeWhenItFitsTheScreen)
{
    ASSERT_TRUE(writeWholeFile("C:\\PAPER.BMP", "x"));
    PagePropertyFields f = LoadPageProperties(page());
    f.imgfn = " paper.bmp ";
    f.sizeTyped = false;
    f.sizeTyped = false;
    picture = pictureOf(640, 601);
    refused("Invalid picture's height.", "imgfn", f);
    picture = pictureOf(801, 480);
    refused("Invalid picture's width.", "imgfn", f);
    picture = pictureOf(640, 480);
    ASSERT_TRUE(ConfirmPageProperties(f, screen).stored);
    EXPECT_EQ(page().bkgfile, "paper.bmp");
    EXPECT_EQ(page().bkgwd, 640);
    EXPECT_EQ(page().bkght, 480);
    EXPECT_TRUE(page().pgflags & sizeFromImage);
    f.imgfn.clear();
    f.sizeTyped = true;
    ASSERT_TRUE(ConfirmPageProperties(f, screen).stored);
    EXPECT_FALSE(page().pgflags & sizeFromImage);
    EXPECT_EQ(page().background, nullptr);
}

TEST_F(PageProperties, TypedSizeStaysBesideAPicture)
{
    ASSERT_TRUE(writeWholeFile("C:\\PAPER.BMP", "x"));
    picture = pictureOf(640, 480);
    page().bkgfile = "paper.bmp";
    const std::string before = serialisePage(page());
    page().dbconnect += '\t';
    ASSERT_TRUE(ConfirmPageProperties(LoadPageProperties(page()), screen).stored);
    page().dbconnect.pop_back();
    EXPECT_EQ(serialisePage(page()), before);
}

TEST_F(PageProperties, ConnectionTextHasThreeTabs)
{
    PagePropertyFields f = LoadPageProperties(page());
    f.dsn = "a\tb";
    f.Password = "p w";
    f.bkgcol = "ff";
    ASSERT_TRUE(ConfirmPageProperties(f, screen).stored);
    EXPECT_EQ(page().dbconnect, "ab\t\tp w\t");
    EXPECT_EQ(page().bkgcol, 255);
}

TEST_F(PageProperties, PageTypeDecidesWhatIsShown)
{
    std::string table, statement;
    for (int type = 0; type < 5; ++type) {
        table += showsDefaultTable(type) ? '1' : '0';
        statement += showsSelectStatement(type) ? '1' : '0';
    }
    EXPECT_EQ(table, "10101");
    EXPECT_EQ(statement, "00100");
}

} // namespace
} // namespace corvanta
