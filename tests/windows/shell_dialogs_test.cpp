#include "platform/paths.h"
#include "platform/qt/window_switch.h"
#include "shell/commands.h"
#include "shell/ui/hpsdir.h"
#include "shell/ui/hpsinput.h"
#include "shell/ui/objlist.h"
#include "tests/support/fresh_page.h"
#include "tests/support/modal_driver.h"
#include "tests/support/temporary_drive.h"

#include <QComboBox>
#include <QLabel>
#include <QLineEdit>
#include <QListWidget>
#include <QPushButton>
#include <QTest>
#include <QTreeWidget>

namespace corvanta {

namespace {

class ShellDialogs : public FreshPage {
protected:
    ~ShellDialogs() override
    {
        roomCommands() = {};
        switchableWindows() = {};
    }

    ModalDriver driver;
};

} // namespace

TEST_F(ShellDialogs, InputReturnsATypedTextOnlyAfterOk)
{
    driver.expect("hpsinput", [&](QWidget &w) {
        EXPECT_EQ(w.windowTitle(), "Rename");
        auto &line = find<QLineEdit>(w, "inplin");
        auto &ok = find<QPushButton>(w, "ok");
        EXPECT_EQ(line.selectedText(), "old");
        EXPECT_TRUE(ok.isEnabled());
        QTest::keyClicks(&line, "  ");
        EXPECT_FALSE(ok.isEnabled());
        QTest::keyClicks(&line, "new");
        press(w, "ok");
    });
    EXPECT_EQ(showInput("Name:\tRename\told"), "  new");
    driver.expect("hpsinput", [&](QWidget &w) { press(w, "cancel"); });
    EXPECT_EQ(showInput("Name:\tRename\told"), "");
    driver.expect("hpsinput", [&](QWidget &w) {
        EXPECT_FALSE(find<QPushButton>(w, "ok").isEnabled());
        QTest::keyClick(&w, Qt::Key_Escape);
    });
    EXPECT_EQ(showInput("Name:\tRename"), "");
}

TEST_F(ShellDialogs, DirectoryIsChosenByItsList)
{
    const TemporaryDrive drive;
    drive.add("pages/deep/x.txt");
    const auto choosePages = [](QWidget &w) {
        auto &list = find<QListWidget>(w, "direclist");
        ASSERT_EQ(list.count(), 2);
        QTest::keyClick(&list, Qt::Key_Down);
        QTest::keyClick(&list, Qt::Key_Return);
        EXPECT_TRUE(w.isVisible());
        EXPECT_EQ(find<QLabel>(w, "curdirec").text(), "C:\\pages");
        EXPECT_EQ(list.item(2)->text().trimmed(), "deep");
    };
    driver.expect("hpsdir", [&](QWidget &w) {
        EXPECT_EQ(w.windowTitle(), "Support File Directory");
        EXPECT_EQ(find<QComboBox>(w, "drivelist").currentText(), "C:");
        choosePages(w);
        press(w, "cancel");
    });
    showDirectory();
    EXPECT_EQ(editing().curdir, "C:\\");
    driver.expect("hpsdir", [&](QWidget &w) {
        choosePages(w);
        auto &list = find<QListWidget>(w, "direclist");
        emit list.itemDoubleClicked(list.item(2));
        EXPECT_EQ(find<QLabel>(w, "curdirec").text(), "C:\\pages\\deep");
        QTest::keyClick(&list, Qt::Key_Return); // on the shown directory: OK
    });
    showDirectory();
    EXPECT_EQ(editing().curdir, "C:\\PAGES\\DEEP\\");
}

TEST_F(ShellDialogs, ObjectListChoosesOpensAndDeletes)
{
    for (int i = 0; i < 40; ++i)
        addObject(i % 2 ? Kind::Label : Kind::ComboBox);
    editing().curobj = 30;
    QWidget main;
    switchableWindows() = [&main]() -> std::vector<QWidget *> {
        return openObjectList() ? std::vector<QWidget *>{openObjectList()} : std::vector<QWidget *>{&main};
    };
    roomCommands().openObjectProperties = [] { page().objects[30].ptop = 77; };
    showObjectList();
    Objlist *list = openObjectList();
    ASSERT_NE(list, nullptr);
    EXPECT_FALSE(main.isEnabled());
    auto &olist = find<QTreeWidget>(*list, "olist");
    ASSERT_EQ(olist.topLevelItemCount(), 40);
    EXPECT_TRUE(olist.topLevelItem(30)->isSelected());
    EXPECT_EQ(olist.topLevelItem(31)->text(0), "Label");

    press(*list, "propbut");
    EXPECT_EQ(olist.topLevelItem(30)->text(1), "77");

    olist.setCurrentItem(olist.topLevelItem(3));
    EXPECT_EQ(editing().curobj, 3);
    QTest::keyClick(&olist, Qt::Key_Space, Qt::ControlModifier);
    EXPECT_TRUE(olist.topLevelItem(3)->isSelected()) << "the current row stays selected";
    press(*list, "delbut");
    EXPECT_EQ(objectCount(page()), 39);
    EXPECT_EQ(editing().curobj, noObject);
    EXPECT_TRUE(olist.selectedItems().isEmpty());
    EXPECT_FALSE(find<QPushButton>(*list, "propbut").isEnabled());
    EXPECT_FALSE(find<QPushButton>(*list, "delbut").isEnabled());

    QDialog *dialog = new QDialog; // a property dialog that is not modal switches off the list alone
    showSwitchingOff(dialog);
    EXPECT_FALSE(list->isEnabled());
    page().objects[0].pleft = 123;
    dialog->close();
    EXPECT_TRUE(QTest::qWaitFor([&] { return list->isEnabled(); }));
    EXPECT_EQ(olist.topLevelItem(0)->text(2), "123");
    EXPECT_FALSE(main.isEnabled());

    press(*list, "selbut");
    EXPECT_TRUE(QTest::qWaitFor([&] { return main.isEnabled(); }));
    EXPECT_EQ(openObjectList(), nullptr);
}

} // namespace corvanta
