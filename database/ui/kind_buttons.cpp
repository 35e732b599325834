#include "database/ui/kind_buttons.h"

#include "database/connection.h"
#include "database/ui/drag_source.h"
#include "platform/qt/dialogs.h"

#include <QButtonGroup>
#include <QCursor>
#include <QFrame>
#include <QHBoxLayout>
#include <QLabel>
#include <QPainter>
#include <QScreen>
#include <QTimer>
#include <QToolButton>
#include <QToolTip>

#include <algorithm>
#include <cmath>

namespace corvanta {

namespace {

constexpr QSize pictureSize(24, 24);
constexpr double tipBelowPointer = 200, tipMargin = 40; // twips
constexpr int tipInterval = 500;                        // milliseconds
constexpr int tipPadding = 4;                           // pixels, above and below together

// The down picture is the up picture in a frame, so that the pressed button stands out on any desktop.
class PictureButton : public QToolButton {
public:
    using QToolButton::QToolButton;

protected:
    void paintEvent(QPaintEvent *event) override
    {
        QToolButton::paintEvent(event);
        if (!isChecked())
            return;
        QPainter painter(this);
        painter.setRenderHint(QPainter::Antialiasing);
        painter.setPen(QPen(palette().color(QPalette::Highlight), frameWidth));
        painter.drawRoundedRect(rect().adjusted(1, 1, -1, -1), frameWidth, frameWidth);
    }

private:
    static constexpr int frameWidth = 2; // pixels
};

QRect onScreen(const QWidget &widget) { return {widget.mapToGlobal(QPoint()), widget.size()}; }

QFrame *tipBox(QWidget *parent)
{
    auto *box = new QFrame(parent, Qt::ToolTip | Qt::WindowTransparentForInput);
    box->setObjectName("picbut");
    box->setFrameStyle(static_cast<int>(QFrame::Box) | static_cast<int>(QFrame::Plain));
    box->setPalette(QToolTip::palette());
    box->setForegroundRole(QPalette::ToolTipText);
    box->setBackgroundRole(QPalette::ToolTipBase);
    return box;
}

QLabel *tipText(QFrame *box)
{
    auto *row = new QHBoxLayout(box);
    row->setContentsMargins(0, 0, 0, 0);
    auto *text = new QLabel(box);
    text->setObjectName("txtbut");
    text->setAlignment(Qt::AlignCenter);
    text->setForegroundRole(QPalette::ToolTipText);
    row->addWidget(text);
    return text;
}

} // namespace

KindButtons::KindButtons(const std::function<QIcon(Kind)> &pictureOf, QWidget *parent)
    : QWidget(parent), picbut(tipBox(this)), txtbut(tipText(picbut)), timer(new QTimer(this))
{
    auto *row = new QHBoxLayout(this);
    row->setContentsMargins(0, 0, 0, 0);
    row->setSpacing(1);
    auto *group = new QButtonGroup(this);
    for (std::size_t i = 0; i < kindButtons.size(); ++i) {
        addButton(i, pictureOf(kindButtons[i].kind));
        group->addButton(buttons[i], static_cast<int>(i));
        row->addWidget(buttons[i]);
    }
    row->addStretch();
    buttons[connection().pressedButton]->setChecked(true);
    connect(group, &QButtonGroup::idToggled, this, [](int id, bool on) {
        if (on)
            connection().pressedButton = static_cast<std::size_t>(id);
    });
    timer->setObjectName("Timer1");
    timer->setInterval(tipInterval);
    connect(timer, &QTimer::timeout, this, [this] { checkTip(); });
}

void KindButtons::addButton(std::size_t index, const QIcon &picture)
{
    auto *button = new PictureButton(this);
    button->setObjectName(QStringLiteral("butobj%1").arg(index));
    button->setAccessibleName(kindButtons[index].name);
    button->setIcon(picture);
    button->setIconSize(pictureSize);
    button->setCheckable(true);
    button->setFocusPolicy(Qt::TabFocus);
    connect(button, &QToolButton::pressed, button, [button] { button->setChecked(true); });
    makeDragSource(*button, "obj", [button, kind = kindButtons[index].kind] {
        const QPixmap shown = button->icon().pixmap(button->iconSize(), button->devicePixelRatioF());
        return DragOffer{QByteArray::number(static_cast<int>(kind)), shown};
    });
    buttons.push_back(button);
}

void KindButtons::press(std::size_t index) { buttons[index]->setChecked(true); }

void KindButtons::pointerMoved(QPoint pointer)
{
    const auto under = std::find_if(buttons.begin(), buttons.end(), [&](const QToolButton *button) {
        return button->isVisible() && onScreen(*button).contains(pointer);
    });
    if (under == buttons.end())
        hideTip();
    else if (!picbut->isVisible())
        showTip(static_cast<std::size_t>(under - buttons.begin()), pointer);
}

void KindButtons::showTip(std::size_t index, QPoint pointer)
{
    txtbut->setText(kindButtons[index].name);
    const int width = txtbut->fontMetrics().horizontalAdvance(txtbut->text()) +
                      static_cast<int>(std::ceil(tipMargin / twipsPerPixelX()));
    picbut->setFixedSize(width, txtbut->fontMetrics().height() + tipPadding);
    const int below = static_cast<int>(std::lround(tipBelowPointer / twipsPerPixelY()));
    const int rightmost = screen()->geometry().right() + 1 - width;
    picbut->move(std::min(pointer.x(), rightmost), pointer.y() + below);
    picbut->show();
    timer->setProperty("tag", static_cast<int>(index));
    timer->start();
}

void KindButtons::checkTip()
{
    const auto index = static_cast<std::size_t>(timer->property("tag").toInt());
    if (!onScreen(*buttons[index]).contains(QCursor::pos()))
        hideTip();
}

void KindButtons::hideTip()
{
    picbut->hide();
    timer->setProperty("tag", {});
    timer->stop();
}

} // namespace corvanta
