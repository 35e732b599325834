#include "preview/form_body.h"

#include "platform/text.h"

#include <charconv>

namespace corvanta {

namespace {

constexpr std::size_t mostValues = 1000, longestValue = 65536; // bytes

std::string decoded(std::string_view text)
{
    std::string value;
    for (std::size_t i = 0; i < text.size(); ++i) {
        unsigned char byte = 0;
        const char *digits = text.data() + i + 1;
        if (text[i] == '%' && i + 2 < text.size() && std::from_chars(digits, digits + 2, byte, 16).ptr == digits + 2) {
            value += static_cast<char>(byte);
            i += 2;
        } else {
            value += text[i] == '+' ? ' ' : text[i];
        }
    }
    return value;
}

struct Collector {
    PreviewRequest &plain;
    std::size_t bytes = 0;
    bool tooLarge = false, inFile = false;

    bool begin(const httplib::MultipartFormData &part)
    {
        inFile = !part.filename.empty();
        if (plain.form.size() + plain.files.size() >= mostValues)
            return false;
        if (inFile)
            plain.files.push_back({part.name, part.filename, 0});
        else
            plain.form.push_back({part.name, {}});
        return true;
    }
    bool take(std::string_view more)
    {
        bytes += more.size();
        tooLarge = bytes > bodyLimit || (!inFile && plain.form.back().value.size() + more.size() > longestValue);
        if (tooLarge)
            return false;
        if (inFile)
            plain.files.back().size += more.size();
        else
            plain.form.back().value += more;
        return true;
    }
};

BodyReading readParts(const httplib::ContentReader &reader, PreviewRequest &plain)
{
    Collector collector{plain};
    const bool whole = reader([&](const httplib::MultipartFormData &part) { return collector.begin(part); },
                              [&](const char *data, std::size_t size) {
                                  return collector.take({data, size});
                              });
    if (collector.tooLarge)
        return BodyReading::TooLarge;
    return whole ? BodyReading::Done : BodyReading::Malformed;
}

} // namespace

std::vector<FormValue> urlEncodedValues(std::string_view text)
{
    std::vector<FormValue> values;
    while (!text.empty() && values.size() < mostValues) {
        const std::string_view pair = text.substr(0, text.find('&'));
        const std::size_t equals = std::min(pair.find('='), pair.size());
        if (!pair.empty())
            values.push_back(
                {decoded(pair.substr(0, equals)), decoded(pair.substr(std::min(equals + 1, pair.size())))});
        text.remove_prefix(std::min(pair.size() + 1, text.size()));
    }
    return values;
}

BodyReading readForm(const httplib::Request &request, const httplib::ContentReader &reader, PreviewRequest &plain)
{
    if (leadingNumber(request.get_header_value("Content-Length")) > static_cast<double>(bodyLimit))
        return BodyReading::TooLarge;
    if (request.is_multipart_form_data())
        return readParts(reader, plain);
    std::string body;
    bool tooLarge = false;
    const bool whole = reader([&](const char *data, std::size_t size) {
        tooLarge = body.size() + size > bodyLimit;
        if (!tooLarge)
            body.append(data, size);
        return !tooLarge;
    });
    if (tooLarge)
        return BodyReading::TooLarge;
    if (!whole || !request.get_header_value("Content-Type").starts_with("application/x-www-form-urlencoded"))
        return BodyReading::Malformed;
    plain.form = urlEncodedValues(body);
    return BodyReading::Done;
}

} // namespace corvanta
