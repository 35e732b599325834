#include "canvas/ui/editform.h"

#include "canvas/page_view.h"
#include "canvas/ui/paint.h"
#include "document/events.h"
#include "platform/qt/text.h"

#include <QCloseEvent>
#include <QKeyEvent>
#include <QResizeEvent>
#include <QScopedValueRollback>
#include <QScreen>
#include <QScrollArea>
#include <QScrollBar>
#include <QStyle>
#include <QWindow>

#include <algorithm>
#include <utility>

namespace corvanta {

namespace {

constexpr int scrollInterval = 25; // milliseconds
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
      badges(new TabBadges(*area)),
      visuals(*area, trackers.ceiling()),
      input(*area, trackers, commands),
      objtimer(this)
{
    setObjectName(QStringLiteral("editform"));
    scroller->setWidget(area);
    setMinimumSize(smallestPage + QSize(0, toolbar->height() + statusPanel->height()));
    statusPanel->clicked = [this] { tell(commands.statusClicked); };
    area->dropped = [this](QPoint at, const DragPayload &payload) { drop(at, payload); };
    scrolling.setInterval(scrollInterval);
    connect(&scrolling, &QTimer::timeout, this, [this] { scrollOn(); });
    input.dragged = [this](QPoint at) {
        pointer = at;
        if (!scrolling.isActive())
            scrolling.start();
    };
    input.pointed = [this](std::int16_t index) { showStatus(index); };
    editing().msgflag = true;
    listenToDocument();
    listenToCanvas();
    listenToRunning();
    listenToPictures();
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

// The window takes the page's size as far as there is room, with what the scroll bars take that it then needs.
void Editform::resizeToPage()
{
    const Size pageSize = sizeOf(page());
    if (pageSize.width <= 0 || pageSize.height <= 0)
        return;
    if (innerSize() == QSize(pageSize.width, pageSize.height)) { // also one that the author has made too large
        fitted = pageSize;
        return;
    }
    const QSize space = screenRoom();
    const Size view = viewOf(pageSize, {space.width(), space.height()}, barWidth());
    const Size bars = barsFor(pageSize, view, barWidth());
    fitted = {view.width - bars.width, view.height - bars.height};
    askFor({view.width, view.height + frameHeight()});
}

int Editform::barWidth() const
{
    return style()->pixelMetric(QStyle::PM_ScrollBarExtent, nullptr, scroller->verticalScrollBar());
}

void Editform::askFor(QSize wanted)
{
    if (size() == wanted)
        return;
    asked.append(size());
    asked.append(wanted);
    resize(wanted);
    keepInRoom();
}

// A window that grows beyond its room is pushed back, but not a window that the author has put elsewhere.
void Editform::keepInRoom()
{
    const QRect all = room ? room() : screen()->availableGeometry(), frame = frameGeometry();
    const QPoint excess(std::max(0, frame.right() - all.right()), std::max(0, frame.bottom() - all.bottom()));
    const QPoint corner(std::max(frame.left() - excess.x(), std::min(frame.left(), all.left())),
                        std::max(frame.top() - excess.y(), std::min(frame.top(), all.top())));
    const bool framed = isVisible() && windowHandle()->isExposed();
    if (framed && corner != frame.topLeft())
        move(corner);
}

// A window system answers some time after it was asked for a size, perhaps with one that was replaced meanwhile, and
// with a size of its own for a window that comes onto the screen: none of them is the user's.
bool Editform::isAnswer(const QResizeEvent &event)
{
    if (!event.spontaneous())
        return false;
    if (std::exchange(restoring, false)) {
        QTimer::singleShot(0, this, [this] { applyPageLayout(); });
        return true;
    }
    const qsizetype found = asked.indexOf(event.size());
    asked.remove(0, found < 0 ? asked.size() : found);
    return found >= 0 || !windowHandle()->isExposed();
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

void Editform::showBindings(bool shown) { visuals.showBindings(shown); }

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
    const QSize all = room ? room().size() : screen()->availableSize();
    return (all - border - QSize(0, frameHeight())).expandedTo(smallestPage);
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
}

void Editform::takeSizeFromWindow(QSize windowBefore)
{
    const auto inner = [this](QSize window) { return Size{window.width(), window.height() - frameHeight()}; };
    const Size before = sizeOf(page());
    const Size after = pageSizeFor(before, fitted, inner(windowBefore), inner(size()), barWidth());
    if (after == before)
        return;
    if (after.width != before.width)
        fitted.width = after.width;
    if (after.height != before.height)
        fitted.height = after.height;
    page().bkgwd = toPixels(after.width);
    page().bkght = toPixels(after.height);
    area->resize(after.width, after.height);
    editing().lentSize.reset();
    pageEdited("Page size");
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
    if (!inLayout && !isAnswer(*event) && isVisible() && isNormal() && editing().msgflag &&
        (page().pgflags & sizeFromImage) == 0)
        takeSizeFromWindow(event->oldSize());
    arrange();
}

void Editform::showEvent(QShowEvent *)
{
    applyPageLayout();
    area->setFocus();
}

// Back in the normal state the window takes the page's size, which may have changed meanwhile: once it stands in its
// normal place, which a change of its size would take from it before.
void Editform::changeEvent(QEvent *event)
{
    QWidget::changeEvent(event);
    if (event->type() != QEvent::WindowStateChange || !isVisible())
        return;
    const Qt::WindowStates before = static_cast<QWindowStateChangeEvent *>(event)->oldState();
    const bool wasMaximised = before & (Qt::WindowMaximized | Qt::WindowFullScreen);
    if (before == Qt::WindowNoState)
        normalPlace = geometry();
    restoring = isNormal() && wasMaximised && geometry() != normalPlace;
    if (isNormal() && !restoring)
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
