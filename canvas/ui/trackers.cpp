#include "canvas/ui/trackers.h"

#include <QCursor>
#include <QFrame>
#include <QPainter>

#include <algorithm>

namespace corvanta {

namespace {

const QColor handleColour(0x00, 0x30, 0x90), markerColour(0xB0, 0x48, 0x00), outlineColour(0xD0, 0x10, 0x20),
    referenceColour(0x00, 0x80, 0x40), bandColour(0x20, 0x60, 0xC0);

Qt::CursorShape cursorOf(PointerShape shape)
{
    switch (shape) {
    case PointerShape::SizeNwSe: return Qt::SizeFDiagCursor;
    case PointerShape::SizeVertical: return Qt::SizeVerCursor;
    case PointerShape::SizeNeSw: return Qt::SizeBDiagCursor;
    case PointerShape::SizeHorizontal: return Qt::SizeHorCursor;
    }
    return Qt::ArrowCursor;
}

QWidget *newLine(QWidget &area, int n)
{
    auto *line = new QWidget(&area);
    line->setObjectName(QStringLiteral("boxline%1").arg(n));
    line->setAttribute(Qt::WA_TransparentForMouseEvents);
    QPalette colours = line->palette();
    colours.setColor(QPalette::Window, outlineColour);
    line->setPalette(colours);
    line->setBackgroundRole(QPalette::Window);
    line->setAutoFillBackground(true);
    line->hide();
    return line;
}

QWidget *newGroupFrame(QWidget &area)
{
    auto *frame = new QFrame(&area);
    frame->setObjectName(QStringLiteral("multbox"));
    frame->setFrameStyle(QFrame::Box | QFrame::Plain);
    frame->setAttribute(Qt::WA_TransparentForMouseEvents);
    QPalette colours = frame->palette();
    colours.setColor(QPalette::WindowText, markerColour);
    frame->setPalette(colours);
    frame->setForegroundRole(QPalette::WindowText);
    frame->hide();
    return frame;
}

// A tinted area with a border, which lets through what lies below.
class Band : public QWidget {
public:
    explicit Band(QWidget &area) : QWidget(&area)
    {
        setObjectName(QStringLiteral("rubberband"));
        setAttribute(Qt::WA_TransparentForMouseEvents);
        hide();
    }

protected:
    void paintEvent(QPaintEvent *) override
    {
        QPainter painter(this);
        QColor tint = bandColour;
        tint.setAlpha(40);
        painter.fillRect(rect(), tint);
        painter.setPen(bandColour);
        painter.drawRect(rect().adjusted(0, 0, -1, -1));
    }
};

void place(HandleBox *const *boxes, const Rect &object)
{
    const auto corners = trackerPositions(object);
    for (std::size_t i = 0; i < corners.size(); ++i) {
        boxes[i]->move(corners[i].x, corners[i].y);
        boxes[i]->show();
    }
}

} // namespace

HandleBox::HandleBox(QWidget &pageArea, const QString &name, const QColor &colour) : QWidget(&pageArea), edge(colour)
{
    setObjectName(name);
    resize(handleSize, handleSize);
    hide();
}

void HandleBox::setColour(const QColor &colour)
{
    if (edge == colour)
        return;
    edge = colour;
    update();
}

void HandleBox::paintEvent(QPaintEvent *)
{
    QPainter painter(this);
    painter.fillRect(rect(), edge);
    painter.fillRect(rect().adjusted(1, 1, -1, -1), Qt::white);
}

Trackers::Trackers(QWidget &area) : pageArea(area), multbox(newGroupFrame(area)), band(new Band(area))
{
    for (int i = 0; i < handleCount; ++i) {
        auto *box = new HandleBox(area, QStringLiteral("trbox%1").arg(i), handleColour);
        box->setAccessibleName(QStringLiteral("Tracker handle %1").arg(i));
        box->setCursor(cursorOf(pointerShape(static_cast<Handle>(i))));
        trbox[static_cast<std::size_t>(i)] = box;
    }
    for (int i = 0; i < 4; ++i)
        boxline[static_cast<std::size_t>(i)] = newLine(area, i);
}

void Trackers::showHandles(const Rect &object)
{
    place(trbox.data(), object);
    for (HandleBox *box : trbox)
        box->raise();
}

void Trackers::hideHandles()
{
    for (HandleBox *box : trbox)
        box->hide();
}

void Trackers::loadMarkers(int slot)
{
    while (trboxf.size() < static_cast<std::size_t>(slot) * handleCount) {
        const auto n = static_cast<int>(trboxf.size());
        auto *box = new HandleBox(pageArea, QStringLiteral("trboxf%1").arg(n), markerColour);
        box->setAttribute(Qt::WA_NoMousePropagation); // its events do nothing, also to the page beneath
        box->setAccessibleName(QStringLiteral("Frame marker %1 of slot %2").arg(n % handleCount).arg(slot));
        trboxf.push_back(box);
    }
}

void Trackers::placeMarkers(int slot, const Rect &object)
{
    loadMarkers(slot);
    place(trboxf.data() + (slot - 1) * handleCount, object);
}

void Trackers::showReference(int slot)
{
    if (slot == reference)
        return;
    colourMarkers(reference, markerColour);
    colourMarkers(slot, referenceColour);
    reference = slot;
}

void Trackers::colourMarkers(int slot, const QColor &colour)
{
    if (slot <= 0)
        return;
    loadMarkers(slot);
    for (int i = 0; i < handleCount; ++i)
        trboxf[static_cast<std::size_t>((slot - 1) * handleCount + i)]->setColour(colour);
}

void Trackers::hideMarkers(int slot)
{
    loadMarkers(slot);
    for (int i = 0; i < handleCount; ++i)
        trboxf[static_cast<std::size_t>((slot - 1) * handleCount + i)]->hide();
}

void Trackers::hideAll()
{
    hideHandles();
    hideOutline();
    hideGroupFrame();
    hideBand();
    for (HandleBox *box : trboxf)
        box->hide();
}

void Trackers::drawOutline(const Rect &r)
{
    // The lines beyond the rectangle stay in sight where it touches the page's edge.
    const int bottom = std::min(r.bottom(), pageArea.height() - 1);
    const int right = std::min(r.right(), pageArea.width() - 1);
    boxline[0]->setGeometry(r.left, r.top, r.width, 1);
    boxline[1]->setGeometry(r.left, bottom, r.width + 1, 1);
    boxline[2]->setGeometry(r.left, r.top, 1, r.height);
    boxline[3]->setGeometry(right, r.top, 1, r.height);
    for (QWidget *line : boxline) {
        line->show();
        line->raise();
    }
}

void Trackers::hideOutline()
{
    for (QWidget *line : boxline)
        line->hide();
}

void Trackers::showGroupFrame(const Rect &r)
{
    multbox->setGeometry(r.left, r.top, r.width, r.height);
    multbox->show();
}

void Trackers::hideGroupFrame() { multbox->hide(); }

void Trackers::drawBand(const Rect &r)
{
    band->setGeometry(r.left, r.top, r.width + 1, r.height + 1);
    band->show();
    band->raise();
}

void Trackers::hideBand() { band->hide(); }

} // namespace corvanta
