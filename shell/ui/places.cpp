#include "shell/ui/places.h"

#include "platform/qt/dialogs.h"
#include "shell/session.h"

#include <QDeadlineTimer>
#include <QGuiApplication>
#include <QScreen>
#include <QStyle>
#include <QTimer>
#include <QVariant>
#include <QWidget>
#include <QWindow>

#include <cmath>

namespace corvanta {

namespace {

constexpr int edge = 12, gap = 24;    // pixels to the screen's edge, and between the windows
constexpr int longestFrameWait = 300; // milliseconds

int twipsX(int pixels) { return static_cast<int>(std::lround(pixels * twipsPerPixelX())); }
int twipsY(int pixels) { return static_cast<int>(std::lround(pixels * twipsPerPixelY())); }
int pixelsX(int twips) { return static_cast<int>(std::lround(twips / twipsPerPixelX())); }
int pixelsY(int twips) { return static_cast<int>(std::lround(twips / twipsPerPixelY())); }

// A window that is minimised or maximised counts with the place where it is normal.
QPoint placeOf(const QWidget &window)
{
    if (window.isMaximized() || window.isFullScreen())
        return window.normalGeometry().topLeft() - (window.geometry().topLeft() - window.pos());
    return window.pos();
}

// What the window manager puts round a window; an estimate until it has done so.
QSize frameOf(const QWidget &window)
{
    const QSize frame = window.frameGeometry().size() - window.size();
    return frame.isEmpty() ? QSize(4, window.style()->pixelMetric(QStyle::PM_TitleBarHeight) + 6) : frame;
}

ScreenSizes screenSizes(const QWidget &main, const QWidget &canvas)
{
    const QSize screen = QGuiApplication::primaryScreen()->virtualSize();
    const QSize mainFrame = frameOf(main), canvasFrame = frameOf(canvas);
    ScreenSizes sizes;
    sizes.mainHeight = twipsY(main.height() + mainFrame.height());
    sizes.mainWidth = twipsX(main.width() + mainFrame.width());
    sizes.frameHeight = twipsY(canvasFrame.height());
    sizes.frameWidth = twipsX(canvasFrame.width());
    sizes.screenHeight = twipsY(screen.height());
    sizes.screenWidth = twipsX(screen.width());
    return sizes;
}

} // namespace

WindowSettings windowPlaces(const QWidget &main, const QWidget &canvas)
{
    WindowSettings places;
    places.MainTop = twipsY(placeOf(main).y());
    places.MainLeft = twipsX(placeOf(main).x());
    places.PageTop = twipsY(placeOf(canvas).y());
    places.PageLeft = twipsX(placeOf(canvas).x());
    const QSize size = canvas.isMaximized() ? canvas.normalGeometry().size() : canvas.size();
    places.PageHeight = twipsY(size.height());
    places.PageWidth = twipsX(size.width());
    return places;
}

void placeWindows(QWidget &main, QWidget &canvas, const WindowSettings &places)
{
    const QVariant before = canvas.property("tag");
    canvas.setProperty("tag", QStringLiteral("IN INPOPTS"));
    const WindowSettings kept = keptOnScreen(places, screenSizes(main, canvas));
    main.move(pixelsX(kept.MainLeft), pixelsY(kept.MainTop));
    canvas.resize(pixelsX(kept.PageWidth), pixelsY(kept.PageHeight));
    canvas.move(pixelsX(kept.PageLeft), pixelsY(kept.PageTop));
    canvas.setProperty("tag", before);
}

void placeAtFirst(QWidget &main, QWidget &canvas)
{
    const QPoint corner = QGuiApplication::primaryScreen()->availableGeometry().topLeft();
    main.move(corner + QPoint(edge, edge));
    canvas.move(main.pos() + QPoint(0, main.height() + frameOf(main).height() + gap));
}

void waitForFrame(const QWidget &window)
{
    const QDeadlineTimer deadline(longestFrameWait);
    QTimer wake;
    wake.start(longestFrameWait);
    while (!window.windowHandle()->isExposed() && !deadline.hasExpired())
        QCoreApplication::processEvents(QEventLoop::ExcludeUserInputEvents | QEventLoop::WaitForMoreEvents);
}

} // namespace corvanta
