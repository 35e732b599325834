#include "shell/ui/pause_watch.h"

#include <QApplication>
#include <QElapsedTimer>
#include <QEvent>
#include <QTimer>
#include <QWidget>

#include <cstdio>
#include <utility>

namespace corvanta {

namespace {

constexpr int beat = 4; // milliseconds

class PauseWatch : public QObject {
public:
    PauseWatch(QObject *parent, int longest) : QObject(parent), limit(longest)
    {
        timer.setTimerType(Qt::PreciseTimer);
        connect(&timer, &QTimer::timeout, this, [this] {
            const qint64 paused = since.restart() - beat;
            if (paused > limit)
                std::fprintf(stderr, "paused %lld ms\n", static_cast<long long>(paused));
        });
        since.start();
        timer.start(beat);
    }

private:
    QTimer timer;
    QElapsedTimer since;
    int limit;
};

class PaintWatch : public QObject {
public:
    PaintWatch(QObject *parent, int windows) : QObject(parent), missing(windows) { parent->installEventFilter(this); }

    bool eventFilter(QObject *receiver, QEvent *event) override
    {
        const auto *widget = event->type() == QEvent::Paint ? qobject_cast<QWidget *>(receiver) : nullptr;
        if (widget && widget->isWindow() && std::exchange(last, widget) != widget && --missing == 0) {
            QTimer::singleShot(0, [] { std::fputs("painted\n", stderr); });
            deleteLater();
        }
        return false;
    }

private:
    const QWidget *last = nullptr;
    int missing;
};

bool watching() { return qEnvironmentVariableIntValue("CORVANTA_PAUSES") > 0; }

} // namespace

void watchFirstPaint(int windows)
{
    if (watching())
        new PaintWatch(qApp, windows);
}

void watchPauses()
{
    if (watching())
        new PauseWatch(qApp, qEnvironmentVariableIntValue("CORVANTA_PAUSES"));
}

} // namespace corvanta
