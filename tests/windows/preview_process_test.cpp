#include "document/events.h"
#include "document/page_file.h"
#include "platform/asking.h"
#include "platform/paths.h"
#include "shell/ui/preview_process.h"
#include "tests/support/fresh_page.h"
#include "tests/support/loopback.h"
#include "tests/support/temporary_drive.h"

#include <QTest>
#include <QUrl>

namespace corvanta {

namespace {

// Without a desktop's browser the address is told, and there stands what a browser would be given.
class PreviewProcessTest : public FreshPage {
protected:
    TemporaryDrive drive;
    QStringList told;

    PreviewProcessTest()
    {
        asking().messageBox = [this](const MessageBox &box) {
            told += QString::fromStdString(box.text);
            return Answer::Ok;
        };
        drive.add("PAGES/OTHER.ODS", serialisePage(page()));
        open("MENU", "First");
    }
    ~PreviewProcessTest() override { asking() = {}; }

    static void open(const std::string &name, const std::string &caption)
    {
        editing().filetag = "C:\\PAGES\\" + name + ".ODS";
        editing().curdir = "C:\\PAGES\\";
        page().pgcaption = caption;
    }

    // Where the file leads that the author is told.
    QUrl address() const
    {
        const QUrl file(told.back().section('\r', 1));
        const QString page = QString::fromStdString(hostBytes(file.toLocalFile().toStdString()));
        return QUrl(page.section("url=", 1).section('"', 0, 0));
    }

    static bool shows(const QUrl &url, const std::string &text)
    {
        const std::string port = std::to_string(url.port());
        const std::string answer = loopback::ask(url.port(), "GET " + url.path().toStdString() +
                                                                 " HTTP/1.1\r\nHost: 127.0.0.1:" + port + "\r\n\r\n");
        return answer.find(text) != std::string::npos;
    }
};

TEST_F(PreviewProcessTest, ServesThePageInMemoryAndFollowsIt)
{
    previewInBrowser();
    ASSERT_TRUE(QTest::qWaitFor([&] { return told.size() == 1; }, 20000)) << "no address";
    const QUrl menu = address();
    ASSERT_TRUE(menu.path().endsWith("/MENU.hts")) << qPrintable(told.back());
    EXPECT_TRUE(shows(menu, "<title>First"));
    EXPECT_FALSE(fileExists("C:\\PAGES\\MENU.ODS"));
    page().pgcaption = "Second";
    pageEdited("Page properties");
    EXPECT_TRUE(QTest::qWaitFor([&] { return shows(menu, "<title>Second"); }, 20000));

    open("OTHER", "Third");
    previewInBrowser();
    ASSERT_TRUE(QTest::qWaitFor([&] { return told.size() == 2; }, 20000));
    EXPECT_EQ(address(), menu.resolved(QUrl("OTHER.hts"))) << "the same process";
    EXPECT_TRUE(shows(address(), "<title>Third"));
    EXPECT_TRUE(shows(menu, "404 ")) << "that page is no longer in memory, and in no file";

    page().SelectStmt = std::string(fileLimit, 'x');
    previewInBrowser();
    EXPECT_EQ(told.back(), "File too large.");
}

} // namespace

} // namespace corvanta
