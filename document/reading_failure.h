#pragma once

#include "document/encoding.h"
#include "document/page_file.h"
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

// Whether bytes that are no page are an object file: a version and one counted body.
inline bool holdsOneObject(std::string_view bytes)
{
    const std::int16_t version = decodeInt16(bytes), length = decodeInt16(bytes);
    return version > 0 && version <= currentVersion && length > 0 && bytes.size() == static_cast<std::size_t>(length);
}

// The same reason for a file that must be a page.
inline std::string pageFailure(const FileContent &content)
{
    const std::string failure = readingFailure(content);
    if (!failure.empty() || isPageFile(content.bytes))
        return failure;
    return holdsOneObject(content.bytes) ? "an object file, not a page file" : "not a page file";
}

} // namespace corvanta
