#include "tools/odspage_terminal.h"

#include "platform/codepage.h"

#include <fcntl.h>
#include <poll.h>
#include <termios.h>
#include <unistd.h>

namespace corvanta {

namespace {

constexpr std::size_t longestAnswer = 255;

// Shows nothing of what is typed, as long as it lives.
class SilentTerminal {
public:
    explicit SilentTerminal(int descriptor) : terminal(descriptor)
    {
        tcgetattr(terminal, &before);
        termios silent = before;
        silent.c_lflag &= ~static_cast<tcflag_t>(ECHO);
        tcsetattr(terminal, TCSAFLUSH, &silent);
    }
    ~SilentTerminal()
    {
        tcsetattr(terminal, TCSAFLUSH, &before);
        [[maybe_unused]] const ssize_t done = write(terminal, "\n", 1);
    }
    SilentTerminal(const SilentTerminal &) = delete;
    SilentTerminal &operator=(const SilentTerminal &) = delete;

private:
    int terminal;
    termios before = {};
};

// One line; none at the end of the input and when the program is to end.
std::optional<std::string> lineFrom(int terminal, int stopped)
{
    std::string line;
    for (;;) {
        pollfd waiting[2] = {{terminal, POLLIN, 0}, {stopped, POLLIN, 0}};
        if (poll(waiting, 2, -1) < 0)
            continue;
        char c = 0;
        if (waiting[1].revents != 0 || read(terminal, &c, 1) != 1)
            return std::nullopt;
        if (c == '\n')
            return line;
        if (line.size() < longestAnswer)
            line += c;
    }
}

std::optional<std::string> answerTo(int terminal, const std::string &prompt, int stopped)
{
    [[maybe_unused]] const ssize_t done = write(terminal, prompt.data(), prompt.size());
    return lineFrom(terminal, stopped);
}

std::optional<Credentials> ask(int terminal, const std::string &source, int stopped)
{
    const auto user = answerTo(terminal, "User name for " + toUtf8(source) + ": ", stopped);
    if (!user || user->empty())
        return std::nullopt;
    const SilentTerminal silent(terminal);
    const auto password = answerTo(terminal, "Password: ", stopped);
    if (!password)
        return std::nullopt;
    return Credentials{fromUtf8Lossy(*user), fromUtf8Lossy(*password)};
}

} // namespace

std::optional<Credentials> askOnTerminal(const std::string &source, int stopped)
{
    const int terminal = isatty(STDIN_FILENO) != 0 ? open("/dev/tty", O_RDWR | O_CLOEXEC) : -1;
    if (terminal < 0)
        return std::nullopt;
    const std::optional<Credentials> given = ask(terminal, source, stopped);
    close(terminal);
    return given;
}

} // namespace corvanta
