#include "database/connection.h"
#include "page/ui/pgprops.h"
#include "platform/qt/qt_pictures.h"
#include "platform/qt/window_switch.h"
#include "tests/windows/drops.h"
#include "tests/windows/objects_page.h"

#include <QCheckBox>
#include <QComboBox>
#include <QPlainTextEdit>
#include <QPushButton>
#include <QScreen>
#include <QTest>

using namespace corvanta;

namespace {

class PagePropertiesWindow : public PropertyDialogs {
protected:
    PagePropertiesWindow()
    {
        installPictureLoader();
        switchableWindows() = [this] { return std::vector<QWidget *>{&mainWindow}; };
    }
    ~PagePropertiesWindow() override
    {
        if (QDialog *open = openDialog())
            open->close();
        settle();
        switchableWindows() = nullptr;
        connection() = {};
        removePictureLoader();
    }

    void open()
    {
        openPageProperties([this] { ++closed; });
    }
    template <class Control = QLineEdit> static Control &field(const char *name)
    {
        return find<Control>(*openDialog(), name);
    }
    static void press(const char *name)
    {
        field<QPushButton>(name).click();
        settle();
    }
    // What the dialog shows of the database: the group, and the statement with its label and button.
    static std::string shown()
    {
        std::string parts;
        for (const char *name : {"deftbl", "deftbllabel", "database", "SelectStmt", "SelectStmtlabel", "generate"})
            parts += field<QWidget>(name).isVisible() ? '1' : '0';
        return parts;
    }
    void refused(const char *message, const char *focus)
    {
        ScriptedAsking user;
        user.expectMessage(message, "Properties Error");
        press("ok");
        ASSERT_NE(openDialog(), nullptr) << message;
        EXPECT_EQ(openDialog()->focusWidget(), &field(focus)) << message;
        EXPECT_EQ(field(focus).selectedText(), field(focus).text()) << message;
        EXPECT_FALSE(editing().pagedirty);
    }

    QWidget mainWindow;
    int closed = 0;
};

} // namespace

TEST_F(PagePropertiesWindow, CancelAfterChangingEveryFieldWritesNothing)
{
    page().PageType = 2;
    const std::string before = serialisePage(page());
    open();
    field("pgcaption").setText("being typed");
    open();
    EXPECT_EQ(field("pgcaption").text(), "being typed") << "a second opening keeps the first";
    EXPECT_FALSE(mainWindow.isEnabled());
    for (auto *edit : openDialog()->findChildren<QLineEdit *>())
        edit->setText("changed");
    for (auto *box : openDialog()->findChildren<QCheckBox *>())
        box->toggle();
    field<QPlainTextEdit>("SelectStmt").setPlainText("changed");
    field<QComboBox>("PageType").setCurrentIndex(4);
    press("cancbut");
    EXPECT_EQ(openDialog(), nullptr);
    EXPECT_TRUE(mainWindow.isEnabled());
    EXPECT_EQ(closed, 1);
    EXPECT_EQ(serialisePage(page()), before);
    EXPECT_FALSE(editing().pagedirty);
}

TEST_F(PagePropertiesWindow, FieldsAreStored)
{
    open();
    EXPECT_EQ(field("bkgcol").text(), "C0C0C0");
    {
        ScriptedAsking user;
        user.expectColourDialog(0x00FF8001);
        press("bkgsel");
        EXPECT_EQ(user.colours.front(), 0xC0C0C0);
    }
    EXPECT_EQ(field("bkgcol").text(), "FF8001");
    field("bkgcol").setText("ff");
    field<QComboBox>("PageType").setCurrentIndex(3);
    field("dsn").setText("Shop");
    field("Username").setText("ann");
    field("Password").setText("p w");
    field("deftbl").setText("Orders");
    field<QPlainTextEdit>("SelectStmt").setPlainText("Select 1");
    field("pgcaption").setText("The shop");
    field("keyreq").setText("K");
    field<QCheckBox>("rtl").setChecked(true);
    field<QCheckBox>("anonymous").setChecked(true);
    field<QCheckBox>("replacehtml").setChecked(false);
    press("ok");
    EXPECT_EQ(page().bkgcol, 255);
    EXPECT_EQ(page().PageType, 3);
    EXPECT_EQ(page().dbconnect, "Shop\tann\tp w\tOrders");
    EXPECT_EQ(page().SelectStmt + "/" + page().pgcaption + "/" + page().keyreq, "Select 1/The shop/K");
    EXPECT_EQ(page().pgflags, rtlFlag | anonymousFlag);
}

