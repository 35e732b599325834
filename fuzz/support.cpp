#include "fuzz/support.h"

#include "document/page_file.h"
#include "platform/paths.h"
#include "platform/profile.h"

#include <cstdio>
#include <cstdlib>
#include <fstream>
#include <random>

namespace corvanta {

namespace {

struct Scratch {
    Scratch()
    {
        std::string name = (std::filesystem::temp_directory_path() / "corvanta-fuzz-XXXXXX").string();
        require(mkdtemp(name.data()) != nullptr, "there is a folder for temporary files");
        folder = name;
        setDriveRoot(folder);
        setProfileFolder(name);
        setenv("XDG_STATE_HOME", name.c_str(), 1);
        setenv("XDG_RUNTIME_DIR", name.c_str(), 1);
    }
    ~Scratch()
    {
        std::error_code ignored;
        std::filesystem::remove_all(folder, ignored);
    }
    std::filesystem::path folder;
};

constexpr std::size_t secretLength = 24;

std::uint64_t sumOf(std::string_view text)
{
    std::uint64_t sum = 14695981039346656037U;
    for (const char c : text)
        sum = (sum ^ static_cast<unsigned char>(c)) * 1099511628211U;
    return sum;
}

} // namespace

std::string_view takePart(std::string_view &bytes)
{
    const std::string_view part = bytes.substr(0, bytes.find('\0'));
    bytes.remove_prefix(std::min(bytes.size(), part.size() + 1));
    return part;
}

void require(bool holds, const char *promise)
{
    if (holds)
        return;
    std::fprintf(stderr, "Does not hold: %s\n", promise);
    std::abort();
}

const std::filesystem::path &scratchFolder()
{
    static const Scratch scratch;
    return scratch.folder;
}

const std::string &secretText()
{
    static const std::string secret = [] {
        std::string text;
        std::random_device random;
        while (text.size() < secretLength)
            text += static_cast<char>('a' + random() % 26);
        std::ofstream(scratchFolder() / "secret.txt") << text;
        return text;
    }();
    return secret;
}

bool holdsSecret(std::string_view text)
{
    const std::uint64_t wanted = sumOf(secretText());
    for (std::size_t i = 0; i + secretLength <= text.size(); ++i)
        if (sumOf(text.substr(i, secretLength)) == wanted)
            return true;
    return false;
}

Page pageOf(std::string_view bytes)
{
    Page p;
    parsePage(p, bytes);
    return p;
}

} // namespace corvanta
