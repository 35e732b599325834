#include "tests/support/loopback.h"

#include <gtest/gtest.h>

#include <arpa/inet.h>
#include <sys/socket.h>
#include <unistd.h>

namespace corvanta::loopback {

int connection(int port)
{
    const int s = socket(AF_INET, SOCK_STREAM | SOCK_CLOEXEC, 0);
    sockaddr_in address{};
    address.sin_family = AF_INET;
    address.sin_port = htons(static_cast<std::uint16_t>(port));
    address.sin_addr.s_addr = htonl(INADDR_LOOPBACK);
    EXPECT_EQ(connect(s, reinterpret_cast<sockaddr *>(&address), sizeof address), 0);
    return s;
}

std::string readUntil(int connection, const std::string &mark)
{
    std::string text;
    char bytes[4096];
    ssize_t count = 0;
    while ((mark.empty() || text.find(mark) == std::string::npos) &&
           (count = recv(connection, bytes, sizeof bytes, 0)) > 0)
        text.append(bytes, static_cast<std::size_t>(count));
    return text;
}

std::string ask(int port, const std::string &bytes)
{
    const int s = connection(port);
    for (std::size_t sent = 0; sent < bytes.size();) {
        const ssize_t count = send(s, bytes.data() + sent, bytes.size() - sent, MSG_NOSIGNAL);
        if (count <= 0)
            break;
        sent += static_cast<std::size_t>(count);
    }
    const std::string answer = readUntil(s, {});
    close(s);
    return answer;
}

} // namespace corvanta::loopback
