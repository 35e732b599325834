#include "shell/ui/hpsedit.h"

#include "canvas/ui/editform.h"
#include "document/page_file.h"
#include "platform/qt/text.h"
#include "shell/ui/menus.h"
#include "shell/ui/strip.h"

#include <QCloseEvent>
#include <QCoreApplication>
#include <QKeyEvent>
#include <QMenuBar>
#include <QVBoxLayout>

namespace corvanta {

namespace {

constexpr int settlingTime = 80; // milliseconds

} // namespace

Hpsedit::Hpsedit() : menus(new Menus(*menuBar())), strip(new Strip(this))
{
    setObjectName(QStringLiteral("hpsedit"));
    setWindowTitle(QStringLiteral("Corvanta Form Editor"));
    setCentralWidget(new QWidget(this));
    auto *column = new QVBoxLayout(centralWidget());
    column->setContentsMargins(0, 0, 0, 0);
    column->addWidget(strip);
    column->addStretch(); // below the strip of a maximised window
    setContextMenuPolicy(Qt::NoContextMenu);
    setAttribute(Qt::WA_AlwaysShowToolTips); // also while the canvas window is the active one
    settling.setSingleShot(true);
    settling.setInterval(settlingTime);
    connect(&settling, &QTimer::timeout, this, [this] { snapToStrip(); });
    strip->doubleClicked = [this] { menus->openAdd(); };
    refreshFile();
    resize(sizeHint());
}

void Hpsedit::setCanvas(Editform *window) { canvas = window; }

void Hpsedit::buildAddMenu()
{
    menus->addKinds();
    strip->addObjectTools();
    strip->updateGeometry();
    centralWidget()->updateGeometry();
    resize(sizeHint());
}

void Hpsedit::refreshCommands()
{
    menus->refreshCommands();
    strip->refreshCommands();
}

void Hpsedit::refreshFile()
{
    const std::string &tag = editing().filetag;
    const QString path = shownPath(tag);
    const bool real = path != toQString(tag);
    QString caption = real ? path.section('\\', -1).toUpper() : toQString(filePanelCaption());
    if (real)
        caption.replace('&', QStringLiteral("&&"));
    strip->filePanel().setFile(caption, path);
}

void Hpsedit::openMenu(char letter)
{
    activateWindow();
    raise();
    menus->open(letter);
}

bool Hpsedit::isNormal() const { return !isMinimized() && !isMaximized() && !isFullScreen(); }

void Hpsedit::snapToStrip()
{
    if (isNormal() && height() != sizeHint().height())
        resize(width(), sizeHint().height());
}

void Hpsedit::followState()
{
    if (!canvas || canvas->property("tag").toString() == QLatin1String("IN INPOPTS"))
        return;
    canvas->setVisible(isNormal());
    if (isNormal())
        canvas->repaintPage();
}

void Hpsedit::resizeEvent(QResizeEvent *event)
{
    QMainWindow::resizeEvent(event);
    if (height() != sizeHint().height())
        settling.start();
}

void Hpsedit::changeEvent(QEvent *event)
{
    QMainWindow::changeEvent(event);
    if (event->type() != QEvent::WindowStateChange)
        return;
    settling.start();
    followState();
}

void Hpsedit::keyPressEvent(QKeyEvent *event)
{
    const bool enter = event->key() == Qt::Key_Return || event->key() == Qt::Key_Enter;
    if (enter && event->modifiers().testFlag(Qt::AltModifier))
        forwardToCanvas(*event);
    else
        QMainWindow::keyPressEvent(event);
}

void Hpsedit::forwardToCanvas(const QKeyEvent &event)
{
    if (!canvas || !canvas->isVisible() || !canvas->isEnabled())
        return;
    canvas->activateWindow();
    canvas->pageArea().setFocus();
    QKeyEvent forwarded(QEvent::KeyPress, event.key(), event.modifiers());
    QCoreApplication::sendEvent(canvas, &forwarded);
}

void Hpsedit::closeEvent(QCloseEvent *event)
{
    const bool agreed = isEnabled() && (!mayClose || mayClose());
    event->setAccepted(agreed);
    if (agreed && closed)
        closed();
}

} // namespace corvanta
