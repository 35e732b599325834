#include "converter/ods2hts.h"

#include "converter/convert.h"
#include "converter/host_names.h"
#include "platform/codepage.h"

#include <exception>
#include <string>

namespace {

using namespace corvanta;

thread_local std::string lastFailure;

std::string failureOf(const char *path, int codePage)
{
    const CodePageOfThread texts(codePage);
    if (!texts)
        return "unknown code page " + std::to_string(codePage);
    if (path == nullptr || *path == '\0')
        return "no such file";
    return convertPageFile(hostFile(path));
}

} // namespace

// No exception passes to the caller, who may be of another language.
static std::int16_t convertedWith(const char *path, std::int32_t (*codePage)(std::int32_t), std::int32_t asked) noexcept
{
    try {
        lastFailure.clear();
        lastFailure = failureOf(path, codePage(asked));
        return static_cast<std::int16_t>(lastFailure.empty());
    } catch (const std::exception &) {
        lastFailure.assign("out of memory"); // fits without another allocation
    } catch (...) {
    }
    return 0;
}

extern "C" std::int16_t ConvertOdsHts(const char *path)
{
    return convertedWith(
        path, [](std::int32_t) { return codePageOfEnvironment(); }, 0);
}

extern "C" std::int16_t ConvertOdsHtsCodePage(const char *path, std::int32_t codePage)
{
    return convertedWith(
        path, [](std::int32_t asked) { return asked; }, codePage);
}

extern "C" const char *ConvertOdsHtsMessage() { return lastFailure.c_str(); }
