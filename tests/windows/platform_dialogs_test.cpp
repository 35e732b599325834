#include "platform/placement.h"
#include "platform/qt/dialogs.h"

#include <gtest/gtest.h>

#include <QButtonGroup>
#include <QCheckBox>
#include <QComboBox>
#include <QDialog>
#include <QGroupBox>
#include <QLabel>
#include <QLineEdit>
#include <QListWidget>
#include <QPushButton>
#include <QScreen>
#include <QTest>
#include <QVBoxLayout>

namespace corvanta {
namespace {

constexpr Area screen{0, 0, 12000, 9000};

TEST(Placement, OverTheScreen)
{
    EXPECT_EQ(centredArea({500, 700, 6000, 3000}, screen, {}), (Area{3000, 3000, 6000, 3000}));
    EXPECT_EQ(centredArea({0, 0, 13000, 9001}, screen, {}), (Area{0, 0, 12000, 9000}));
}

TEST(Placement, OverTheOwnerButOnTheScreen)
{
    const Area dialog{0, 0, 4000, 2000};
    EXPECT_EQ(centredArea(dialog, screen, Area{1000, 1000, 6000, 4000}), (Area{2000, 2000, 4000, 2000}));
    EXPECT_EQ(centredArea(dialog, screen, Area{-500, -500, 1000, 1000}), (Area{0, 0, 4000, 2000}));
    EXPECT_EQ(centredArea(dialog, screen, Area{11000, 8500, 1000, 500}), (Area{8000, 7000, 4000, 2000}));
}

TEST(Dialogs, CentresBeforeItIsShown)
{
    QDialog dialog;
    dialog.resize(300, 200);
    CentreDialog(dialog);
    const QSize rest = dialog.screen()->geometry().size() - QSize(300, 200);
    EXPECT_EQ(dialog.pos(), dialog.screen()->geometry().topLeft() + QPoint(rest.width() / 2, rest.height() / 2));

    QWidget owner;
    owner.setGeometry(100, 50, 320, 220);
    CentreDialog(dialog, &owner);
    EXPECT_EQ(dialog.pos(), QPoint(110, 60));

    owner.setWindowState(Qt::WindowMinimized);
    dialog.resize(dialog.screen()->geometry().size() + QSize(50, 60));
    CentreDialog(dialog, &owner);
    EXPECT_EQ(dialog.geometry(), dialog.screen()->geometry());
}

TEST(Dialogs, LeavesAMaximisedWindow)
{
    QDialog dialog;
    dialog.setGeometry(7, 8, 100, 100);
    dialog.setWindowState(Qt::WindowMaximized);
    const QPoint before = dialog.pos();
    CentreDialog(dialog);
    EXPECT_EQ(dialog.pos(), before);
}

TEST(Dialogs, WindowMenuKeepsMoveAndClose)
{
    QDialog dialog;
    TrimWindowMenu(dialog, 1);
    EXPECT_TRUE(dialog.isWindow());
    EXPECT_TRUE(dialog.windowFlags() & Qt::WindowCloseButtonHint);
    EXPECT_FALSE(dialog.windowFlags() &
                 (Qt::WindowMinimizeButtonHint | Qt::WindowMaximizeButtonHint | Qt::WindowContextHelpButtonHint));
}

TEST(Dialogs, PlainLabels)
{
    EXPECT_EQ(plainLabel("&Status Panel Text:"), "Status Panel Text");
    EXPECT_EQ(plainLabel("Title :"), "Title");
    EXPECT_EQ(plainLabel("Cats && &Dogs"), "Cats & Dogs");
}

// A dialog with one of each kind of row.
class SampleDialog {
public:
    SampleDialog()
    {
        QVBoxLayout *contents = startDialog(dialog, "sample", "Sample Properties");
        Group placement = addGroup(*contents, "placement", "&Placement", 2);
        top = addNumberRow(placement.fields, "ptop", "&Top:");
        left = addNumberRow(placement.fields, "pleft", "&Left:");
        key = addTextRow(placement.fields, "keyreq", "&Key Required:");
        hover = addCheckRow(placement.fields, "hover", "&Use special mouse pointer");
        Group entries = addGroup(*contents, "entries", "Entries");
        list = addListRow(entries.fields, "cbxedit", {});
        Fields fields = addFields(*contents);
        colour = addTextRow(fields, "col", "&BackColor:");
        select = addButtonBeside(fields, "colsel", "Select");
        tabIndex = addWholeNumberRow(fields, "tbindex", "Tab Index:", 32767);
        addHintBeside(fields, "(0-32767)");
        options = addOptionRows(fields, "radio", {"Default", "Always"});
        alignment = addComboRow(fields, "alignment", "Alignment:", {"Left", "Right", "Center"});
        addButtons(dialog, {{"ok", "OK", [this] { ++confirmed; }}, {"cancbut", "Cancel", [this] { dialog.reject(); }}});
        dialog.show();
    }

