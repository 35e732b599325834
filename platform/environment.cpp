#include "platform/environment.h"

#include <cstdlib>

namespace corvanta {

std::string environmentValue(const char *name)
{
    const char *value = std::getenv(name); // NOLINT(concurrency-mt-unsafe): nobody sets one meanwhile
    return value ? value : std::string();
}

} // namespace corvanta
