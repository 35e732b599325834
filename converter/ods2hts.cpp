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

extern "C" std::int16_t ConvertOdsHts(const char *path) { return ConvertOdsHtsCodePage(path, codePageOfEnvironment()); }

extern "C" std::int16_t ConvertOdsHtsCodePage(const char *path, std::int32_t codePage)
{
    lastFailure.clear();
    try {
        lastFailure = failureOf(path, codePage);
    } catch (const std::exception &error) { // the caller may be of another language
        lastFailure = error.what();
    }
    return lastFailure.empty() ? 1 : 0;
}

extern "C" const char *ConvertOdsHtsMessage() { return lastFailure.c_str(); }
