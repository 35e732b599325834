#include "actions/action.h"
#include "actions/action_choice.h"
#include "actions/action_kinds.h"
#include "actions/ui/action_controls.h"
#include "actions/ui/edit_action.h"
#include "document/encoding.h"
#include "tests/support/fresh_page.h"
#include "tests/support/modal_driver.h"

#include <QComboBox>
#include <QDialog>
#include <QLineEdit>
#include <QListWidget>
#include <QPushButton>
#include <QTest>
#include <QVBoxLayout>

namespace corvanta {
namespace {

void choose(QWidget &window, const char *caption)
{
    auto &list = find<QComboBox>(window, "actlist");
    ASSERT_GE(list.findText(caption), 0);
    list.setCurrentIndex(list.findText(caption));
}

void select(QWidget &window, int row) { find<QListWidget>(window, "listedit").setCurrentRow(row); }

QStringList captions(const QWidget &window)
{
    const auto &list = find<QListWidget>(window, "listedit");
    QStringList texts;
    for (int row = 0; row < list.count(); ++row)
        texts << list.item(row)->text();
    return texts;
}

const std::string nextRecord = encodeInt16(action::nextRecord);
const std::string unknown = encodeInt16(99) + "unknown";
const std::string twoEntries = encodeActionList({{nextRecord, "next"}, {unknown, " kept "}});

class ActionLists : public FreshPage {
protected:
    ActionLists()
    {
        workingAction() = "outer";
        editing().curobj = addObject(Kind::Label);
        object(0).actlist = encodeAction({action::goToPage, {"STORED"}});
    }
    ~ActionLists() override
    {
        workingAction().clear();
        EXPECT_EQ(dialogExchange(), "");
    }

    // Expects the entry dialog, chooses a kind, types a status and presses a button.
    void expectEntry(const char *caption, const QString &status, const char *button)
    {
        driver.expect("actinput", [=](QWidget &window) {
            choose(window, caption);
            find<QLineEdit>(window, "stat").setText(status);
            press(window, button);
        });
    }

    ModalDriver driver;
};

TEST_F(ActionLists, EntriesAreAddedInsertedEditedAndDeleted)
{
    driver.expect("listpact", [](QWidget &window) {
        EXPECT_EQ(captions(window), (QStringList{"Get next record", ""}));
        EXPECT_EQ(window.focusWidget()->objectName(), "listedit");
        EXPECT_EQ(find<QListWidget>(window, "listedit").currentRow(), -1);
        EXPECT_FALSE(find<QPushButton>(window, "lstbut1").isEnabled());
        press(window, "lstbut0");
        EXPECT_EQ(captions(window), (QStringList{"Get next record", "", "Close Page"}));
        select(window, 1);
        press(window, "lstbut2");
        EXPECT_EQ(captions(window), (QStringList{"Get next record", "Reset Form", "", "Close Page"}));
        select(window, 0);
        press(window, "lstbut3"); // selects the next
        QTest::keyClick(&find<QListWidget>(window, "listedit"), Qt::Key_F2);
        QTest::keyClick(&find<QListWidget>(window, "listedit"), Qt::Key_Down, Qt::AltModifier);
        press(window, "ok");
    });
    expectEntry("Close Page", "last", "ok");
    expectEntry("Reset Form", "", "ok");
    expectEntry("Exit Application", " typed ", "ok");
    EXPECT_EQ(EditAction(twoEntries), encodeActionList({{unknown, " kept "},
                                                        {encodeInt16(action::exitApplication), " typed "},
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
        press(window, "lstbut3");
        press(window, "cancel");
    });
    for (int i = 0; i < 3; ++i)
        expectEntry("Close Page", "x", "cancel");
    EXPECT_EQ(EditAction(twoEntries + "behind"), twoEntries + "behind");
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
            find<QLineEdit>(window, "stat").setText(status);
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
        find<QLineEdit>(window, "title").setText("Deep");
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
        EXPECT_EQ(find<QLineEdit>(window, "title").text(), "Deep");
        press(window, "cansel");
    });
    EXPECT_EQ(EditAction(stored), stored);
}

TEST_F(ActionLists, TheFirstKindAgainBringsTheStoredActionBack)
{
    QDialog dialog;
    Fields fields = addFields(*new QVBoxLayout(&dialog));
    const ActionControls controls = addActionControls(fields, "&Action:");
    const std::string stored = object(0).actlist;
    workingAction() = stored;
    FillActionChoice(controls, ActionCode(stored));
    EXPECT_EQ(controls.actlist->count(), 18);
    EXPECT_TRUE(controls.actbut->isEnabled());
    choose(dialog, "Close Page");
    EXPECT_EQ(workingAction(), encodeInt16(action::closePage));
    EXPECT_FALSE(controls.actbut->isEnabled());
    choose(dialog, "Execute C/S App");
    EXPECT_EQ(workingAction(), actionKind(action::executeApp).actionTemplate);
    choose(dialog, "Go to Page");
    EXPECT_EQ(workingAction(), stored);
    driver.expect("gopact", [](QWidget &window) {
        find<QLineEdit>(window, "pagnam").setText("NEXT");
        press(window, "ok");
    });
    controls.actbut->click();
    EXPECT_EQ(workingAction(), encodeAction({action::goToPage, {"NEXT"}}));
    EXPECT_EQ(object(0).actlist, stored);
}

} // namespace
} // namespace corvanta
