#pragma once

#include <functional>
#include <string>

namespace corvanta {

// Multimedia command strings: "Play " followed by a drive path, and "Close all". The result is 0 when the
// command was accepted (a sound plays on in the background), else an error number. Never blocks.
// Empty without a desktop.
std::function<int(const std::string &command)> &multimediaCommand();

int mciSendString(const std::string &command);

} // namespace corvanta
