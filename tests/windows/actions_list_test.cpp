#include "actions/action.h"
#include "actions/action_choice.h"
#include "actions/action_kinds.h"
#include "actions/ui/action_controls.h"
#include "actions/ui/edit_action.h"
#include "document/encoding.h"
#include "document/page.h"
#include "tests/support/modal_driver.h"

#include <QAbstractButton>
#include <QComboBox>
#include <QDialog>
#include <QLineEdit>
#include <QListWidget>
#include <QPushButton>
#include <QTest>
#include <QVBoxLayout>

namespace corvanta {
namespace {

void press(QWidget &window, const char *button) { ModalDriver::find<QAbstractButton>(window, button).click(); }

void choose(QWidget &window, const char *caption)
{
    auto &list = ModalDriver::find<QComboBox>(window, "actlist");
    ASSERT_GE(list.findText(caption), 0);
    list.setCurrentIndex(list.findText(caption));
}

void select(QWidget &window, int row) { ModalDriver::find<QListWidget>(window, "listedit").setCurrentRow(row); }

QStringList captions(const QWidget &window)
{
    const auto &list = ModalDriver::find<QListWidget>(window, "listedit");
    QStringList texts;
    for (int row = 0; row < list.count(); ++row)
        texts << list.item(row)->text();
    return texts;
}

const std::string nextRecord = encodeInt16(action::nextRecord);
const std::string unknown = encodeInt16(99) + "unknown";
const std::string twoEntries = encodeActionList({{nextRecord, "next"}, {unknown, " kept "}});

class ActionLists : public testing::Test {
protected:
    void SetUp() override
    {
        workingAction() = "outer";
        editing().curobj = 0;
        page().objects.insert(page().objects.begin(), ObjectRecord());
        page().objects[0].kind = static_cast<std::int16_t>(Kind::Label);
        page().objects[0].actlist = encodeAction({action::goToPage, {"STORED"}});
        page().ctlindex.push_back(0);
    }
    void TearDown() override
    {
        page() = Page();
        editing() = EditingState();
        workingAction().clear();
        EXPECT_EQ(dialogExchange(), "");
    }

    // Expects the entry dialog, chooses a kind, types a status and presses a button.
    void expectEntry(const char *caption, const QString &status, const char *button)
    {
        driver.expect("actinput", [=](QWidget &window) {
            choose(window, caption);
            ModalDriver::find<QLineEdit>(window, "stat").setText(status);
            press(window, button);
        });
    }

