#pragma once

#include <chrono>
#include <cstddef>
#include <httplib.h>
#include <string>

// One connection of the preview's server. The headers of a request have so many bytes, its body so many, and both
// together so much time, so that a sender who never ends, however busily, is cut off.
namespace corvanta {

class LimitedStream : public httplib::Stream {
public:
    LimitedStream(socket_t connection, std::size_t headerBytes, std::size_t bodyBytes, std::chrono::milliseconds time);

    bool is_readable() const override;
    bool is_writable() const override; // false once the other side has gone
    ssize_t read(char *bytes, std::size_t size) override;
    ssize_t write(const char *bytes, std::size_t size) override;
    void get_remote_ip_and_port(std::string &ip, int &port) const override;
    void get_local_ip_and_port(std::string &ip, int &port) const override;
    socket_t socket() const override { return fd; }

private:
    ssize_t fill();
    void lookForBody();

    socket_t fd;
    std::size_t bytesLeft, bodyLimit;
    std::chrono::steady_clock::time_point end;
    std::string buffer; // read and not yet taken
    std::size_t taken = 0;
    std::string tail; // of what came before the buffer
    bool inBody = false;
};

// Ends a connection so that what was answered arrives, also when the other side is still sending.
void endConnection(socket_t connection);

} // namespace corvanta