TEST_F(PagePropertiesWindow, FaultsKeepTheDialogOpenUntilTheyAreMended)
{
    open();
    field("imgfn").setText(" C:\\pic.bmp ");
    refused("Invalid background file name.  To change the directory, use \"File... Directory\".", "imgfn");
    field("imgfn").clear();
    field("sndfn").setText("none.wav");
    refused("Invalid sound file name.  To change the directory, use \"File... Directory\".", "sndfn");
    field("sndfn").clear();
    field("bkght").setText("0");
    refused("Invalid background height.", "bkght");
    field("bkght").setText("300");
    field("bkgwd").setText(QString::number(openDialog()->screen()->size().width() + 1));
    refused("Invalid background width.", "bkgwd");
    field("bkgwd").setText("401");
    press("ok");
    EXPECT_EQ(openDialog(), nullptr);
    EXPECT_EQ(page().bkght, 300);
    EXPECT_EQ(page().bkgwd, 401);
}

TEST_F(PagePropertiesWindow, PageTypeShowsTableAndStatement)
{
    const std::vector<std::string> expected{"111000", "000000", "111111", "000000", "111000"};
    for (std::int16_t type = 0; type < 5; ++type) {
        page().PageType = type;
        open();
        EXPECT_EQ(field<QComboBox>("PageType").currentIndex(), type);
        EXPECT_EQ(shown(), expected[static_cast<std::size_t>(type)]) << type;
        const int other = (type + 2) % 5;
        field<QComboBox>("PageType").setCurrentIndex(other);
        EXPECT_EQ(shown(), expected[static_cast<std::size_t>(other)]) << type << " to " << other;
        press("cancbut");
    }
}

TEST_F(PagePropertiesWindow, TakesDraggedSourceAndTable)
{
    connection().source = "Shop";
    connection().user = "ann";
    connection().password = "secret";
    open();
    EXPECT_TRUE(dropOn(field("dsn"), "dsn", "Shop"));
    EXPECT_EQ(field("dsn").text() + field("Username").text() + field("Password").text(), "Shopannsecret");
    EXPECT_EQ(field("Password").echoMode(), QLineEdit::Password);
    EXPECT_TRUE(dropOn(field("dsn"), "dsn", "Archive", {3, 3}, false));
    EXPECT_EQ(field("dsn").text() + field("Username").text() + field("Password").text(), "Archive");
    EXPECT_TRUE(dropOn(field("dsn"), "dsn", "Shop"));
    EXPECT_TRUE(dropOn(field("deftbl"), "dbs", "Order Lines"));
    EXPECT_EQ(field("deftbl").text(), "Order Lines");
    EXPECT_FALSE(dropOn(field("deftbl"), "dsn", "Shop"));
    EXPECT_FALSE(dropOn(field("dsn"), "fld", "Customers\tName\t0\t40"));
    EXPECT_EQ(field("deftbl").text() + field("dsn").text(), "Order LinesShop");
}

TEST_F(PagePropertiesWindow, GenerateSelectsTheWholeTable)
{
    page().PageType = 2;
    page().SelectStmt = "Select 1";
    open();
    {
        ScriptedAsking user;
        user.expectMessage("No default table.", "Properties Error");
        press("generate");
        EXPECT_EQ(openDialog()->focusWidget(), &field("deftbl"));
    }
    EXPECT_EQ(field<QPlainTextEdit>("SelectStmt").toPlainText(), "Select 1");
    field("deftbl").setText("Order Details");
    press("generate");
    EXPECT_EQ(field<QPlainTextEdit>("SelectStmt").toPlainText(), "Select * From \"Order Details\"");
    field<QPushButton>("generate").setFocus();
    QTest::keyClick(&field<QPushButton>("generate"), Qt::Key_Return);
    EXPECT_EQ(openDialog(), nullptr) << "Enter is OK";
}

TEST_F(PagePropertiesWindow, PictureGivesThePageItsSizeWhenItFitsTheScreen)
{
    auto picture = std::make_shared<Picture>();
    pictureLoader() = [&picture](const std::string &) { return picture; };
    open();
    field("imgfn").setText("paper.bmp");
    EXPECT_FALSE(field("bkght").isEnabled() || field("bkgwd").isEnabled());
    const QSize screen = openDialog()->screen()->size();
    picture->width = 64;
    picture->height = screen.height() + 1;
    refused("Invalid picture's height.", "imgfn");
    picture->height = 48;
    picture->width = screen.width() + 1;
    refused("Invalid picture's width.", "imgfn");
    picture->width = 64;
    press("ok");
    EXPECT_EQ(page().bkgwd, 64);
    EXPECT_EQ(page().bkght, 48);
    EXPECT_TRUE(page().pgflags & sizeFromImage);
    pictureLoader() = nullptr;
}
