#pragma once

#include <fcntl.h>
#include <iostream>
#include <unistd.h>

// The standard streams of a tool's process.
namespace corvanta {

// A file that the tool opens must not get the number of a stream that was closed: what is printed would go into it.
// A closed stream stays one that cannot be written.
inline void holdStandardStreams()
{
    for (int fd = open("/dev/null", O_RDONLY); fd >= 0; fd = open("/dev/null", O_RDONLY))
        if (fd > STDERR_FILENO) {
            close(fd);
            return;
        }
}

// The exit code of a tool that has printed to the standard output.
inline int afterPrinting(const char *tool, int exitCode)
{
    if (std::cout.flush())
        return exitCode;
    std::cerr << tool << ": standard output: could not be written\n";
    return exitCode == 0 ? 1 : exitCode;
}

} // namespace corvanta
