#include "fuzz/support.h"
#include "preview/form_body.h"
#include "preview/host.h"

using namespace corvanta;

namespace {

PreviewHost &samplesHost()
{
    const std::filesystem::path folder = scratchFolder() / "pages";
    std::filesystem::copy(CORVANTA_SAMPLES, folder);
    secretText();
    static PreviewHost host({std::filesystem::canonical(folder), {}, "MENU"}, {});
    return host;
}

} // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t *data, std::size_t size)
{
    static PreviewHost &host = samplesHost();
    std::string_view rest = bytesOf(data, size);
    PreviewRequest request;
    request.post = !rest.empty() && (rest.front() & 1) != 0;
    request.path = takePart(rest);
    request.query = urlEncodedValues(takePart(rest));
    request.form = urlEncodedValues(rest);
    const PreviewAnswer answer = host.answer(request);
    require(!holdsSecret(answer.body), "nothing outside the directory");
    require(answer.location.find_first_of("\r\n") == std::string::npos, "a redirection is one line");
    return 0;
}
