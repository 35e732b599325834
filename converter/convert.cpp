#include "converter/convert.h"

#include "converter/html_template.h"
#include "document/page_file.h"
#include "document/reading_failure.h"
#include "platform/codepage.h"
#include "platform/host_files.h"

#include <exception>

namespace corvanta {

namespace {

namespace fs = std::filesystem;

constexpr std::size_t extensionLength = 3; // characters

bool startsCharacter(char utf8) { return (static_cast<unsigned char>(utf8) & 0xC0) != 0x80; }

// The template's path may lead to the page itself, by a link or by its own name.
bool isSameFile(const fs::path &a, const fs::path &b)
{
    std::error_code error;
    return a == b || (fs::equivalent(a, b, error) && !error);
}

std::string convert(const fs::path &pageFile)
{
    const FileContent file = readHostFile(pageFile, fileLimit);
    if (std::string failure = readingFailure(file); !failure.empty())
        return failure;
    if (!isPageFile(file.bytes))
        return "not a page file";
    const fs::path target = templateOf(pageFile);
    if (target.empty())
        return "the name is too short for that of a page file";
    if (isSameFile(target, pageFile))
        return "the template would replace the page itself";
    std::error_code none;
    if (fs::is_symlink(target, none)) // it may lead to another page, or to anything
        return "the template would be written through a link";
    Page p;
    parsePage(p, file.bytes);
    const fs::path folder = pageFile.has_parent_path() ? pageFile.parent_path() : fs::path(".");
    if (const auto error = writeHostFileAtomically(target, htmlTemplate(p, folder)))
        return target.filename().string() + ": " + toUtf8(*error);
    return {};
}

} // namespace

fs::path templateOf(const fs::path &pageFile)
{
    std::string name = pageFile.filename().string();
    std::size_t characters = 0;
    while (characters < extensionLength && !name.empty()) {
        characters += startsCharacter(name.back());
        name.pop_back();
    }
    return characters < extensionLength ? fs::path() : pageFile.parent_path() / (name + "hts");
}

std::string convertPageFile(const fs::path &pageFile) noexcept
{
    try {
        return convert(pageFile);
    } catch (const std::exception &error) {
        return error.what();
    } catch (...) {
        return "unknown error";
    }
}

} // namespace corvanta
