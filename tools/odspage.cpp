#include "platform/files.h"
#include "tools/odspage_commands.h"

#include <iostream>

int main(int argc, char **argv)
{
    corvanta::takeFileErrorsAsErrors();
    return corvanta::runOdspage(argc, argv, std::cout, std::cerr);
}
