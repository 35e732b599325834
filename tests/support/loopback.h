#pragma once

#include <string>

// Requests to servers of this machine, byte by byte.
namespace corvanta::loopback {

// A connection to a port of 127.0.0.1; a failure fails the test.
int connection(int port);

// Reads to a mark, or to the end.
std::string readUntil(int connection, const std::string &mark);

// The whole answer to bytes that are sent as they are; what cannot be sent any more is left.
std::string ask(int port, const std::string &bytes);

} // namespace corvanta::loopback
