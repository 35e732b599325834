#include "shell/ui/places.h"

#include "platform/placement.h"
#include "platform/profile.h"
#include "platform/qt/dialogs.h"
#include "shell/session.h"

#include <QDeadlineTimer>
#include <QEvent>
#include <QGuiApplication>
#include <QScreen>
#include <QTimer>
#include <QVariant>
#include <QWidget>
#include <QWindow>

#include <cmath>
#include <optional>
#include <utility>

namespace corvanta {

namespace {

constexpr int edge = 12, gap = 24; // pixels to the screen's edge, and between the windows
constexpr const char *settingsFile = "CORVANTA.INI";
constexpr int longestFrameWait = 300; // milliseconds

int twipsX(int pixels) { return static_cast<int>(std::lround(pixels * twipsPerPixelX())); }
int twipsY(int pixels) { return static_cast<int>(std::lround(pixels * twipsPerPixelY())); }
int pixelsX(int twips) { return static_cast<int>(std::lround(twips / twipsPerPixelX())); }
int pixelsY(int twips) { return static_cast<int>(std::lround(twips / twipsPerPixelY())); }

// Remembers where a window stands while it is normal: minimised or maximised, and hidden, it has other borders or none.
class NormalPlace : public QObject {
public:
    explicit NormalPlace(QWidget &watched) : QObject(&watched), window(watched)
    {
        setObjectName(name);
        window.installEventFilter(this);
    }

    static NormalPlace *of(const QWidget &window)
    {
        return dynamic_cast<NormalPlace *>(window.findChild<QObject *>(name, Qt::FindDirectChildrenOnly));
    }

    bool known() const { return size.isValid(); }
    void take()
    {
        const bool normal = !window.isMinimized() && !window.isMaximized() && !window.isFullScreen();
        if (!normal || !window.isVisible() || !window.windowHandle()->isExposed())
            return;
        if (const auto place = std::exchange(wanted, std::nullopt))
            window.move(*place);
        corner = window.pos();
        size = window.size();
    }
    bool eventFilter(QObject *, QEvent *event) override
    {
        const QEvent::Type type = event->type();
        if (type != QEvent::WindowStateChange && type != QEvent::Hide && type != QEvent::Close)
            take();
        return false;
    }

    QPoint corner;                // of the frame
    QSize size;                   // without it
    std::optional<QPoint> wanted; // when the window system has placed the window where it likes

private:
    static inline const QString name = QStringLiteral("normalplace");
    QWidget &window;
};

QPoint placeOf(const QWidget &window)
{
    const NormalPlace *normal = NormalPlace::of(window);
    return normal && normal->known() ? normal->corner : window.pos();
}

QSize sizeOf(const QWidget &window)
{
    const NormalPlace *normal = NormalPlace::of(window);
    return normal && normal->known() ? normal->size : window.size();
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

void rememberPlace(QWidget &window) { new NormalPlace(window); }

void putBack(QWidget &window)
{
    NormalPlace *normal = NormalPlace::of(window);
    if (normal && normal->known())
        normal->wanted = normal->corner;
}

void storePlace(const QWidget &window)
{
    const NormalPlace *normal = NormalPlace::of(window);
    if (!normal || !normal->known())
        return;
    const std::string section = window.windowTitle().toStdString();
    WritePrivateProfileString(section, "Top", profileNumber(twipsY(normal->corner.y())), settingsFile);
    WritePrivateProfileString(section, "Left", profileNumber(twipsX(normal->corner.x())), settingsFile);
    WritePrivateProfileString(section, "Height", profileNumber(twipsY(normal->size.height())), settingsFile);
    WritePrivateProfileString(section, "Width", profileNumber(twipsX(normal->size.width())), settingsFile);
}

void restorePlace(QWidget &window)
{
    const std::string section = window.windowTitle().toStdString();
    const auto stored = [&](const char *key) { return GetPrivateProfileInt(section, key, -1, settingsFile); };
    const int height = stored("Height"), width = stored("Width"), top = stored("Top"), left = stored("Left");
    const QSize screen = QGuiApplication::primaryScreen()->virtualSize();
    if (height > 0 && width > 0)
        window.resize(QSize(pixelsX(width), pixelsY(height)).boundedTo(screen).expandedTo(window.minimumSizeHint()));
    if (top < 0 || left < 0)
        return;
    const QSize size = (height > 0 ? window.size() : window.sizeHint()) + frameOf(window);
    NormalPlace::of(window)->wanted = QPoint(keptOnScreen(pixelsX(left), size.width(), screen.width()),
                                             keptOnScreen(pixelsY(top), size.height(), screen.height()));
}

WindowSettings windowPlaces(const QWidget &main, const QWidget &canvas)
{
    WindowSettings places;
    places.MainTop = twipsY(placeOf(main).y());
    places.MainLeft = twipsX(placeOf(main).x());
    places.PageTop = twipsY(placeOf(canvas).y());
    places.PageLeft = twipsX(placeOf(canvas).x());
    const QSize size = sizeOf(canvas);
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
    if (!canvas.isVisible())
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

QRect roomForCanvas(const QWidget &main)
{
    const QRect screen = main.screen()->availableGeometry();
    const QRect frame(placeOf(main), main.size() + frameOf(main));
    const auto areaOf = [](const QRect &r) {
        return Area{double(r.x()), double(r.y()), double(r.width()), double(r.height())};
    };
    const Area room = roomBeside(areaOf(frame), areaOf(screen));
    return {int(room.left), int(room.top), int(room.width), int(room.height)};
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
