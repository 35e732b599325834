#include "platform/placement.h"
#include "platform/qt/dialogs.h"
#include "platform/qt/window_switch.h"

#include <QApplication>
#include <QBoxLayout>
#include <QDialog>
#include <QEvent>
#include <QFrame>
#include <QScreen>
#include <QScrollArea>
#include <QScrollBar>
#include <QStyle>

#include <algorithm>
#include <cmath>

namespace corvanta {

namespace {

bool isFramed(const QWidget &window)
{
    const bool titled = window.windowType() == Qt::Window || window.windowType() == Qt::Dialog;
    return titled && window.isVisible() && window.frameGeometry().size() != window.size();
}

Area areaOf(const QRect &pixels)
{
    return {pixels.x() * twipsPerPixelX(), pixels.y() * twipsPerPixelY(), pixels.width() * twipsPerPixelX(),
            pixels.height() * twipsPerPixelY()};
}

int pixels(double twips, double twipsPerPixel) { return static_cast<int>(std::floor(twips / twipsPerPixel)); }

// The fields of a dialog that is higher or wider than its screen; the buttons below them stay in sight.
class Scrolled : public QScrollArea {
public:
    Scrolled(QWidget *parent, QLayout *fields) : QScrollArea(parent)
    {
        setObjectName("scrolled");
        setFrameShape(QFrame::NoFrame);
        setWidgetResizable(true);
        setFocusPolicy(Qt::NoFocus);
        setWidget(new QWidget);
        widget()->setLayout(fields);
        connect(qApp, &QApplication::focusChanged, this, [this](QWidget *, QWidget *now) {
            if (now && widget()->isAncestorOf(now))
                ensureWidgetVisible(now);
        });
    }

    QSize sizeHint() const override
    {
        return widget()->sizeHint() +
               QSize(verticalScrollBar()->sizeHint().width(), horizontalScrollBar()->sizeHint().height());
    }
};

// The first layout in a dialog's column holds its fields.
void scrollFields(QDialog &dialog)
{
    auto *column = qobject_cast<QVBoxLayout *>(dialog.layout());
    for (int i = 0; column && i < column->count(); ++i)
        if (QLayout *fields = column->itemAt(i)->layout()) {
            column->takeAt(i);
            fields->setParent(nullptr);
            column->insertWidget(i, new Scrolled(&dialog, fields), 1);
            column->activate(); // the dialog's least size is smaller now
            return;
        }
}

// A dialog that gets more fields, as by a choice in it, grows where there is room and scrolls where there is none.
class StaysOnScreen : public QObject {
public:
    explicit StaysOnScreen(QDialog &window) : QObject(&window), dialog(window) { dialog.installEventFilter(this); }

    bool eventFilter(QObject *, QEvent *event) override
    {
        if (event->type() == QEvent::LayoutRequest && dialog.isVisible())
            QMetaObject::invokeMethod(
                this, [this] { keep(); }, Qt::QueuedConnection);
        return false;
    }

private:
    void keep();

    QDialog &dialog;
};

QRect screenOf(const QWidget &dialog) { return dialog.screen()->availableGeometry(); }

void scrollWithoutRoom(QDialog &dialog)
{
    const QSize room = screenOf(dialog).size() - frameOf(dialog), least = dialog.minimumSizeHint();
    if (least.boundedTo(room) != least && !dialog.findChild<QScrollArea *>("scrolled", Qt::FindDirectChildrenOnly))
        scrollFields(dialog);
}

void StaysOnScreen::keep()
{
    scrollWithoutRoom(dialog);
    const QRect screen = screenOf(dialog);
    const QSize size = dialog.size().boundedTo(screen.size() - frameOf(dialog));
    if (size != dialog.size())
        dialog.resize(size);
    const QRect frame(dialog.pos(), size + frameOf(dialog));
    const QPoint over = frame.bottomRight() - screen.bottomRight();
    if (over.x() > 0 || over.y() > 0)
        dialog.move(dialog.pos() - QPoint(std::max(over.x(), 0), std::max(over.y(), 0)));
}

void centre(QWidget &dialog, const QWidget *owner)
{
    const QRect screen = screenOf(dialog);
    const QSize frame = frameOf(dialog);
    const QRect place(dialog.pos() - screen.topLeft(), dialog.size() + frame);
    std::optional<Area> reference;
    if (owner && !owner->isMinimized())
        reference = areaOf(owner->frameGeometry().translated(-screen.topLeft()));
    const Area after = centredArea(areaOf(place), areaOf({QPoint(), screen.size()}), reference);
    const double twipsX = twipsPerPixelX(), twipsY = twipsPerPixelY();
    dialog.resize(QSize(pixels(after.width, twipsX), pixels(after.height, twipsY)) - frame);
    dialog.move(screen.topLeft() + QPoint(pixels(after.left, twipsX), pixels(after.top, twipsY)));
}

} // namespace

double twipsPerPixelX() { return 1440 / QGuiApplication::primaryScreen()->logicalDotsPerInchX(); }

double twipsPerPixelY() { return 1440 / QGuiApplication::primaryScreen()->logicalDotsPerInchY(); }

QSize frameOf(const QWidget &window)
{
    if (isFramed(window))
        return window.frameGeometry().size() - window.size();
    for (const QWidget *other : QApplication::topLevelWidgets())
        if (isFramed(*other))
            return other->frameGeometry().size() - other->size();
    return {4, window.style()->pixelMetric(QStyle::PM_TitleBarHeight) + 6};
}

void CentreDialog(QDialog &dialog, QWidget *owner)
{
    if (dialog.windowState() & (Qt::WindowMinimized | Qt::WindowMaximized | Qt::WindowFullScreen))
        return;
    dialog.ensurePolished();
    if (dialog.layout())
        alignFields(*dialog.layout());
    scrollWithoutRoom(dialog);
    if (!dialog.testAttribute(Qt::WA_Resized))
        dialog.resize(dialog.sizeHint());
    centre(dialog, owner);
    new StaysOnScreen(dialog);
    if (!dialog.parentWidget())
        stayInFront(dialog);
}

} // namespace corvanta