    QPushButton *button(const char *name) const { return dialog.findChild<QPushButton *>(name); }

    QDialog dialog;
    QLineEdit *top, *left, *key, *colour, *tabIndex;
    QCheckBox *hover;
    QListWidget *list;
    QPushButton *select;
    QButtonGroup *options;
    QComboBox *alignment;
    int confirmed = 0;
};

TEST(Dialogs, TabGoesInReadingOrder)
{
    SampleDialog sample;
    sample.dialog.activateWindow();
    ASSERT_TRUE(QTest::qWaitForWindowActive(&sample.dialog));
    sample.top->setFocus();
    sample.options->button(0)->setChecked(true);
    const QStringList order{"ptop",    "pleft",  "keyreq",    "hover", "cbxedit", "col", "colsel",
                            "tbindex", "radio0", "alignment", "ok",    "cancbut", "ptop"};
    for (const QString &name : order) {
        EXPECT_EQ(sample.dialog.focusWidget()->objectName().toStdString(), name.toStdString());
        QTest::keyClick(sample.dialog.focusWidget(), Qt::Key_Tab);
    }
}

TEST(Dialogs, EveryControlHasANameForAssistiveTechnology)
{
    SampleDialog sample;
    EXPECT_EQ(sample.key->accessibleName(), "Key Required");
    EXPECT_EQ(sample.list->accessibleName(), "Entries");
    EXPECT_EQ(sample.select->accessibleName(), "Select BackColor");
    EXPECT_EQ(sample.tabIndex->accessibleDescription(), "(0-32767)");
    for (const QWidget *control : sample.dialog.findChildren<QWidget *>())
        if (control->focusPolicy() & Qt::TabFocus) {
            EXPECT_FALSE(control->objectName().isEmpty());
            EXPECT_FALSE(control->accessibleName().isEmpty()) << control->objectName().toStdString();
        }
}

TEST(Dialogs, ShortFieldsShareARow)
{
    SampleDialog sample;
    EXPECT_EQ(sample.top->y(), sample.left->y());
    EXPECT_GT(sample.key->y(), sample.top->y());
    EXPECT_EQ(sample.key->geometry().right(), sample.left->geometry().right());
    EXPECT_EQ(sample.key->x(), sample.top->x());
    EXPECT_EQ(sample.select->geometry().center().y(), sample.colour->geometry().center().y());
}

TEST(Dialogs, AFieldGoesWithItsLabel)
{
    SampleDialog sample;
    QLabel *label = labelOf(*sample.colour);
    ASSERT_TRUE(label);
    setFieldEnabled(*sample.colour, false);
    EXPECT_FALSE(label->isEnabled() || sample.colour->isEnabled());
    setFieldVisible(*sample.colour, false);
    EXPECT_FALSE(label->isVisible() || sample.colour->isVisible());
    EXPECT_TRUE(labelOf(*sample.tabIndex)->isVisible());
    EXPECT_FALSE(labelOf(*sample.list));
}

TEST(Dialogs, WholeNumbersTakeNothingElse)
{
    SampleDialog sample;
    QTest::keyClicks(sample.tabIndex, "-1,2x3456789");
    EXPECT_EQ(sample.tabIndex->text(), "12345");
    sample.tabIndex->clear();
    QTest::keyClicks(sample.tabIndex, "40000");
    EXPECT_EQ(sample.tabIndex->text(), "4000");
    sample.tabIndex->setText("32767");
    EXPECT_TRUE(sample.tabIndex->hasAcceptableInput());
    QTest::keyClicks(sample.top, "-1.5x");
    EXPECT_EQ(sample.top->text(), "-1.5x");
}

TEST(Dialogs, EnterConfirmsAndEscapeCancels)
{
    SampleDialog sample;
    QTest::keyClick(sample.key, Qt::Key_Return);
    EXPECT_EQ(sample.confirmed, 1);
    EXPECT_TRUE(sample.dialog.isVisible());
    QTest::keyClick(sample.key, Qt::Key_Escape);
    EXPECT_FALSE(sample.dialog.isVisible());
    sample.dialog.show();
    sample.button("cancbut")->click();
    EXPECT_FALSE(sample.dialog.isVisible());
    EXPECT_EQ(sample.confirmed, 1);
}

} // namespace
} // namespace corvanta
