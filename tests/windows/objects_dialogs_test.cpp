#include "actions/action.h"
#include "database/connection.h"
#include "tests/windows/drops.h"
#include "tests/windows/objects_page.h"

#include <QCheckBox>
#include <QComboBox>
#include <QListWidget>
#include <QPushButton>
#include <QTableWidget>
#include <QTest>

namespace corvanta {
namespace {

void changeEverything(const QDialog &dialog)
{
    for (auto *list : dialog.findChildren<QListWidget *>())
        list->setCurrentRow(list->count() - 1);
    for (auto *edit : dialog.findChildren<QLineEdit *>())
        edit->setText(edit->text() + "7");
    for (auto *box : dialog.findChildren<QCheckBox *>())
        box->toggle();
    for (auto *choice : dialog.findChildren<QComboBox *>())
        choice->setCurrentIndex(choice->count() - 1);
    for (const char *button : {"cbbut3", "lbbut3"})
        if (auto *del = dialog.findChild<QPushButton *>(button))
            del->click();
}

TEST_F(PropertyDialogs, CancellingAfterChangingEverythingChangesNoByte)
{
    for (const char *name : {"menu.ods", "query.ods", "record.ods", "hitlist.ods"}) {
        openSample(name);
        const std::string before = serialisePage(page());
        for (std::int16_t i = 0; i < objectCount(page()); ++i)
            withDialog(i, [](QDialog &d) {
                changeEverything(d);
                press(d, "cancbut");
            });
        EXPECT_EQ(serialisePage(page()), before) << name;
        EXPECT_FALSE(editing().pagedirty) << name;
    }
}

TEST_F(PropertyDialogs, CaptionsNameTheKind)
{
    for (std::int16_t code = firstKind; code <= lastKind; ++code) {
        const Kind kind = *kindOf(code);
        withDialog(addObject(kind), [kind](QDialog &d) {
            EXPECT_EQ(d.windowTitle(), QString(kindRow(kind).displayName) + " Properties");
            EXPECT_EQ(d.objectName(), QString(kindRow(kind).prefix) + "obj");
            press(d, "cancbut");
        });
    }
}

TEST_F(PropertyDialogs, AFaultKeepsTheDialogOpenWithItsInput)
{
    ScriptedAsking asking;
    asking.expectMessage("Invalid image file name.  To change the directory, use \"File... Directory\".",
                         "Properties Error");
    const std::int16_t index = addObject(Kind::Image);
    withDialog(index, [](QDialog &d) {
        type(d, "imgfn", " C:\\pic.bmp ");
        press(d, "ok");
        EXPECT_TRUE(d.isVisible());
        EXPECT_EQ(find<QLineEdit>(d, "imgfn").text(), "C:\\pic.bmp");
        EXPECT_EQ(find<QLineEdit>(d, "imgfn").selectedText(), "C:\\pic.bmp");
        type(d, "imgfn", "banner.bmp");
        press(d, "ok");
        EXPECT_FALSE(d.isVisible());
    });
    EXPECT_EQ(object(0).srcfile, "banner.bmp");
}

TEST_F(PropertyDialogs, MenuPagesHideTheDataFieldsAndKeepThem)
{
    page().PageType = static_cast<std::int16_t>(PageKind::Menu);
    const std::int16_t index = addObject(Kind::TextBox);
    object(0).datacol = "orders.amount";
    object(0).condobjname = "op";
    withDialog(index, [](QDialog &d) {
        for (const char *name : {"datacol", "inptype", "condobjname"})
            EXPECT_FALSE(find<QWidget>(d, name).isVisible()) << name;
        EXPECT_TRUE(find<QLineEdit>(d, "ctlname").isVisible());
        press(d, "ok");
    });
    EXPECT_EQ(object(0).datacol, "orders.amount");
    EXPECT_EQ(object(0).condobjname, "op");
}

TEST_F(PropertyDialogs, ADroppedColumnFillsTheBinding)
{
    const auto text = QByteArray::fromStdString(dragOfColumn({"orders", "note", 0, 80}));
    const auto number = QByteArray::fromStdString(dragOfColumn({"orders", "amount", 6, 10}));
    withDialog(addObject(Kind::TextBox), [&](QDialog &d) {
        auto &datacol = find<QLineEdit>(d, "datacol"), &ctlname = find<QLineEdit>(d, "ctlname");
        dropOn(ctlname, "fld", number);
        EXPECT_EQ(ctlname.text(), "amount");
        EXPECT_EQ(find<QComboBox>(d, "inptype").currentText(), "String");
        dropOn(datacol, "dbs", "orders");
        EXPECT_EQ(datacol.text(), "");
        dropOn(datacol, "fld", text);
        EXPECT_EQ(datacol.text(), "orders.note");
        EXPECT_EQ(find<QLineEdit>(d, "maxlen").text(), "80");
        dropOn(datacol, "fld", number);
        EXPECT_EQ(datacol.text(), "orders.amount");
        EXPECT_EQ(find<QComboBox>(d, "inptype").currentText(), "Numeric");
        EXPECT_EQ(find<QLineEdit>(d, "maxlen").text(), "80");
        press(d, "cancbut");
    });
}

TEST_F(PropertyDialogs, ComboEntriesAreAddedInsertedEditedAndDeleted)
{
    ScriptedAsking asking;
    asking.expectText("Combo box entry:\tNew Entry\t", "one");
    asking.expectText("Combo box entry:\tNew Entry\t", "");
    asking.expectText("Combo box entry:\tInsert Entry\t", "zero");
    asking.expectText("Combo box entry:\tEdit Entry\tzero", "nought");
    withDialog(addObject(Kind::ComboBox), [](QDialog &d) {
        auto &list = find<QListWidget>(d, "cbxedit");
        EXPECT_FALSE(find<QPushButton>(d, "cbbut1").isEnabled());
        press(d, "cbbut0");
        press(d, "cbbut0");
        ASSERT_EQ(list.count(), 1);
        list.setCurrentRow(0);
        press(d, "cbbut2");
        EXPECT_EQ(list.item(0)->text(), "zero");
        list.setCurrentRow(0);
        press(d, "cbbut1");
        list.setCurrentRow(1);
        press(d, "cbbut3");
        press(d, "ok");
    });
    EXPECT_EQ(page().cbxextras[1], std::vector<std::string>{"nought"});
}

TEST_F(PropertyDialogs, ListBoxEntriesHaveActionsOfTheirOwn)
{
    const std::int16_t index = addObject(Kind::ListBox);
    object(0).actlist = encodeAction({action::closePage, {}});
    page().lbxextras[1] = {{"a", ""}, {"b", encodeAction({action::resetForm, {}})}};
    withDialog(index, [](QDialog &d) {
        auto &list = find<QListWidget>(d, "lbxedit");
        auto &actlist = find<QComboBox>(d, "actlist");
        list.setCurrentRow(1);
        EXPECT_EQ(actlist.currentText(), "Reset Form");
        list.setCurrentRow(0);
        EXPECT_EQ(actlist.currentText(), "(none)");
        actlist.setCurrentText("Get next record");
        emit actlist.activated(actlist.currentIndex());
        press(d, "ok");
    });
    EXPECT_EQ(ActionCode(page().lbxextras[1][0].action), action::nextRecord);
    EXPECT_EQ(ActionCode(page().lbxextras[1][1].action), action::resetForm);
    EXPECT_EQ(ActionCode(object(0).actlist), action::closePage);
}

TEST_F(PropertyDialogs, GridColumnsAndTheirWidths)
{
    const std::int16_t index = addObject(Kind::Grid);
    page().gridcolumns = {{"Name\tCustomers.Name", 2400}, {"City \tCustomers.City", -32768}, {}};
    withDialog(index, [](QDialog &d) {
        auto &preview = find<QTableWidget>(d, "grd");
        EXPECT_EQ(preview.columnCount(), 2);
        EXPECT_EQ(preview.columnWidth(0), 160);
        preview.setColumnWidth(0, 100);
        press(d, "ok");
    });
    EXPECT_EQ(page().gridcolumns[0].width, 1500);
    EXPECT_EQ(page().gridcolumns[1].width, -32768);
    EXPECT_EQ(page().gridcolumns[1].descriptor, "City \tCustomers.City");
    withDialog(index, [](QDialog &d) {
        for (int i = 0; i < 2; ++i) {
            find<QListWidget>(d, "grdedit").setCurrentRow(0);
            press(d, "lbbut3");
        }
        EXPECT_EQ(find<QTableWidget>(d, "grd").columnCount(), 1);
        press(d, "ok");
    });
    EXPECT_EQ(gridColumnCount(page()), 0U);
}

TEST_F(PropertyDialogs, KeysEditEntriesWithWhatBelongsToThem)
{
    ScriptedAsking asking;
    asking.expectText("List box entry:\tInsert Entry\t", "x");
    asking.expectText("List box entry:\tEdit Entry\tx", "y");
    const std::int16_t box = addObject(Kind::ListBox), grid = addObject(Kind::Grid);
    const std::string reset = encodeAction({action::resetForm, {}});
    page().lbxextras[1] = {{"a", ""}, {"b", reset}, {"c", ""}};
    withDialog(box, [](QDialog &d) {
        auto &list = find<QListWidget>(d, "lbxedit");
        list.setCurrentRow(1);
        for (const Qt::Key key : {Qt::Key_Down, Qt::Key_Down}) // the second finds no place
            QTest::keyClick(&list, key, Qt::AltModifier);
        QTest::keyClick(&list, Qt::Key_Up);
        QTest::keyClick(&list, Qt::Key_Delete);
        EXPECT_EQ(list.currentItem()->text(), "b");
        EXPECT_EQ(find<QComboBox>(d, "actlist").currentText(), "Reset Form");
        QTest::keyClick(&list, Qt::Key_Up, Qt::AltModifier);
        for (const Qt::Key key : {Qt::Key_Insert, Qt::Key_F2})
            QTest::keyClick(&list, key);
        press(d, "ok");
    });
    const auto &entries = page().lbxextras[1];
    ASSERT_EQ(entries.size(), 3U);
    EXPECT_EQ(entries[0].text + entries[1].text + entries[2].text, "yba");
    EXPECT_EQ(entries[1].action, reset);

    page().gridcolumns = {{"a\tT.a", 6000}, {"b\tT.b", 9000}, {"c\tT.c", 4500}, {}};
    withDialog(grid, [](QDialog &d) {
        auto &list = find<QListWidget>(d, "grdedit");
        const auto &preview = find<QTableWidget>(d, "grd");
        list.setCurrentRow(0);
        QTest::keyClick(&list, Qt::Key_Down, Qt::AltModifier);
        QTest::keyClick(&list, Qt::Key_Down, Qt::AltModifier);
        EXPECT_EQ(preview.columnWidth(2), 400);
        EXPECT_LE(preview.columnViewportPosition(2), preview.viewport()->width() - 100) << "the preview follows";
        press(d, "ok");
    });
    EXPECT_EQ(page().gridcolumns[2].descriptor, "a\tT.a");
    EXPECT_EQ(page().gridcolumns[2].width, 6000);
}

TEST_F(PropertyDialogs, AMessageAboutAFrameShowsItsFieldAlsoOfAStationaryAnimation)
{
    ScriptedAsking asking;
    asking.expectMessage("Invalid \"Top\" for frame 2.", "Properties Error");
    const std::int16_t index = addObject(Kind::Animation);
    withDialog(index, [](QDialog &d) {
        for (const char *top : {"1", "9999"}) {
            press(d, "lbbut0");
            type(d, "ptop", top);
        }
        find<QCheckBox>(d, "frozen").setChecked(true);
        auto &list = find<QListWidget>(d, "aniedit");
        list.setCurrentRow(0);
        press(d, "ok");
        EXPECT_EQ(list.currentRow(), 1);
        auto &top = find<QLineEdit>(d, "ptop");
        EXPECT_EQ(d.focusWidget(), &top);
        EXPECT_EQ(top.selectedText(), "9999");
        top.setText("5");
        press(d, "ok");
    });
    EXPECT_EQ(framesOf(page(), index).at(1).top, 5);
}

TEST_F(PropertyDialogs, AnimationFramesKeepTheirFields)
{
    const std::int16_t index = addObject(Kind::Animation);
    withDialog(index, [](QDialog &d) {
        auto &list = find<QListWidget>(d, "aniedit");
        EXPECT_FALSE(find<QLineEdit>(d, "imgfn").isEnabled());
        press(d, "lbbut0");
        type(d, "ptop", "11");
        type(d, "imgfn", " lamp1.bmp ");
        type(d, "duration", "5");
        press(d, "lbbut0");
        type(d, "imgfn", "lamp2.bmp");
        press(d, "lbbut0");
        type(d, "sndfn", "ding.wav");
        list.setCurrentRow(0);
        EXPECT_EQ(find<QLineEdit>(d, "duration").text(), "5");
        find<QCheckBox>(d, "frozen").setChecked(true);
        EXPECT_TRUE(find<QLineEdit>(d, "ptop").isEnabled());
        list.setCurrentRow(1);
        EXPECT_EQ(find<QLineEdit>(d, "ptop").text(), "N/A");
        press(d, "lbbut1");
        EXPECT_EQ(list.count(), 2);
        EXPECT_EQ(list.item(1)->text(), "Animation Frame 2");
        press(d, "ok");
    });
    EXPECT_EQ(object(0).srcfile, "lamp1.bmp\t\t\tding.wav");
    EXPECT_EQ(framesOf(page(), index).at(0).top, 11);
    EXPECT_EQ(object(0).ptop, 11);
}

} // namespace
} // namespace corvanta
