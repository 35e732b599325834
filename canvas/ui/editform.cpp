#include "canvas/ui/editform.h"

#include "canvas/ui/paint.h"
#include "document/events.h"
#include "platform/qt/text.h"

#include <QCloseEvent>
#include <QKeyEvent>
#include <QResizeEvent>
#include <QScopedValueRollback>
#include <QScreen>
#include <QScrollArea>

#include <algorithm>

namespace corvanta {

namespace {

constexpr int settlingTime = 1000; // milliseconds
constexpr QSize usualBorder(8, 40);
constexpr QSize smallestPage(48, 24);

QScrollArea *newScroller(QWidget *parent)
{
    auto *scroller = new QScrollArea(parent);
    scroller->setFrameShape(QFrame::NoFrame);
    scroller->setFocusPolicy(Qt::NoFocus);
    scroller->setBackgroundRole(QPalette::Dark);
    return scroller;
}

} // namespace

Editform::Editform()
    : toolbar(new MockToolbar(this)),
      scroller(newScroller(this)),
      area(new PageArea(scroller)),
      statusPanel(new StatusPanel(this)),
      trackers(*area),
      visuals(*area, trackers.ceiling()),
      input(*area, trackers, commands),
      objtimer(this),
      settling(this)
{
    setObjectName(QStringLiteral("editform"));
    scroller->setWidget(area);
    setMinimumSize(smallestPage + QSize(0, toolbar->height() + statusPanel->height()));
    settling.setSingleShot(true);
    settling.setInterval(settlingTime);
    area->dropped = [this](QPoint at, const DragPayload &payload) { drop(at, payload); };
    input.pointed = [this](std::int16_t index) { showStatus(index); };
    editing().msgflag = true;
    listenToDocument();
    listenToCanvas();
    listenToRunning();
    for (std::int16_t i = 0; i < objectCount(page()); ++i)
        createVisual(i);
    resize(newPageWidth, newPageHeight + frameHeight());
    applyPageLayout();
}

void Editform::applyPageLayout()
{
    const QScopedValueRollback layout(inLayout, true);
    const QString caption = toQString(page().pgcaption);
    setWindowTitle(caption.isEmpty() ? QStringLiteral("Page") : caption);
    takeMissingSize();
    area->resize(page().bkgwd, page().bkght);
    if (isNormal())
        for (int pass = 0; pass < 2; ++pass) // the first width can change the height of what surrounds the page
            resizeToPage();
    arrange();
    area->update();
}

void Editform::resizeToPage()
{
    const Page &p = page();
    const QSize pageSize(p.bkgwd, p.bkght);
    fitted = pageSize.boundedTo(screenRoom());
    const QSize wanted = fitted + QSize(0, frameHeight());
    if (pageSize.isEmpty() || size() == wanted)
        return;
    settling.start();
    superseded.append(size());
    resize(wanted);
}

// A window system answers some time after a size was asked for, and may answer with one that was replaced meanwhile:
// neither is the user's.
bool Editform::isLateAnswer(const QResizeEvent &event)
{
    if (!event.spontaneous())
        return false;
    if (settling.isActive() || superseded.contains(event.size()))
        return true;
    superseded.clear();
    return false;
}

void Editform::showMockToolbar(bool shown)
{
    toolbar->setVisible(shown);
    applyPageLayout();
}

void Editform::showStatusPanel(bool shown)
{
    statusPanel->setVisible(shown);
    applyPageLayout();
}

bool Editform::isNormal() const { return !isMinimized() && !isMaximized() && !isFullScreen(); }

int Editform::frameHeight() const
{
    return (toolbar->isHidden() ? 0 : toolbar->height()) + (statusPanel->isHidden() ? 0 : statusPanel->height());
}

QSize Editform::innerSize() const { return size() - QSize(0, frameHeight()); }

QSize Editform::screenRoom() const
{
    const QSize known = frameGeometry().size() - size();
    const QSize border = known.isNull() ? usualBorder : known; // not known before the window is shown
    return screen()->availableSize() - border - QSize(0, frameHeight());
}

// A page without a size, as a new one is, takes the window's without becoming dirty.
void Editform::takeMissingSize()
{
    Page &p = page();
    if (!isVisible() || (p.bkgwd > 0 && p.bkght > 0))
        return;
    editing().lentSize = {{p.bkgwd, p.bkght}};
    if (p.bkgwd <= 0)
        p.bkgwd = toPixels(innerSize().width());
    if (p.bkght <= 0)
        p.bkght = toPixels(std::max(1, innerSize().height()));
    unasked = {p.bkgwd, p.bkght};
}

// A page that did not fit on the screen keeps that side, unless the window has become larger still.
void Editform::takeSizeFromWindow()
{
    Page &p = page();
    const auto side = [](std::int16_t current, int shown, int room) {
        return shown <= 0 || (current > room && shown <= current) ? current : toPixels(shown);
    };
    const std::int16_t width = side(p.bkgwd, innerSize().width(), fitted.width());
    const std::int16_t height = side(p.bkght, innerSize().height(), fitted.height());
    const QSize before(p.bkgwd, p.bkght);
    if (before == QSize(width, height))
        return;
    p.bkgwd = width;
    p.bkght = height;
    area->resize(width, height);
    if (before != unasked || !editing().filetag.empty()) // the first size of a new page is no edit
        pageEdited("Page size");
    unasked = {};
}

void Editform::arrange()
{
    const int top = toolbar->isHidden() ? 0 : toolbar->height();
    const int bottom = height() - (statusPanel->isHidden() ? 0 : statusPanel->height());
    toolbar->setGeometry(0, 0, width(), toolbar->height());
    scroller->setGeometry(0, top, width(), std::max(0, bottom - top));
    statusPanel->setGeometry(0, bottom, width(), statusPanel->height());
    statusPanel->arrange(width());
}

void Editform::repaintPage() { visuals.refreshAll(); }

void Editform::resizeEvent(QResizeEvent *event)
{
    if (!inLayout && !isLateAnswer(*event) && isVisible() && isNormal() && editing().msgflag &&
        (page().pgflags & sizeFromImage) == 0)
        takeSizeFromWindow();
    arrange();
}

void Editform::showEvent(QShowEvent *)
{
    applyPageLayout();
    area->setFocus();
}

// Back in the normal state the window takes the page's size, which may have changed meanwhile.
void Editform::changeEvent(QEvent *event)
{
    QWidget::changeEvent(event);
    if (event->type() != QEvent::WindowStateChange || !isNormal() || !isVisible())
        return;
    settling.start();
    QTimer::singleShot(0, this, [this] { applyPageLayout(); });
}

void Editform::closeEvent(QCloseEvent *event)
{
    event->ignore(); // the canvas lives as long as the program
    if (commands.closeRequested)
        commands.closeRequested();
}

void Editform::keyPressEvent(QKeyEvent *event)
{
    if (!input.keyDown(*event))
        QWidget::keyPressEvent(event);
}

void Editform::keyReleaseEvent(QKeyEvent *event)
{
    if (!input.keyUp(*event))
        QWidget::keyReleaseEvent(event);
}

} // namespace corvanta
