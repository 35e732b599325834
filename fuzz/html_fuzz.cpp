#include "converter/html_template.h"
#include "document/encoding.h"
#include "fuzz/support.h"
#include "platform/codepage.h"
#include "platform/text.h"

using namespace corvanta;

namespace {

std::filesystem::path folderBesideTheSecret()
{
    secretText();
    std::filesystem::create_directory(scratchFolder() / "pages");
    return scratchFolder() / "pages";
}

} // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t *data, std::size_t size)
{
    static const std::filesystem::path folder = folderBesideTheSecret();
    Page p = pageOf(bytesOf(data, size));
    p.dbconnect = "SOURCE\tUSER\t" + secretText();
    const std::string html = htmlTemplate(p, folder);
    require(utf8FromUtf16(utf16FromUtf8(html)) == html, "a template is UTF-8");
    for (const char c : html)
        require(static_cast<unsigned char>(c) >= ' ' || c == '\n' || c == '\t' || c == '\r', "no control characters");
    require(!holdsSecret(html), "no password, and nothing outside the directory");
    if ((p.pgflags & replaceHtmlFlag) != 0)
        require(lowerCase(html).find("<script>canary") == std::string::npos, "no script of the page's texts");
    return 0;
}