    ModalDriver driver;
};

TEST_F(ActionLists, EntriesAreAddedInsertedEditedAndDeleted)
{
    driver.expect("listpact", [](QWidget &window) {
        EXPECT_EQ(captions(window), (QStringList{"Get next record", ""}));
        press(window, "lstbut0");
        EXPECT_EQ(captions(window), (QStringList{"Get next record", "", "Close Page"}));
        select(window, 1);
        press(window, "lstbut2");
        EXPECT_EQ(captions(window), (QStringList{"Get next record", "Reset Form", "", "Close Page"}));
        select(window, 0);
        press(window, "lstbut3");
        select(window, 0);
        press(window, "lstbut1");
        press(window, "ok");
    });
    expectEntry("Close Page", "last", "ok");
    expectEntry("Reset Form", "", "ok");
    expectEntry("Exit Application", " typed ", "ok");
    EXPECT_EQ(EditAction(twoEntries), encodeActionList({{encodeInt16(action::exitApplication), " typed "},
                                                        {unknown, " kept "},
                                                        {encodeInt16(action::closePage), "last"}}));
    EXPECT_EQ(workingAction(), "outer");
}

TEST_F(ActionLists, CancelledEntriesChangeNothing)
{
    driver.expect("listpact", [](QWidget &window) {
        press(window, "lstbut0");
        select(window, 1);
        press(window, "lstbut2");
        press(window, "lstbut1");
        EXPECT_EQ(captions(window), (QStringList{"Get next record", ""}));
        press(window, "ok");
    });
    for (int i = 0; i < 3; ++i)
        expectEntry("Close Page", "x", "cancel");
    EXPECT_EQ(EditAction(twoEntries), twoEntries);
}

TEST_F(ActionLists, CancelHandsBackTheInput)
{
    driver.expect("listpact", [](QWidget &window) {
        select(window, 0);
        press(window, "lstbut3");
        EXPECT_EQ(captions(window), QStringList{""});
        press(window, "cancel");
    });
    EXPECT_EQ(EditAction(twoEntries + "behind"), twoEntries + "behind");
}

TEST_F(ActionLists, AnEmptyListAndANewEntryWithoutAction)
{
    driver.expect("listpact", [](QWidget &window) { press(window, "ok"); });
    EXPECT_EQ(EditAction(encodeInt16(action::list)), encodeInt16(action::list) + encodeInt16(0));
    driver.expect("listpact", [](QWidget &window) {
        press(window, "lstbut0");
        press(window, "ok");
    });
    driver.expect("actinput", [](QWidget &window) {
        EXPECT_EQ(ModalDriver::find<QComboBox>(window, "actlist").currentText(), "(none)");
        press(window, "ok");
    });
    EXPECT_EQ(EditAction(encodeInt16(action::list)), encodeActionList({{"", ""}}));
}

TEST_F(ActionLists, ButtonsFollowTheSelection)
{
    driver.expect("listpact", [](QWidget &window) {
        const auto enabled = [&window] {
            std::string states;
            for (const char *name : {"lstbut0", "lstbut1", "lstbut2", "lstbut3"})
                states += ModalDriver::find<QPushButton>(window, name).isEnabled() ? '1' : '0';
            return states;
        };
        auto &list = ModalDriver::find<QListWidget>(window, "listedit");
        EXPECT_TRUE(list.hasFocus() && list.item(0)->isSelected());
        EXPECT_EQ(enabled(), "1111");
        press(window, "lstbut3");
        EXPECT_TRUE(list.selectedItems().isEmpty());
        EXPECT_EQ(enabled(), "1000");
        const QPoint entry = list.visualItemRect(list.item(0)).center();
        QTest::mouseClick(list.viewport(), Qt::LeftButton, {}, entry);
        QTest::mouseDClick(list.viewport(), Qt::LeftButton, {}, entry);
        press(window, "ok");
    });
    driver.expect("actinput", [](QWidget &window) {
        EXPECT_EQ(ModalDriver::find<QComboBox>(window, "actlist").currentIndex(), -1);
        EXPECT_EQ(ModalDriver::find<QLineEdit>(window, "stat").text(), " kept ");
        ModalDriver::find<QLineEdit>(window, "stat").setText("new");
        press(window, "ok");
    });
    EXPECT_EQ(EditAction(twoEntries), encodeActionList({{unknown, "new"}}));
}

TEST_F(ActionLists, ThreeDeepListsAreEditedAndStored)
{
    const auto into = [](QWidget &window) {
        press(window, "lstbut0");
        press(window, "ok");
    };
    const auto nested = [](const char *caption, const char *status) {
        return [=](QWidget &window) {
            choose(window, caption);
            press(window, "actbut");
            EXPECT_EQ(window.focusWidget()->objectName(), "ok");
            ModalDriver::find<QLineEdit>(window, "stat").setText(status);
            press(window, "ok");
        };
    };
    driver.expect("listpact", into);
    driver.expect("actinput", nested("List of Actions", "one"));
    driver.expect("listpact", into);
    driver.expect("actinput", nested("List of Actions", "two"));
    driver.expect("listpact", into);
    driver.expect("actinput", nested("Message Box", "three"));
    driver.expect("MsgPact", [](QWidget &window) {
        ModalDriver::find<QLineEdit>(window, "title").setText("Deep");
        press(window, "ok");
    });
    const std::string deepest = encodeActionList({{encodeAction({action::messageBox, {"Deep", ""}}), "three"}});
    const std::string middle = encodeActionList({{deepest, "two"}});
    const std::string outermost = encodeActionList({{middle, "one"}});
    const std::string stored = EditAction(encodeInt16(action::list));
    EXPECT_EQ(stored, outermost);
    EXPECT_EQ(workingAction(), "outer");

    // Into the deepest entry again, and out by Cancel at its end.
    const auto edit = [](QWidget &window) {
        select(window, 0);
        press(window, "lstbut1");
        press(window, "ok");
    };
    const auto again = [](QWidget &window) {
        press(window, "actbut");
        press(window, "ok");
    };
    for (int depth = 0; depth < 3; ++depth) {
        driver.expect("listpact", edit);
        driver.expect("actinput", again);
    }
    driver.expect("MsgPact", [](QWidget &window) {
        EXPECT_EQ(ModalDriver::find<QLineEdit>(window, "title").text(), "Deep");
        press(window, "cansel");
    });
    EXPECT_EQ(EditAction(stored), stored);
}

TEST_F(ActionLists, AnEntryComparesWithTheActionOfTheObject)
{
    driver.expect("listpact", [](QWidget &window) {
        press(window, "lstbut0");
        press(window, "ok");
    });
    expectEntry("Go to Page", "", "ok");
    EXPECT_EQ(EditAction(encodeInt16(action::list)),
              encodeActionList({{encodeAction({action::goToPage, {"STORED"}}), ""}}));
}

// A dialog with action controls on the working action.
class ActionControlsTest : public ActionLists {
protected:
    ActionControlsTest()
    {
        Group group = addGroup(*new QVBoxLayout(&dialog), "action", "&Action");
        controls = addActionControls(group.fields, "", workingActionTarget(), [this] { ++edits; });
    }

