#include "shell/ui/pause_watch.h"

#include <QApplication>
#include <QElapsedTimer>
#include <QTimer>

#include <cstdio>

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

} // namespace

void watchPauses()
{
    if (const int limit = qEnvironmentVariableIntValue("CORVANTA_PAUSES"); limit > 0)
        new PauseWatch(qApp, limit);
}

} // namespace corvanta
