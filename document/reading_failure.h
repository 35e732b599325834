#pragma once

#include "document/page.h"
#include "platform/codepage.h"
#include "platform/files.h"

#include <string>

namespace corvanta {

// Why a page or object file cannot be used, in UTF-8 for a command line; empty when it can.
inline std::string readingFailure(const FileContent &content)
{
    if (content.missing)
        return "no such file";
    if (content.tooLarge)
        return "more than " + std::to_string(fileLimit) + " bytes";
    if (!content.error.empty())
        return toUtf8(content.error);
    return content.bytes.empty() ? "the file is empty" : "";
}

} // namespace corvanta