    void show(const std::string &text)
    {
        workingAction() = text;
        FillActionChoice(controls, ActionCode(text));
        EXPECT_EQ(workingAction(), text);
    }

    QDialog dialog;
    ActionControls controls;
    int edits = 0;
};

TEST_F(ActionControlsTest, OffersTheKinds)
{
    show(encodeInt16(action::executeSql));
    EXPECT_EQ(controls.actlist->count(), 18);
    EXPECT_EQ(controls.actlist->currentText(), "Execute a SQL statement");
    EXPECT_TRUE(controls.actbut->isEnabled());
    EXPECT_EQ(controls.actlist->accessibleName(), "Action");
    show(nextRecord);
    EXPECT_EQ(controls.actlist->count(), 18);
    EXPECT_FALSE(controls.actbut->isEnabled());
    show(unknown);
    EXPECT_EQ(controls.actlist->currentIndex(), -1);
    EXPECT_FALSE(controls.actbut->isEnabled());
}

TEST_F(ActionControlsTest, TheFirstKindAgainBringsTheStoredActionBack)
{
    const std::string stored = page().objects[0].actlist;
    show(stored);
    choose(dialog, "Close Page");
    EXPECT_EQ(workingAction(), encodeInt16(action::closePage));
    EXPECT_FALSE(controls.actbut->isEnabled());
    choose(dialog, "Execute C/S App");
    EXPECT_EQ(workingAction(), actionKind(action::executeApp).actionTemplate);
    EXPECT_TRUE(controls.actbut->isEnabled());
    choose(dialog, "Go to Page");
    EXPECT_EQ(workingAction(), stored);
    EXPECT_EQ(page().objects[0].actlist, stored);
}

TEST_F(ActionControlsTest, WithoutACurrentObjectTheTemplateComes)
{
    editing().curobj = noObject;
    show(nextRecord);
    choose(dialog, "Go to Page");
    EXPECT_EQ(workingAction(), actionKind(action::goToPage).actionTemplate);
}

TEST_F(ActionControlsTest, PropertiesEditTheWorkingAction)
{
    show(page().objects[0].actlist);
    driver.expect("gopact", [](QWidget &window) {
        ModalDriver::find<QLineEdit>(window, "pagnam").setText("NEXT");
        press(window, "ok");
    });
    controls.actbut->click();
    EXPECT_EQ(workingAction(), encodeAction({action::goToPage, {"NEXT"}}));
    EXPECT_EQ(edits, 1);
}

TEST_F(ActionControlsTest, AnOwnTargetLeavesTheWorkingActionAlone)
{
    QDialog other;
    Fields fields = addFields(*new QVBoxLayout(&other));
    std::string own = twoEntries;
    const ActionTarget target{[&own] { return own; }, [&own](std::string text) { own = std::move(text); },
                              [] { return std::string(); }};
    const ActionControls ownControls = addActionControls(fields, "&Action:", target);
    FillActionChoice(ownControls, ActionCode(own));
    driver.expect("listpact", [](QWidget &window) {
        press(window, "lstbut0");
        press(window, "ok");
    });
    expectEntry("Close Page", "", "ok");
    ownControls.actbut->click();
    EXPECT_EQ(decodeActionList(own).size(), 3u);
    EXPECT_EQ(workingAction(), "outer");
}

} // namespace
} // namespace corvanta
