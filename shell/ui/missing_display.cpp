#include "shell/ui/missing_display.h"

#include <QByteArray>
#include <QString>
#include <QtGlobal>

#include <cstdio>
#include <cstdlib>
#include <utility>

namespace corvanta {

namespace {

QByteArray held;
QtMessageHandler usual = nullptr;

void hold(QtMsgType type, const QMessageLogContext &, const QString &text)
{
    if (type == QtFatalMsg) {
        std::fputs("corvanta: There is no display to show windows on.\n", stderr);
        std::_Exit(1);
    }
    held += text.toLocal8Bit() + '\n';
}

} // namespace

void watchForMissingDisplay() { usual = qInstallMessageHandler(hold); }

void displayFound()
{
    qInstallMessageHandler(usual);
    std::fputs(std::exchange(held, {}).constData(), stderr);
}

} // namespace corvanta
