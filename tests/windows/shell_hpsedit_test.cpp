#include "canvas/selection.h"
#include "canvas/ui/editform.h"
#include "platform/profile.h"
#include "shell/commands.h"
#include "shell/ui/hpsedit.h"
#include "shell/ui/startup.h"
#include "shell/ui/strip.h"
#include "tests/support/fresh_page.h"
#include "tests/support/modal_driver.h"
#include "tests/support/samples.h"
#include "tests/support/scripted_asking.h"

#include <QAction>
#include <QMenu>
#include <QMenuBar>
#include <QTest>
#include <QToolButton>

namespace corvanta {

namespace {

// The editor with its windows on a page of the drive.
class ShellMainWindow : public FreshPage {
protected:
    ShellMainWindow()
    {
        setProfileFolder((drive.root() / "profile").string());
        drive.add("PAGES/R&D.ODS", samples::sample("record.ods"));
        roomCommands().showObjectList = roomCommands().openObjectProperties = [this] { ++laterCalls; };
        windows = std::make_unique<EditorWindows>();
        windows->start("C:\\PAGES\\R&D.ODS");
    }
    ~ShellMainWindow() override
    {
        windows.reset();
        roomCommands() = {};
        setProfileFolder("/dev/null/nothing");
    }

    template <class Control> Control &child(const char *name) { return find<Control>(windows->main(), name); }
    bool enabled(const char *action) { return child<QAction>(action).isEnabled(); }
    QToolButton &button(int index) { return child<QToolButton>(qPrintable(QString("toolbar%1").arg(index))); }

    TemporaryDrive drive;
    int laterCalls = 0;
    std::unique_ptr<EditorWindows> windows;
};

} // namespace

TEST_F(ShellMainWindow, ShowsTheFileAndSnapsToTheStrip)
{
    Hpsedit &main = windows->main();
    EXPECT_EQ(main.windowTitle(), "Corvanta Form Editor");
    auto &panel = child<FilePanel>("filepanel");
    EXPECT_EQ(panel.caption(), "R&&D.ODS");
    EXPECT_EQ(panel.property("tag"), "C:\\PAGES\\R&D.ODS");
    EXPECT_EQ(panel.font().family(), "Tahoma");
    const auto &strip = child<QWidget>("tbarpic");
    EXPECT_NEAR(panel.geometry().center().y(), strip.rect().center().y(), 1);

    main.resize(main.width() + 150, main.height() + 200);
    const int width = main.width();
    EXPECT_TRUE(QTest::qWaitFor([&] { return main.centralWidget()->height() == strip.height(); }));
    EXPECT_EQ(main.width(), width);
    EXPECT_EQ(main.height(), strip.height() + main.menuBar()->height());

    runCommand(Command::New);
    EXPECT_EQ(panel.caption(), "(New file)");
    EXPECT_EQ(panel.property("tag"), "");
}

TEST_F(ShellMainWindow, ItemsAndButtonsFollowThePage)
{
    EXPECT_TRUE(enabled("listmenu") && button(3).isEnabled());
    EXPECT_FALSE(enabled("opropsmenu") || button(4).isEnabled() || enabled("delmenu") || enabled("animenu"));
    EXPECT_FALSE(enabled("tohtml") || enabled("fpropsmenu") || button(2).isEnabled() || enabled("contmenu"));
    selectObject(2);
    EXPECT_TRUE(enabled("opropsmenu") && button(4).isEnabled() && enabled("delmenu") && enabled("odupemenu"));
    addToMultiSelection(3);
    emit child<QAction>("objmenu").menu()->aboutToShow();
    EXPECT_TRUE(enabled("alimenu") && enabled("btalmenu"));
    button(4).click();
    child<QAction>("listmenu").trigger();
    EXPECT_EQ(laterCalls, 2);

    clearMultiSelection();
    child<QAction>("delmenu").trigger();
    EXPECT_FALSE(enabled("delmenu") || button(4).isEnabled());
    EXPECT_TRUE(editing().pagedirty);
    while (objectCount(page()) > 0)
        deleteObject(0);
    EXPECT_FALSE(enabled("listmenu") || button(3).isEnabled());

    child<QAction>("addobjmenu4").trigger();
    child<QToolButton>("tool11").click();
    ASSERT_EQ(objectCount(page()), 2);
    EXPECT_EQ(page().objects[0].kind, 9);
    EXPECT_EQ(page().objects[1].kind, 11);
    EXPECT_TRUE(enabled("listmenu"));
}

TEST_F(ShellMainWindow, CanvasIsHiddenUnlessTheWindowIsNormal)
{
    QWidget &canvas = *windows->canvas();
    Hpsedit &main = windows->main();
    EXPECT_TRUE(canvas.isVisible());
    main.showMinimized();
    EXPECT_FALSE(canvas.isVisible());
    main.showNormal();
    EXPECT_TRUE(canvas.isVisible());
    main.showMaximized();
    EXPECT_FALSE(canvas.isVisible());
    main.showNormal();
    canvas.setProperty("tag", "IN INPOPTS");
    main.showMinimized();
    EXPECT_TRUE(canvas.isVisible());
}

TEST_F(ShellMainWindow, ClosingAsksAndUnloadsTheCanvas)
{
    ScriptedAsking user;
    editing().pagedirty = true;
    user.expectMessage("Save changes to current page?", "Corvanta Form Editor", Icon::Question, Buttons::YesNoCancel,
                       Answer::Cancel);
    child<QAction>("exitmenu").trigger();
    ASSERT_NE(windows->canvas(), nullptr);
    EXPECT_TRUE(windows->main().isVisible());

    windows->main().setEnabled(false); // a property dialog is open
    EXPECT_FALSE(windows->main().close());
    windows->main().setEnabled(true);

    user.expectMessage("Save changes to current page?", "Corvanta Form Editor", Icon::Question, Buttons::YesNoCancel,
                       Answer::No);
    windows->canvas()->close();
    EXPECT_TRUE(QTest::qWaitFor([&] { return windows->canvas() == nullptr; }));
    EXPECT_EQ(objectCount(page()), 0);
    EXPECT_EQ(hostBytes(drive.root() / "PAGES/R&D.ODS"), samples::sample("record.ods"));
    EXPECT_NE(hostBytes(drive.root() / "profile/CORVANTA.INI").find("DefaultPath=C:\\PAGES\\"), std::string::npos);
}

} // namespace corvanta
