#include "platform/multimedia.h"

namespace corvanta {

std::function<int(const std::string &)> &multimediaCommand()
{
    static std::function<int(const std::string &)> command;
    return command;
}

int mciSendString(const std::string &command) { return multimediaCommand() ? multimediaCommand()(command) : 0; }

} // namespace corvanta
