#include "document/object_file.h"
#include "platform/post.h"
#include "platform/qt/recent_files.h"
#include "shell/ui/file_drops.h"
#include "shell/ui/recent_pages.h"
#include "tests/support/samples.h"
#include "tests/support/scripted_asking.h"
#include "tests/windows/canvas_form.h"

#include <QMenu>
#include <QMimeData>

#include <fstream>

using namespace corvanta;

namespace {

class FileDrops : public CanvasForm {
protected:
    FileDrops()
    {
        takeFileDrops(form.pageArea(), true);
        drive.add("A&B.ODS", samples::sample("menu.ods"));
    }

    // Drops what a file manager drags onto the page.
    bool drop(const QList<QUrl> &urls, QPoint at)
    {
        QMimeData data;
        data.setUrls(urls);
        QDragEnterEvent enter(at, Qt::CopyAction | Qt::MoveAction, &data, Qt::LeftButton, {});
        QApplication::sendEvent(&form.pageArea(), &enter);
        QDropEvent event(at, Qt::CopyAction | Qt::MoveAction, &data, Qt::LeftButton, {});
        QApplication::sendEvent(&form.pageArea(), &event);
        QApplication::processEvents(); // what is dropped is looked at when the other program is free again
        return enter.isAccepted() && event.dropAction() == Qt::CopyAction;
    }
    QUrl file(const char *name) const
    {
        return QUrl::fromLocalFile(QString::fromStdString((drive.root() / name).string()));
    }

    TemporaryDrive drive;
    ScriptedAsking user;
};

} // namespace

TEST_F(FileDrops, PagesOpenAndObjectsComeToThePointer)
{
    add(Kind::Label, {5, 5, 50, 20});
    drive.add("BOX.HDO", objectFileText(page(), 0));
    EXPECT_TRUE(drop({file("BOX.HDO")}, {120, 90}));
    ASSERT_EQ(objectCount(page()), 2);
    EXPECT_EQ(recordRect(1), QRect(120, 90, 50, 20));
    EXPECT_EQ(editing().curobj, 1);
    EXPECT_TRUE(editing().pagedirty);
    user.expectMessage("Save changes to current page?", "Corvanta Form Editor", Icon::Question, Buttons::YesNoCancel,
                       Answer::Cancel);
    EXPECT_TRUE(drop({file("A&B.ODS")}, {}));
    EXPECT_EQ(editing().filetag, "");
    user.expectMessage("Save changes to current page?", "Corvanta Form Editor", Icon::Question, Buttons::YesNoCancel,
                       Answer::No);
    EXPECT_TRUE(drop({file("A&B.ODS")}, {}));
    EXPECT_EQ(editing().filetag, "C:\\A&B.ODS");
}

TEST_F(FileDrops, WhatIsNeitherIsTold)
{
    drive.add("X.TXT", "text");
    std::filesystem::create_directory(drive.root() / "DIR.ODS");
    user.expectMessage("\"X.TXT\" is neither a page (.ods) nor an object (.odo, .hdo).", "Reading File");
    drop({file("X.TXT")}, {});
    user.expectMessage("A directory is no page.  Drop one of its files.", "Reading File");
    drop({file("DIR.ODS")}, {});
    user.expectMessage("Drop one file at a time.", "Reading File");
    drop({file("X.TXT"), file("A&B.ODS")}, {});
    user.expectMessage("Only files of this computer can be opened.", "Reading File");
    drop({QUrl("https://host.example/menu.ods")}, {});
    EXPECT_EQ(editing().filetag, "");
}

TEST_F(FileDrops, OpenedPagesComeToTheDesktopsListAndToTheMenu)
{
    const auto list = drive.root() / "data/recently-used.xbel";
    setenv("XDG_DATA_HOME", list.parent_path().c_str(), 1);
    std::filesystem::create_directory(list.parent_path());
    std::ofstream(list) << R"(<?xml version="1.0"?><xbel version="1.0"
        xmlns:bookmark="http://www.freedesktop.org/standards/desktop-bookmarks"
        xmlns:mime="http://www.freedesktop.org/standards/shared-mime-info">
        <bookmark href="file:///tmp/other.txt" added="2020-01-01T00:00:00Z" modified="2020-01-01T00:00:00Z"
        visited="2020-01-01T00:00:00Z"><info><metadata owner="http://freedesktop.org">
        <mime:mime-type type="text/plain"/><bookmark:applications><bookmark:application name="other" exec="other %u"
        modified="2020-01-01T00:00:00Z" count="1"/></bookmark:applications></metadata></info></bookmark></xbel>)";
    drive.add("SECOND.ODS", samples::sample("menu.ods"));
    startRecentPages();
    openPage("C:\\A&B.ODS");
    openPage("C:\\SECOND.ODS");
    user.expectMessage("File doesn't exist.", "Reading File");
    openPage("C:\\GONE.ODS");
    stopRecentPages();
    EXPECT_EQ(recentPages(10), (std::vector{drive.root() / "SECOND.ODS", drive.root() / "A&B.ODS"}));
    EXPECT_EQ(recentPages(1).size(), 1U);
    EXPECT_NE(hostBytes(list).find("file:///tmp/other.txt"), std::string::npos);
    QMenu menu;
    startRecentPages();
    stopRecentPages();
    runPostedJobs();
    addRecentPages(menu);
    ASSERT_EQ(menu.actions().size(), 2);
    EXPECT_TRUE(menu.actions().last()->text().endsWith("A&&B.ODS"));
    std::ofstream(list) << "no list";
    noteRecentPage(drive.root() / "SECOND.ODS");
    EXPECT_EQ(hostBytes(list), "no list") << "a list that cannot be read is left alone";
}
