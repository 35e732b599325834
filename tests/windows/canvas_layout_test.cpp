#include "canvas/ui/paint.h"
#include "document/page_file.h"
#include "platform/paths.h"
#include "tests/windows/canvas_form.h"

#include <QPainter>
#include <QScreen>

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

TEST_F(CanvasLayout, ThePanelsFollowThePagesWidth)
{
    for (const int width : {400, 640}) {
        page().bkgwd = static_cast<std::int16_t>(width);
        form.applyPageLayout();
        const QWidget &progress = child("progresspanel"), &line = child("statusline"), &label = child("mocklabel");
        EXPECT_NEAR(progress.geometry().right(), width, 3);
        EXPECT_NEAR(line.geometry().right(), progress.x(), 3);
        EXPECT_NEAR(label.geometry().center().x(), width / 2, 1);
    }
}

TEST_F(CanvasLayout, ResizingTheWindowResizesThePage)
{
    const QSize before = form.size();
    form.resize(before + QSize(50, 20));
    EXPECT_EQ(page().bkgwd, 450);
    EXPECT_EQ(page().bkght, 320);
    EXPECT_EQ(form.pageArea().size(), QSize(450, 320));
    EXPECT_TRUE(editing().pagedirty);
}

TEST_F(CanvasLayout, APageWithItsImagesSizeKeepsIt)
{
    page().pgflags |= sizeFromImage;
    form.resize(form.size() + QSize(50, 20));
    EXPECT_EQ(page().bkgwd, 400);
    EXPECT_EQ(form.pageArea().size(), QSize(400, 300));
    EXPECT_FALSE(editing().pagedirty);
}

TEST_F(CanvasLayout, ANewPageTakesTheWindowsSizeAndIsClean)
{
    newPage();
    EXPECT_EQ(page().bkgwd, 400);
    EXPECT_EQ(page().bkght, 300);
    EXPECT_EQ(form.pageArea().size(), QSize(400, 300));
    form.resize(form.size() + QSize(10, 0));
    EXPECT_EQ(page().bkgwd, 410);
    EXPECT_FALSE(editing().pagedirty) << "the first resize after a load";
    form.resize(form.size() + QSize(10, 0));
    EXPECT_TRUE(editing().pagedirty);
}

TEST_F(CanvasLayout, AFirstShownWindowGivesANewPageItsSize)
{
    page() = Page();
    Editform first;
    first.resize(500, 400);
    EXPECT_EQ(page().bkgwd, 0) << "not shown yet";
    first.show();
    EXPECT_EQ(first.size(), QSize(500, 400));
    EXPECT_EQ(page().bkgwd, 500);
    EXPECT_EQ(first.pageArea().height(), page().bkght);
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

TEST_F(CanvasLayout, TheCaptionIsThePages)
{
    EXPECT_EQ(form.windowTitle(), "Page");
    page().pgcaption = "R\xE9sum\xE9";
    form.applyPageLayout();
    EXPECT_EQ(form.windowTitle(), QString::fromUtf8("R\xC3\xA9sum\xC3\xA9"));
}

TEST_F(CanvasLayout, ThePageShowsItsColourThroughATransparentLabel)
{
    page().bkgcol = 0x0000FF;
    const auto label = add(Kind::Label, QRect(50, 40, 100, 20));
    elementOf(page(), label)->BackStyle = 0;
    form.repaintPage();
    QImage shown = form.pageArea().grab().toImage();
    EXPECT_EQ(shown.pixel(5, 5), 0xFFFF0000);
    EXPECT_EQ(shown.pixel(148, 58), 0xFFFF0000);
    elementOf(page(), label)->BackStyle = 1;
    form.repaintPage();
    shown = form.pageArea().grab().toImage();
    EXPECT_EQ(shown.pixel(148, 58), 0xFFC0C0C0);
    EXPECT_EQ(shown.pixel(150, 58), 0xFFFF0000);
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
