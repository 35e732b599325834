#include "shell/ui/strip.h"

#include "shell/commands.h"
#include "shell/ui/icons.h"
#include "shell/ui/object_tool.h"

#include <QHBoxLayout>
#include <QMouseEvent>
#include <QPainter>
#include <QStyle>
#include <QToolButton>

namespace corvanta {

namespace {

constexpr int margin = 4, gap = 10, panelPadding = 8; // pixels
constexpr QSize iconSize(24, 24);

QToolButton *toolbarButton(int index, QWidget *parent)
{
    const ToolbarRow &row = toolbarTable()[static_cast<std::size_t>(index)];
    auto *button = new QToolButton(parent);
    button->setObjectName(QStringLiteral("toolbar%1").arg(index));
    button->setIcon(commandIcon(row.command));
    button->setToolTip(row.hint);
    button->setAccessibleName(row.hint);
    button->setIconSize(iconSize);
    button->setAutoRaise(true);
    QObject::connect(button, &QToolButton::clicked, button, [command = row.command] { runCommand(command); });
    return button;
}

QFrame *divider(QWidget *parent)
{
    auto *line = new QFrame(parent);
    line->setFrameStyle(static_cast<int>(QFrame::VLine) | static_cast<int>(QFrame::Sunken));
    return line;
}

} // namespace

FilePanel::FilePanel(QWidget *parent) : QFrame(parent)
{
    setObjectName(QStringLiteral("filepanel"));
    setFrameStyle(static_cast<int>(QFrame::Panel) | static_cast<int>(QFrame::Sunken));
    setSizePolicy(QSizePolicy::Expanding, QSizePolicy::Fixed);
    QFont tahoma = font();
    tahoma.setFamily(QStringLiteral("Tahoma"));
    setFont(tahoma);
}

void FilePanel::setFile(const QString &caption, const QString &tag)
{
    text = caption;
    setProperty("tag", tag);
    setToolTip(tag);
    setAccessibleName(QString(caption).replace("&&", "&"));
    update();
}

QSize FilePanel::sizeHint() const { return {fontMetrics().averageCharWidth() * 28, fontMetrics().height() + 10}; }

QSize FilePanel::minimumSizeHint() const { return {fontMetrics().averageCharWidth() * 14, sizeHint().height()}; }

void FilePanel::paintEvent(QPaintEvent *event)
{
    QFrame::paintEvent(event);
    QPainter painter(this);
    const QRect room = contentsRect().adjusted(panelPadding, 0, -panelPadding, 0);
    const QString shown = fontMetrics().elidedText(QString(text).replace("&&", "&"), Qt::ElideRight, room.width());
    painter.drawText(room, Qt::AlignVCenter | Qt::AlignLeft | Qt::TextSingleLine, shown);
}

Strip::Strip(QWidget *parent) : QFrame(parent), panel(nullptr), row(new QHBoxLayout(this))
{
    setObjectName(QStringLiteral("tbarpic"));
    setFrameStyle(static_cast<int>(QFrame::Panel) | static_cast<int>(QFrame::Raised));
    setSizePolicy(QSizePolicy::Preferred, QSizePolicy::Fixed);
    row->setContentsMargins(margin, margin, margin, margin);
    row->setSpacing(1);
    for (int i = 0; i < static_cast<int>(buttons.size()); ++i) {
        buttons[static_cast<std::size_t>(i)] = toolbarButton(i, this);
        row->addWidget(buttons[static_cast<std::size_t>(i)]);
    }
    row->addSpacing(gap);
    panel = new FilePanel(this);
    row->addWidget(panel, 1, Qt::AlignVCenter);
    row->addSpacing(gap);
    refreshCommands();
}

void Strip::addObjectTools()
{
    row->addWidget(divider(this));
    row->addSpacing(gap / 2);
    for (const RegisteredKind &kind : orderedAddMenu()) {
        auto *tool = new ObjectTool(kind, this);
        tool->setIconSize(iconSize);
        row->addWidget(tool);
    }
}

void Strip::refreshCommands()
{
    for (std::size_t i = 0; i < buttons.size(); ++i)
        buttons[i]->setEnabled(commandEnabled(toolbarTable()[i].command));
}

void Strip::mouseDoubleClickEvent(QMouseEvent *event)
{
    if (event->button() == Qt::LeftButton && doubleClicked)
        doubleClicked();
}

} // namespace corvanta
