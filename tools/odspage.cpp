#include "platform/files.h"
#include "tools/odspage_commands.h"
#include "tools/standard_streams.h"

#include <iostream>

int main(int argc, char **argv)
{
    corvanta::takeFileErrorsAsErrors();
    corvanta::holdStandardStreams();
    return corvanta::runOdspage(argc, argv, std::cout, std::cerr);
}
