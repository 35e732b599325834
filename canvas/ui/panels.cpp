#include "canvas/ui/panels.h"

#include <QLabel>

#include <algorithm>

namespace corvanta {

namespace {

constexpr int toolbarHeight = 30, statusHeight = 24, progressWidth = 120, gap = 2; // pixels

} // namespace

MockToolbar::MockToolbar(QWidget *parent) : QFrame(parent), label(new QLabel(QStringLiteral("Toolbar"), this))
{
    setObjectName(QStringLiteral("mocktoolbar"));
    setAccessibleName(QStringLiteral("Mock toolbar"));
    setFrameStyle(QFrame::Panel | QFrame::Raised);
    setFixedHeight(toolbarHeight);
    label->setObjectName(QStringLiteral("mocklabel"));
    label->adjustSize();
}

void MockToolbar::resizeEvent(QResizeEvent *)
{
    label->move((width() - label->width()) / 2, (height() - label->height()) / 2);
}

StatusPanel::StatusPanel(QWidget *parent)
    : QFrame(parent), statusLine(new QLabel(this)), progressPanel(new QFrame(this))
{
    setObjectName(QStringLiteral("statuspanel"));
    setFrameStyle(QFrame::Panel | QFrame::Raised);
    setFixedHeight(statusHeight);
    statusLine->setObjectName(QStringLiteral("statusline"));
    statusLine->setAccessibleName(QStringLiteral("Status"));
    statusLine->setTextFormat(Qt::PlainText);
    statusLine->setFrameStyle(QFrame::Panel | QFrame::Sunken);
    statusLine->setIndent(4);
    progressPanel->setObjectName(QStringLiteral("progresspanel"));
    progressPanel->setAccessibleName(QStringLiteral("Progress"));
    progressPanel->setFrameStyle(QFrame::Panel | QFrame::Sunken);
}

void StatusPanel::setStatus(const QString &text)
{
    if (statusLine->text() != text)
        statusLine->setText(text);
}

void StatusPanel::mouseReleaseEvent(QMouseEvent *)
{
    if (clicked)
        clicked();
}

void StatusPanel::arrange(int pageWidth)
{
    const int inner = height() - 2 * gap, progress = std::min(progressWidth, pageWidth / 2);
    progressPanel->setGeometry(pageWidth - progress, gap, progress - gap, inner);
    statusLine->setGeometry(gap, gap, pageWidth - progress - 2 * gap, inner);
}

} // namespace corvanta
