#include "canvas/ui/visual.h"

#include "platform/qt/dialogs.h"
#include "platform/qt/text.h"

#include <QPainter>

namespace corvanta {

namespace {

Kind kindOfControl(ControlReference control) { return static_cast<Kind>(control.kind); }

// The frame that a playing animation shows lies at its own place on the page, as large as its picture.
QRect frameRect(const Page &p, const Visual &visual, const QRect &resting)
{
    const Frame *frame = shownFrame(p, visual.control().element, visual.live());
    if (!frame)
        return resting;
    const QSize size = frame->picture ? QSize(frame->picture->width, frame->picture->height) : resting.size();
    return {QPoint(frame->left, frame->top), size};
}

} // namespace

QString accessibleNameOf(const Page &p, std::int16_t index)
{
    const ObjectRecord &o = p.objects[static_cast<std::size_t>(index)];
    const auto kind = kindOf(o.kind);
    if (!kind)
        return {};
    const Element *element = elementOf(p, index);
    const bool access = *kind == Kind::Button || *kind == Kind::Label || *kind == Kind::Url; // an "&" marks a key
    const QString text = toQString(element ? element->Caption : o.sptext);
    return (QString::fromLatin1(kindRow(*kind).displayName) + ' ' + (access ? plainLabel(text) : text)).trimmed();
}

Visual::Visual(QWidget &pageArea, ControlReference control) : QWidget(&pageArea), reference(control)
{
    setObjectName(QString::fromLatin1(kindRow(kindOfControl(control)).prefix) + QString::number(control.element));
    setMouseTracking(true);
    refresh();
}

std::int16_t Visual::index() const { return findObjectByControl(page(), kindOfControl(reference), reference.element); }

void Visual::setLive(const LiveState &live)
{
    const bool placeMayChange = live.frame != state.frame || live.bordered != state.bordered;
    state = live;
    if (placeMayChange)
        refresh();
    update();
}

void Visual::refresh()
{
    const Page &p = page();
    const std::int16_t i = index();
    if (i == noObject)
        return;
    const ObjectRecord &o = p.objects[static_cast<std::size_t>(i)];
    const QRect resting(o.pleft, o.ptop, o.pwidth, o.pheight);
    const bool playing = kindOfControl(reference) == Kind::Animation && !state.bordered;
    setGeometry(playing ? frameRect(p, *this, resting) : resting);
    setAccessibleName(accessibleNameOf(p, i));
    update();
}

void Visual::paintEvent(QPaintEvent *)
{
    QPainter painter(this);
    paintObject(painter, page(), index(), rect(), state);
}

} // namespace corvanta
