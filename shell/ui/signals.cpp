#include "shell/ui/signals.h"

#include <QCoreApplication>
#include <QSocketNotifier>

#include <csignal>
#include <fcntl.h>
#include <unistd.h>

namespace corvanta {

namespace {

int ends[2] = {-1, -1}; // a handler may do little more than write to a pipe

void handle(int)
{
    const char byte = 1;
    [[maybe_unused]] const ssize_t written = write(ends[1], &byte, 1);
}

} // namespace

void watchSignals(std::function<void()> ended)
{
    if (pipe2(ends, O_CLOEXEC | O_NONBLOCK) != 0)
        return;
    auto *notifier = new QSocketNotifier(ends[0], QSocketNotifier::Read, qApp);
    QObject::connect(notifier, &QSocketNotifier::activated, qApp, [ended = std::move(ended)] {
        char byte = 0;
        [[maybe_unused]] const ssize_t count = read(ends[0], &byte, 1);
        ended();
    });
    struct sigaction action {};
    action.sa_handler = handle;
    action.sa_flags = SA_RESTART;
    for (const int signal : {SIGTERM, SIGHUP, SIGINT})
        sigaction(signal, &action, nullptr);
}

} // namespace corvanta
