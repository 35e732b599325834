#include "canvas/ui/paint.h"
#include "document/page_file.h"
#include "platform/paths.h"
#include "tests/windows/canvas_form.h"

#include <QPainter>
#include <QScreen>
#include <QScrollArea>
#include <QScrollBar>
#include <QWindow>

#include <filesystem>

using namespace corvanta;

namespace {

class CanvasLayout : public CanvasForm {};

} // namespace

TEST_F(CanvasLayout, TheWindowGivesThePageItsPixelSizeBetweenThePanels)
{
    const int toolbar = child("mocktoolbar").height(), status = child("statuspanel").height();
    EXPECT_EQ(form.size(), QSize(400, 300 + toolbar + status));
    EXPECT_EQ(form.pageArea().mapTo(&form, QPoint()), QPoint(0, toolbar));
    EXPECT_EQ(form.pageArea().size(), QSize(400, 300));
    form.showMockToolbar(false);
    EXPECT_EQ(form.size(), QSize(400, 300 + status));
    EXPECT_EQ(form.pageArea().mapTo(&form, QPoint()), QPoint());
    form.showStatusPanel(false);
    EXPECT_EQ(form.size(), QSize(400, 300));
    form.showMockToolbar(true);
    form.showStatusPanel(true);
    EXPECT_EQ(form.size(), QSize(400, 300 + toolbar + status));
    EXPECT_EQ(page().bkght, 300);
    EXPECT_FALSE(editing().pagedirty);
}

TEST_F(CanvasLayout, ResizingTheWindowResizesThePage)
{
    const QSize before = form.size();
    form.resize(before + QSize(50, 20));
    EXPECT_EQ(page().bkgwd, 450);
    EXPECT_EQ(page().bkght, 320);
    EXPECT_EQ(form.pageArea().size(), QSize(450, 320));
    EXPECT_TRUE(editing().pagedirty);
    form.resize(before);
    EXPECT_EQ(page().bkgwd, 400) << "the way back";
    EXPECT_EQ(page().bkght, 300);
}

TEST_F(CanvasLayout, ANewPageThatTheUserResizesIsSavedWithThatSize)
{
    newPage();
    EXPECT_FALSE(editing().pagedirty);
    form.resize(form.size() + QSize(50, 20));
    const Page saved = [] {
        Page p;
        parsePage(p, pageText());
        return p;
    }();
    EXPECT_EQ(saved.bkgwd, form.width());
    EXPECT_TRUE(editing().pagedirty);
}

TEST_F(CanvasLayout, AUsersSizeCountsAtOnceAndTheAnswersToOursDoNot)
{
    const auto tell = [&](QSize size) { // as the window system does
        form.windowHandle()->resize(size);
        QCoreApplication::processEvents();
    };
    const QSize first = form.size();
    form.showStatusPanel(false);
    const QSize second = form.size();
    tell(first);
    tell(second);
    EXPECT_FALSE(editing().pagedirty);
    EXPECT_EQ(page().bkght, 300);
    tell(second + QSize(30, 40));
    EXPECT_EQ(page().bkgwd, 430);
    EXPECT_EQ(page().bkght, 340);
    tell(first);
    EXPECT_EQ(page().bkgwd, 400) << "an old size is the user's as well";
}

TEST_F(CanvasLayout, APageThatIsTooHighGetsNoHorizontalScrollBar)
{
    page().bkght = 5000;
    form.applyPageLayout();
    auto &scroller = *form.findChild<QScrollArea *>();
    EXPECT_TRUE(scroller.verticalScrollBar()->isVisible());
    EXPECT_FALSE(scroller.horizontalScrollBar()->isVisible());
    EXPECT_EQ(page().bkgwd, 400);
}

TEST_F(CanvasLayout, APageWithItsImagesSizeKeepsIt)
{
    page().pgflags |= sizeFromImage;
    form.resize(form.size() + QSize(50, 20));
    EXPECT_EQ(page().bkgwd, 400);
    EXPECT_EQ(form.pageArea().size(), QSize(400, 300));
    EXPECT_FALSE(editing().pagedirty);
}

TEST_F(CanvasLayout, APageLargerThanTheScreenScrollsAndKeepsItsSize)
{
    page().bkgwd = 3000;
    page().bkght = 2000;
    form.applyPageLayout();
    EXPECT_EQ(form.pageArea().size(), QSize(3000, 2000));
    const QSize screen = form.screen()->availableSize();
    EXPECT_LE(form.frameGeometry().width(), screen.width());
    EXPECT_LE(form.frameGeometry().height(), screen.height());
    form.resize(500, 400);
    EXPECT_EQ(page().bkgwd, 3000);
    EXPECT_EQ(page().bkght, 2000);
    EXPECT_FALSE(editing().pagedirty);
}

TEST_F(CanvasLayout, TheWindowShowsWhatTheRenderedPageShows)
{
    openPage(drivePath(std::filesystem::path(CORVANTA_TEST_DATA) / "pages" / "record.ods"));
    QImage rendered(page().bkgwd, page().bkght, QImage::Format_RGB32);
    QPainter painter(&rendered);
    paintPage(painter, page());
    EXPECT_EQ(form.pageArea().grab().toImage().convertToFormat(QImage::Format_RGB32), rendered);
    EXPECT_EQ(form.windowTitle(), "Product");
}
