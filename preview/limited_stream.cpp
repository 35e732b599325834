#include "preview/limited_stream.h"

#include <algorithm>
#include <array>
#include <cerrno>
#include <poll.h>
#include <sys/socket.h>
#include <unistd.h>

namespace corvanta {

namespace {

using Clock = std::chrono::steady_clock;
constexpr std::chrono::milliseconds writingTime(5000), lingeringTime(300);
constexpr std::size_t chunkSize = 16384;

int millisecondsUntil(Clock::time_point end)
{
    const auto left = std::chrono::duration_cast<std::chrono::milliseconds>(end - Clock::now()).count();
    return static_cast<int>(std::clamp<long>(left, 0, 60000));
}

bool waitFor(socket_t fd, short event, Clock::time_point end)
{
    for (;;) {
        pollfd waiting{fd, event, 0};
        const int ready = poll(&waiting, 1, millisecondsUntil(end));
        if (ready >= 0 || errno != EINTR)
            return ready > 0;
    }
}

} // namespace

LimitedStream::LimitedStream(socket_t connection, std::size_t headerBytes, std::size_t bodyBytes,
                             std::chrono::milliseconds time)
    : fd(connection), bytesLeft(headerBytes), bodyLimit(bodyBytes), end(Clock::now() + time)
{
}

bool LimitedStream::is_readable() const { return taken < buffer.size() || waitFor(fd, POLLIN, end); }

bool LimitedStream::is_writable() const
{
    pollfd state{fd, POLLOUT | POLLRDHUP, 0};
    return poll(&state, 1, static_cast<int>(writingTime.count())) > 0 &&
           (state.revents & (POLLRDHUP | POLLHUP | POLLERR)) == 0;
}

ssize_t LimitedStream::fill()
{
    buffer.resize(std::min(chunkSize, bytesLeft));
    taken = 0;
    const ssize_t count = !buffer.empty() && waitFor(fd, POLLIN, end) ? recv(fd, buffer.data(), buffer.size(), 0) : -1;
    buffer.resize(static_cast<std::size_t>(std::max<ssize_t>(count, 0)));
    bytesLeft -= buffer.size();
    lookForBody();
    return count;
}

// An empty line ends the headers.
void LimitedStream::lookForBody()
{
    if (inBody)
        return;
    tail += buffer;
    inBody = tail.find("\n\r\n") != std::string::npos || tail.find("\n\n") != std::string::npos;
    if (inBody)
        bytesLeft += bodyLimit;
    tail.erase(0, tail.size() - std::min<std::size_t>(tail.size(), 2));
}

ssize_t LimitedStream::read(char *bytes, std::size_t size)
{
    if (taken == buffer.size())
        if (const ssize_t count = fill(); count <= 0)
            return count;
    const std::size_t given = std::min(size, buffer.size() - taken);
    std::copy_n(buffer.data() + taken, given, bytes);
    taken += given;
    return static_cast<ssize_t>(given);
}

ssize_t LimitedStream::write(const char *bytes, std::size_t size)
{
    return waitFor(fd, POLLOUT, Clock::now() + writingTime) ? send(fd, bytes, size, MSG_NOSIGNAL) : -1;
}

void LimitedStream::get_remote_ip_and_port(std::string &ip, int &port) const
{
    ip = "127.0.0.1"; // nobody else can reach the loopback; nothing depends on the port
    port = 0;
}

void LimitedStream::get_local_ip_and_port(std::string &ip, int &port) const { get_remote_ip_and_port(ip, port); }

void endConnection(socket_t connection)
{
    shutdown(connection, SHUT_WR);
    std::array<char, chunkSize> rest;
    const Clock::time_point end = Clock::now() + lingeringTime;
    while (Clock::now() < end && waitFor(connection, POLLIN, end) &&
           recv(connection, rest.data(), rest.size(), 0) > 0) {
    }
    close(connection);
}

} // namespace corvanta
