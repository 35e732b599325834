#include "preview/address_file.h"

#include "converter/text.h"
#include "platform/environment.h"

#include <fcntl.h>
#include <string_view>
#include <system_error>
#include <unistd.h>

namespace corvanta {

namespace {

namespace fs = std::filesystem;

bool writeAll(int descriptor, std::string_view text)
{
    while (!text.empty()) {
        const ssize_t count = write(descriptor, text.data(), text.size());
        if (count <= 0)
            return false;
        text.remove_prefix(static_cast<std::size_t>(count));
    }
    return true;
}

// A new file that this user alone may read; -1 when there is no place for one.
int makePrivateFile(fs::path &file)
{
    std::error_code none;
    const fs::path own = environmentValue("XDG_RUNTIME_DIR");
    std::string name = (own.is_absolute() ? own : fs::temp_directory_path(none)) / "corvanta-preview-XXXXXX.html";
    const int descriptor = mkostemps(name.data(), 5, O_CLOEXEC); // made with mode 0600
    if (descriptor >= 0)
        file = name;
    return descriptor;
}

} // namespace

AddressFile::~AddressFile()
{
    std::error_code none;
    if (!file.empty())
        fs::remove(file, none);
}

const fs::path &AddressFile::leadTo(const std::string &address)
{
    const int descriptor =
        file.empty() ? makePrivateFile(file) : open(file.c_str(), O_WRONLY | O_TRUNC | O_NOFOLLOW | O_CLOEXEC);
    const std::string target = escapedUtf8(address);
    const bool done =
        descriptor >= 0 &&
        writeAll(descriptor, "<!DOCTYPE html>\n<html lang=\"en\">\n<meta charset=\"utf-8\">\n<title>Preview</title>\n"
                             "<meta http-equiv=\"refresh\" content=\"0;url=" +
                                 target + "\">\n<p><a href=\"" + target + "\">To the preview</a></p>\n</html>\n");
    if (descriptor >= 0)
        close(descriptor);
    static const fs::path failed;
    return done ? file : failed;
}

} // namespace corvanta
